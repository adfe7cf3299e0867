#include "editing/supports/deck_posts.h"

#include "document/layout.h"
#include "editing/supports/grounds.h"
#include "editing/supports/pier_room.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace trassix {

namespace {

constexpr double kSize = 22;         // mm
constexpr double kInset = 18;        // from the edge of the deck
constexpr double kFarthest = 550;    // from one post to the next
constexpr double kNearest = 140;     // as corners may be close together
constexpr double kIntoPlate = 5;     // of the head
constexpr double kStep = 15;         // by which a post moves to find room
constexpr double kLongestMove = 150; // along its edge

class DeckStand {
 public:
  DeckStand(const Level& level, const Grounds& grounds, const PierRoom& room)
      : level_(level), grounds_(grounds), room_(room) {}

  std::vector<DeckPost> run() {
    const Polygon line = makeHill(level_.outline, 0, 1, kInset).top;
    for (std::size_t i = 0; i < line.size(); ++i)
      alongEdge(line[i], line[(i + 1) % line.size()]);
    return std::move(posts_);
  }

 private:
  void alongEdge(Point a, Point b) {
    const double length = std::hypot(b.x - a.x, b.y - a.y);
    if (length <= 0)
      return;
    const int parts = static_cast<int>(std::ceil(length / kFarthest));
    for (int i = 0; i < parts; ++i)
      for (double move = 0; move <= kLongestMove; move += kStep) {
        const auto standsAt = [&](double along) {
          const double t = along / length;
          return along >= 0 && along <= length &&
                 stand({a.x + t * (b.x - a.x), a.y + t * (b.y - a.y)});
        };
        if (standsAt(length * i / parts + move) || standsAt(length * i / parts - move))
          break;
      }
  }

  /// False where something is in the way.
  bool stand(Point at) {
    const double head = level_.height - kIntoPlate;
    const Ground ground = grounds_.below(at, head - kRaised);
    if (std::ranges::any_of(posts_, [at](const DeckPost& post) {
          return std::hypot(post.at.x - at.x, post.at.y - at.y) < kNearest;
        }))
      return true;
    if (ground.kind == GroundKind::None ||
        room_.obstacleAt({{at.x, at.y, 0}, kSize, kSize, ground.height, head}, {}) !=
            PierObstacle::None)
      return false;
    posts_.push_back({level_.id, at, ground.height, head, kSize});
    return true;
  }

  const Level& level_;
  const Grounds& grounds_;
  const PierRoom& room_;
  std::vector<DeckPost> posts_;
};

} // namespace

std::vector<DeckPost> deckPosts(const Layout& layout, const Grounds& grounds,
                                const PierRoom& room) {
  std::vector<DeckPost> all;
  for (const Level& level : layout.settings().levels)
    if (level.outline.size() >= 3 && level.height > kIntoPlate + 2 * kRaised)
      for (const DeckPost& post : DeckStand(level, grounds, room).run())
        all.push_back(post);
  return all;
}

} // namespace trassix
