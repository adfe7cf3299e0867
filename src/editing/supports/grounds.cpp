#include "editing/supports/grounds.h"

#include "document/layout.h"
#include "document/plan_content.h"

#include <algorithm>
#include <cmath>

namespace trassix {

namespace {

constexpr double kTouch = 1;        // mm by which what lies on a ground may lie in it
constexpr double kSideShare = 0.45; // run of a hill's side by its rise
constexpr int kNarrowings = 5;      // of the side where an outline has little room

/// Corner by corner set back from both of its edges; empty where that turns the outline over.
Polygon setBack(const Polygon& outline, double by) {
  const double side = signedArea(outline) > 0 ? by : -by;
  Polygon inner;
  for (std::size_t i = 0; i < outline.size(); ++i) {
    const Point a = outline[(i + outline.size() - 1) % outline.size()];
    const Point b = outline[i];
    const Point c = outline[(i + 1) % outline.size()];
    const double in = std::hypot(b.x - a.x, b.y - a.y);
    const double out = std::hypot(c.x - b.x, c.y - b.y);
    if (in <= 0 || out <= 0)
      return {};
    const Point u{(b.x - a.x) / in, (b.y - a.y) / in};
    const Point v{(c.x - b.x) / out, (c.y - b.y) / out};
    const double half = std::max(0.3, (1 + u.x * v.x + u.y * v.y) / 2); // spikes are cut
    inner.push_back({b.x - side * (u.y + v.y) / 2 / half, b.y + side * (u.x + v.x) / 2 / half});
  }
  const bool sameWay = signedArea(inner) * signedArea(outline) > 0;
  const bool within =
      std::ranges::all_of(inner, [&outline](Point p) { return inside(outline, p); });
  return sameWay && within && outlineProblem(inner).empty() ? inner : Polygon{};
}

} // namespace

double Hill::heightAt(Point at) const {
  if (run <= 0)
    return base + rise;
  double nearest = run;
  for (std::size_t i = 0; i < foot.size(); ++i)
    nearest = std::min(nearest, distanceToEdge(at, foot[i], foot[(i + 1) % foot.size()]));
  return base + rise * nearest / run;
}

Hill makeHill(const Polygon& foot, double base, double rise, double run) {
  Hill hill{-1, 1, foot, foot, base, rise, 0};
  for (int i = 0; i < kNarrowings && hill.run == 0; ++i, run /= 2)
    if (Polygon top = setBack(foot, run); !top.empty()) {
      hill.top = std::move(top);
      hill.run = run;
    }
  return hill;
}

bool isHill(const Shape& shape) {
  return shape.height > 0 && !shape.outline && shape.points.size() >= 3;
}

bool isWater(const Shape& shape) {
  constexpr int kClearly = 24;
  return !shape.outline && shape.color.b > shape.color.r + kClearly &&
         shape.color.b > shape.color.g + kClearly / 3;
}

Hill hillOf(const Layout& layout, const Shape& shape) {
  Hill hill = makeHill(shape.points, layout.levelHeight(shape.level), shape.height,
                       kSideShare * shape.height);
  hill.shape = shape.id;
  hill.level = shape.level;
  return hill;
}

Grounds::Grounds(const Layout& layout) {
  const PlanSettings& settings = layout.settings();
  if (settings.baseboard.size() >= 3)
    board_ = settings.baseboard;
  for (const Level& level : settings.levels) {
    decks_.push_back({level.id, level.height});
    if (level.outline.size() >= 3)
      plates_.push_back({level.id, level.height, level.outline});
  }
  for (const Shape& shape : layout.content().shapes)
    if (isHill(shape))
      hills_.push_back(hillOf(layout, shape));
}

Ground Grounds::below(Point at, double height) const {
  Ground found;
  const auto take = [&](GroundKind kind, std::int32_t id, double ground) {
    if (ground <= height + kTouch && (found.kind == GroundKind::None || ground > found.height))
      found = {kind, id, ground};
  };
  if (board_.empty() || inside(board_, at) || nearOutline(board_, at, kTouch))
    take(GroundKind::Board, -1, 0);
  for (const Plate& plate : plates_)
    if (inside(plate.outline, at) || nearOutline(plate.outline, at, kTouch))
      take(GroundKind::Plate, plate.level, plate.height);
  for (const Hill& hill : hills_)
    if (inside(hill.foot, at))
      take(GroundKind::Hill, hill.shape, hill.heightAt(at));
  return found;
}

double Grounds::standing(Point at, std::int32_t level) const {
  const auto deck = std::ranges::find(decks_, level, &Deck::level);
  double height = deck == decks_.end() ? 0 : deck->height;
  const auto plate = std::ranges::find(plates_, level, &Plate::level);
  if (plate != plates_.end() && !inside(plate->outline, at))
    if (const Ground ground = below(at, height); ground.kind != GroundKind::None)
      height = ground.height;
  for (const Hill& hill : hills_)
    if (hill.level == level && inside(hill.foot, at))
      height = std::max(height, hill.heightAt(at));
  return height;
}

} // namespace trassix
