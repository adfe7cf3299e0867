#include "editing/helix/helix_plan.h"

#include "document/layout.h"
#include "document/plan_content.h"
#include "editing/elevation/crossings.h"
#include "editing/elevation/end_heights.h"
#include "editing/elevation/grades.h"
#include "editing/track/connector_geometry.h"

#include <algorithm>
#include <cmath>

namespace trassix {

namespace {

HelixTrack trackOf(const HelixPlan& plan, const PieceDef& curve) {
  const bool right = plan.hand == HelixHand::Right;
  HelixTrack track;
  track.enter = right ? 0 : 1; // a curve bends to the right of trains that come in at its end 0
  const auto count = static_cast<std::size_t>(std::lround(plan.kit->turns * 360 / curve.angle));
  const double rise = plan.climb() / static_cast<double>(count);
  const double slope = rise / runTo(curve, 1);
  for (std::size_t i = 0; i < count; ++i) {
    const auto turned = static_cast<double>(right ? i : i + 1) * curve.angle;
    // At the piece's end 0, where trains that go up come in, or leave the other way.
    const double heading =
        right ? plan.centre.heading + turned : plan.centre.heading - turned + 180;
    const Point at = toWorld({plan.centre.x, plan.centre.y, heading}, {0, -curve.radius});
    PlacedPiece piece = pieceAt({at.x, at.y, normaliseHeading(heading)});
    piece.cat = curve.article;
    lay(piece, layTowards(piece, curve, track.enter, 1 - track.enter,
                          plan.height + rise * static_cast<double>(i), slope));
    piece.joints.resize(curve.connectors.size());
    const auto enter = static_cast<std::size_t>(track.enter);
    if (i > 0)
      piece.joints[enter] = {static_cast<std::int32_t>(i - 1), 1 - track.enter};
    if (i + 1 < count)
      piece.joints[1 - enter] = {static_cast<std::int32_t>(i + 1), track.enter};
    track.pieces.push_back(std::move(piece));
  }
  return track;
}

} // namespace

double HelixPlan::slope(bool outer) const {
  const PieceDef& curve = outer ? kit->outermost() : *kit->inner;
  return pitch / (2 * kPi * curve.radius);
}

HelixWish usualHelix(const HelixKit& kit) {
  HelixPlan plan{&kit, HelixHand::Right, leastPitch(kit.system, true), {}, 0};
  if (gradeBand(plan.slope(false)) != GradeBand::Comfortable)
    plan.pitch = leastPitch(kit.system, false);
  return {plan};
}

double leastPitch(TrackSystem system, bool wire) {
  return leastClearance(system, wire) + railTop(system) + kDeckThickness;
}

std::vector<HelixTrack> helixTracks(const HelixPlan& plan) {
  std::vector<HelixTrack> tracks{trackOf(plan, *plan.kit->inner)};
  if (plan.kit->outer != nullptr)
    tracks.push_back(trackOf(plan, *plan.kit->outer));
  return tracks;
}

std::optional<HelixPlan> planOfHelix(const Layout& layout, const Helix& helix) {
  HelixPlan plan;
  plan.kit = findHelixKit(helix.variant);
  const PlacedPiece* bottom = layout.findPiece(helix.bottomR1);
  const PieceDef* curve = bottom == nullptr ? nullptr : definitionOf(*bottom);
  if (plan.kit == nullptr || curve == nullptr || curve->kind != PieceKind::Curve)
    return std::nullopt;
  const double atZero = endHeight(*bottom, *curve, 0);
  const double atOne = endHeight(*bottom, *curve, 1);
  plan.hand = atOne >= atZero ? HelixHand::Right : HelixHand::Left;
  plan.height = std::min(atZero, atOne);
  plan.pitch = std::abs(atOne - atZero) * 360 / curve->angle;
  // Over all its turns what a file rounds counts least.
  const PlacedPiece* top = layout.findPiece(helix.topR1);
  if (const PieceDef* last = top == nullptr ? nullptr : definitionOf(*top))
    plan.pitch = (std::max(endHeight(*top, *last, 0), endHeight(*top, *last, 1)) - plan.height) /
                 plan.kit->turns;
  plan.centre = {helix.cx, helix.cy, helix.heading};
  return plan;
}

} // namespace trassix
