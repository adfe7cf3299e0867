#include "wizards/bridge/bridge_checks.h"

#include "document/plan_content.h"
#include "editing/elevation/crossings.h"
#include "editing/placing/placing.h"
#include "editing/track/connector_geometry.h"
#include "measures/measure_format.h"
#include "texts/texts.h"

#include <algorithm>
#include <cmath>
#include <unordered_set>
#include <utility>

namespace trassix {

namespace {

constexpr double kRoundedUp = 0.0004;   // of a slope, to be enough in tenths of a percent
constexpr double kPlay = 0.05;          // mm
constexpr double kWaterShare = 1.0 / 3; // of the clearance, over water

std::string placeOn(Point at) {
  return tr("x %1%, y %2% mm", {std::llround(at.x), std::llround(at.y)});
}

/// Pieces that are new, or lie otherwise than before.
std::unordered_set<std::int32_t> changedPieces(const Layout& before, const Layout& after) {
  std::unordered_set<std::int32_t> changed;
  for (const PlacedPiece& piece : after.pieces()) {
    const PlacedPiece* old = before.findPiece(piece.id);
    if (old == nullptr || old->cat != piece.cat || old->z != piece.z || old->grade != piece.grade ||
        old->rev != piece.rev)
      changed.insert(piece.id);
  }
  return changed;
}

bool leavesPlan(const Layout& before, const Layout& after) {
  return std::ranges::any_of(after.pieces(), [&before](const PlacedPiece& piece) {
    return before.findPiece(piece.id) == nullptr &&
           !fitsPlan(*definitionOf(piece), poseOf(piece), piece.z);
  });
}

std::optional<Notice> lowCrossing(const Layout& before, const BridgeDraft& draft) {
  const std::unordered_set<std::int32_t> changed = changedPieces(before, draft.layout);
  const std::int32_t units = before.settings().units;
  for (const TrackCrossing& crossing : trackCrossings(draft.layout)) {
    if (!crossing.tooLow() ||
        (!changed.contains(crossing.lower.piece) && !changed.contains(crossing.upper.piece)))
      continue;
    const PlacedPiece& upper = *draft.layout.findPiece(crossing.upper.piece);
    const PlacedPiece& lower = *draft.layout.findPiece(crossing.lower.piece);
    return bridgeRefusal(tr("%1% would lead over %2% at %3% with %4% between them, and trains need "
                            "%5%. Move one of them, or choose a steeper limit.",
                            {upper.cat, lower.cat, placeOn(crossing.at),
                             formatLength(std::max(0.0, crossing.clearance), units),
                             formatLength(crossing.least, units)}));
  }
  return std::nullopt;
}

} // namespace

Notice rampTooShort(const HumpRamp& ramp, Point foot, double limit, std::int32_t units) {
  const auto percent = [](double slope) { return formatFixed(percentOf(slope), 1); };
  std::string text =
      tr("The ramp from %1% to the bridge is too short: there are %2% of way, and about %3% are "
         "missing at %4% %%.",
         {placeOn(foot), formatLength(ramp.available, units), formatLength(ramp.missing, units),
          percent(limit)});
  const bool another = ramp.bestLimit > 0 && ramp.bestLimit <= kMostBridgeLimit;
  text.append(" ").append(
      another ? tr("A limit of %1% %% would do.", {percent(ramp.bestLimit + kRoundedUp)})
              : tr("Not even %1% %% would do: make the way longer, or ask for less clearance.",
                   {percent(kMostBridgeLimit)}));
  return bridgeRefusal(std::move(text));
}

double leastOver(const CrossedZone& zone, const BridgeTask& task) {
  const double clearance = clearanceOf(task, zone.system);
  return zone.thing.kind == CrossedThing::Kind::Water ? clearance * kWaterShare : clearance;
}

double neededOver(const CrossedZone& zone, const BridgeTask& task, TrackSystem system,
                  bool portal) {
  const double underside = portal ? std::max(kDeckThickness, portalBeam(system)) : kDeckThickness;
  return zone.rails() + leastOver(zone, task) + underside;
}

double clearanceUnder(const BridgeDraft& draft, const CrossedZone& zone) {
  const double beam = std::max(0.0, portalBeam(zone.system) - kDeckThickness);
  const double reach = zone.thing.halfWidth + longestSpan(zone.system) / 4;
  const bool framed = std::ranges::any_of(draft.supports.supports, [&](const Support& support) {
    return support.kind == SupportKind::Portal &&
           std::hypot(support.pose.x - zone.thing.at.x, support.pose.y - zone.thing.at.y) < reach &&
           std::ranges::find(draft.site.way.stretches, support.piece, &WayStretch::piece) !=
               draft.site.way.stretches.end();
  });
  return clearanceOver(zone, draft.line) - (framed ? beam : 0);
}

BridgeFault faultOf(const Layout& before, BridgeDraft& draft, const BridgeTask& task) {
  BridgeFault fault;
  if (leavesPlan(before, draft.layout)) {
    fault.refusal = beyondPlan();
    return fault;
  }
  const std::int32_t units = before.settings().units;
  draft.supports = supportsOf(draft.layout);
  std::vector<std::int32_t> own;
  const auto isOwn = [&own](std::int32_t id) { return std::ranges::find(own, id) != own.end(); };
  for (std::size_t i = draft.from; i < draft.to; ++i)
    own.push_back(draft.site.way.stretches[i].piece);
  fault.wantsPortal = std::ranges::any_of(draft.supports.supports, [&](const Support& support) {
    return support.kind == SupportKind::Portal && isOwn(support.piece);
  });
  for (const CrossedZone& zone : draft.zones) {
    const double clearance = clearanceUnder(draft, zone);
    const double least = leastOver(zone, task);
    // Water that is painted on the board lies as high as track that is not lifted.
    const bool valley =
        task.way == BridgeWay::AsItLies && zone.thing.kind == CrossedThing::Kind::Water;
    if (clearance >= least - kPlay || valley)
      continue;
    fault.refusal = bridgeRefusal(tr(
        "Over %1% at %2% there are %3%, and %4% are asked for: lift the track by %5%, or ask for "
        "less.",
        {zone.thing.name, placeOn(zone.thing.at), formatLength(clearance, units),
         formatLength(least, units), formatLength(least - clearance, units)}));
    return fault;
  }
  fault.refusal = lowCrossing(before, draft);
  if (fault.refusal)
    return fault;
  for (const SupportSpan& span : draft.supports.spans) {
    if (std::ranges::none_of(span.pieces, isOwn) ||
        (span.reason != SupportSpan::Reason::Track && span.reason != SupportSpan::Reason::Road))
      continue;
    const PlacedPiece& piece = *draft.layout.findPiece(span.pieces.front());
    fault.wantsPortal = span.reason == SupportSpan::Reason::Track;
    fault.refusal = bridgeRefusal(tr(
        "No pier finds room under %1% at %2%: %3% of track would lie free, because %4% is in the "
        "way. Choose another span, or move what lies below.",
        {piece.cat, placeOn({piece.x, piece.y}), formatLength(span.length, units),
         fault.wantsPortal ? tr("track") : tr("a road")}));
    return fault;
  }
  return fault;
}

} // namespace trassix
