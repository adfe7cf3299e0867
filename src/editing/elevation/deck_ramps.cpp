#include "editing/elevation/deck_ramps.h"

#include "document/layout.h"
#include "document/plan_content.h"
#include "editing/elevation/train_way.h"
#include "editing/joining/joining.h"
#include "editing/track/connector_geometry.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <unordered_set>

namespace trassix {

namespace {

constexpr double kRounding = 1e-6; // mm

bool isRamp(const PlacedPiece& piece) {
  return isGraded(piece) && takesGrade(piece) && definitionOf(piece)->connectors.size() == 2;
}

/// The ends by which a train enters the pieces of a stretch.
using Stretch = std::vector<TrackEnd>;

TrackEnd farEnd(TrackEnd entered) {
  return {entered.piece, 1 - entered.connector};
}

/// From a piece of the stretch to its end.
void followOn(const Layout& layout, Stretch& stretch, std::unordered_set<std::int32_t>& met) {
  for (TrackEnd next = beyond(layout, farEnd(stretch.back()));
       next.piece != -1 && isRamp(*layout.findPiece(next.piece)) && met.insert(next.piece).second;
       next = beyond(layout, farEnd(next)))
    stretch.push_back(next);
}

/// The whole stretch around a piece, from end to end.
Stretch stretchAround(const Layout& layout, std::int32_t piece,
                      std::unordered_set<std::int32_t>& met) {
  met.insert(piece);
  Stretch back{{piece, 1}};
  followOn(layout, back, met);
  Stretch stretch;
  for (auto end = back.rbegin(); end != back.rend(); ++end)
    stretch.push_back(farEnd(*end));
  followOn(layout, stretch, met);
  return stretch;
}

class Decks {
 public:
  Decks(const Layout& layout, const std::unordered_map<std::int32_t, double>& rises, double limit)
      : layout_(layout), rises_(rises), limit_(limit) {}

  DeckPlan plan() {
    std::unordered_set<std::int32_t> met;
    for (const PlacedPiece& piece : layout_.pieces())
      if (isRamp(piece) && !met.contains(piece.id))
        takeUp(stretchAround(layout_, piece.id, met));
    for (const PlacedPiece& piece : layout_.pieces())
      for (std::int32_t i = 0; i < static_cast<std::int32_t>(piece.joints.size()); ++i)
        compare(piece, i);
    return std::move(plan_);
  }

 private:
  double riseOf(std::int32_t piece) const {
    const auto found = rises_.find(piece);
    return found == rises_.end() ? 0 : found->second;
  }
  double riseBeyond(TrackEnd end) const {
    const TrackEnd other = beyond(layout_, end);
    return riseOf(other.piece == -1 ? end.piece : other.piece);
  }
  double runOf(TrackEnd entered) const {
    return runTo(*definitionOf(*layout_.findPiece(entered.piece)), 1);
  }

  void takeUp(const Stretch& stretch) {
    double rise = riseBeyond(stretch.front());
    const double last = riseBeyond(farEnd(stretch.back()));
    if (std::ranges::all_of(stretch, [&](TrackEnd end) { return riseOf(end.piece) == rise; }) &&
        last == rise)
      return;
    double length = 0;
    for (const TrackEnd entered : stretch)
      length += runOf(entered);
    const double change = (last - rise) / length;
    std::vector<PieceHeight> ramp;
    for (const TrackEnd entered : stretch) {
      const PlacedPiece& piece = *layout_.findPiece(entered.piece);
      const PieceDef& definition = *definitionOf(piece);
      const std::int32_t leave = farEnd(entered).connector;
      const double present = slopeOut(piece, definition, leave);
      const double slope = present + change;
      if (std::abs(slope) > std::max(limit_, std::abs(present)) + 1e-9)
        return;
      ramp.push_back(layTowards(piece, definition, entered.connector, leave,
                                endHeight(piece, definition, entered.connector) + rise, slope));
      rise += change * runOf(entered);
    }
    for (const PieceHeight& height : ramp)
      laid_.emplace(height.piece, height);
    plan_.ramps.insert(plan_.ramps.end(), ramp.begin(), ramp.end());
  }

  /// mm by which an end comes to lie higher.
  double riseOfEnd(TrackEnd end) const {
    const auto found = laid_.find(end.piece);
    return found == laid_.end()
               ? riseOf(end.piece)
               : trassix::riseOfEnd(*layout_.findPiece(end.piece), found->second, end.connector);
  }

  /// Joints that only one side knows of count too: they block the end.
  void compare(const PlacedPiece& piece, std::int32_t connector) {
    const auto slot = static_cast<std::size_t>(connector);
    const TrackEnd end{piece.id, connector};
    const TrackEnd other{piece.joints[slot].target, piece.joints[slot].tconn};
    if (layout_.findPiece(other.piece) == nullptr ||
        (other < end && joinedPiece(layout_, piece, slot) != nullptr))
      return;
    const double step = riseOfEnd(other) - riseOfEnd(end);
    if (std::abs(step) > kRounding)
      plan_.steps.push_back({end, other, placeOf(piece, connector), step});
  }

  const Layout& layout_;
  const std::unordered_map<std::int32_t, double>& rises_;
  double limit_;
  std::unordered_map<std::int32_t, PieceHeight> laid_;
  DeckPlan plan_;
};

} // namespace

DeckPlan planDecks(const Layout& layout, const std::unordered_map<std::int32_t, double>& rises,
                   double limit) {
  return Decks(layout, rises, limit).plan();
}

} // namespace trassix
