#include "editing/profile/profile_content.h"

#include "document/layout.h"
#include "document/plan_content.h"
#include "editing/elevation/grades.h"
#include "editing/elevation/way_handles.h"
#include "editing/track/connector_geometry.h"
#include "editing/track/routes.h"
#include "measures/measure_format.h"
#include "texts/texts.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <optional>
#include <unordered_set>

namespace trassix {

namespace {

using Kind = ProfileMark::Kind;

std::optional<Kind> kindOf(const PieceDef& definition) {
  switch (definition.kind) {
  case PieceKind::TurnoutLeft:
  case PieceKind::TurnoutRight:
  case PieceKind::CurvedTurnout:
  case PieceKind::CurvedTurnoutSpaced:
    return Kind::Turnout;
  case PieceKind::DoubleSlip:
  case PieceKind::Crossing:
    return Kind::Crossing;
  default:
    return std::nullopt;
  }
}

/// One mark for neighbouring stretches that belong together.
template <class Belongs>
void markRanges(const Layout& layout, ProfileContent& content, Kind kind, Belongs belongs) {
  bool before = false;
  for (std::size_t i = 0; i < content.way.stretches.size(); ++i) {
    const bool here = belongs(*layout.findPiece(content.way.stretches[i].piece));
    if (here && before)
      content.marks.back().to = content.along[i + 1];
    else if (here)
      content.marks.push_back({kind, i, content.along[i], content.along[i + 1], false});
    before = here;
  }
}

/// Where the crossed track is on the way, if it is.
std::optional<double> placeOnWay(const ProfileContent& content, const CrossedTrack& track) {
  const std::size_t i = content.stretchOf(track.piece);
  if (i == content.way.stretches.size())
    return std::nullopt;
  const WayStretch& stretch = content.way.stretches[i];
  if (stretch.enter == track.from && stretch.leave == track.to)
    return content.along[i] + track.along;
  if (stretch.enter == track.to && stretch.leave == track.from)
    return content.along[i + 1] - track.along;
  return std::nullopt;
}

/// By how much the track comes to lie higher at the crossing.
double riseThere(const Layout& layout, const CrossedTrack& track, const HeightPlan& plan) {
  const auto laid = std::ranges::find(plan.pieces, track.piece, &PieceHeight::piece);
  const PlacedPiece* piece = layout.findPiece(track.piece);
  if (laid == plan.pieces.end() || piece == nullptr)
    return 0;
  const double from = riseOfEnd(*piece, *laid, track.from);
  for (const Route& route : routesOf(*definitionOf(*piece)))
    if (route.from == track.from && route.to == track.to && route.to != -1)
      return from + (riseOfEnd(*piece, *laid, route.to) - from) * track.along / routeLength(route);
  return from;
}

} // namespace

std::size_t ProfileContent::stretchAt(double distance) const {
  const auto next = std::ranges::upper_bound(along, distance);
  const auto joint = static_cast<std::size_t>(std::distance(along.begin(), next));
  return std::clamp<std::size_t>(joint, 1, std::max<std::size_t>(way.stretches.size(), 1)) - 1;
}

std::size_t ProfileContent::stretchOf(std::int32_t piece) const {
  return static_cast<std::size_t>(std::ranges::find(way.stretches, piece, &WayStretch::piece) -
                                  way.stretches.begin());
}

ProfileContent profileOf(const Layout& layout, const WayChoice& choice,
                         std::span<const TrackCrossing> crossings) {
  ProfileContent content;
  content.way = wayOf(layout, choice);
  if (content.way.empty())
    return content;
  content.round = goesRound(layout, content.way);
  content.along.push_back(0);
  for (const WayStretch& stretch : content.way.stretches)
    content.along.push_back(content.along.back() + stretch.length);

  std::unordered_set<std::int32_t> covered;
  for (const Tunnel& tunnel : layout.content().tunnels)
    covered.insert(tunnel.covers.begin(), tunnel.covers.end());
  markRanges(layout, content, Kind::Tunnel,
             [&](const PlacedPiece& piece) { return covered.contains(piece.id); });
  markRanges(layout, content, Kind::Bridge,
             [](const PlacedPiece& piece) { return definitionOf(piece)->bridge; });
  markRanges(layout, content, Kind::Helix,
             [](const PlacedPiece& piece) { return piece.helix != -1; });
  for (std::size_t i = 0; i < content.way.stretches.size(); ++i)
    if (const auto kind = kindOf(*definitionOf(*layout.findPiece(content.way.stretches[i].piece))))
      content.marks.push_back({*kind, i, content.along[i], content.along[i + 1],
                               hasBranches(layout, choice, content.way, i)});
  for (const TrackCrossing& crossing : crossings) {
    if (const auto along = placeOnWay(content, crossing.lower))
      content.crossings.push_back({crossing, *along, true});
    if (const auto along = placeOnWay(content, crossing.upper))
      content.crossings.push_back({crossing, *along, false});
  }
  return content;
}

double heightAt(const TrainWay& way, const ProfileContent& content, double distance) {
  const std::size_t i = content.stretchAt(distance);
  const WayStretch& stretch = way.stretches[i];
  return stretch.from + (distance - content.along[i]) * stretch.slope();
}

std::string summaryOf(const ProfileContent& content, const TrainWay& way, std::int32_t units) {
  if (content.empty())
    return {};
  double climb = 0;
  double steepest = 0;
  for (const WayStretch& stretch : way.stretches) {
    climb += std::max(stretch.to - stretch.from, 0.0);
    steepest = std::max(steepest, std::abs(stretch.slope()));
  }
  return tr("%1%, %2% up, %3% down, at most %4% %%",
            {formatLength(content.length(), units), formatLength(climb, units),
             formatLength(climb - way.rise(), units), formatFixed(percentOf(steepest), 1)});
}

TrackCrossing crossingAfter(const Layout& layout, const TrackCrossing& crossing,
                            const HeightPlan& plan) {
  TrackCrossing after = crossing;
  after.lower.height += riseThere(layout, crossing.lower, plan);
  after.upper.height += riseThere(layout, crossing.upper, plan);
  const double thickness = crossing.upper.height - crossing.lower.height - crossing.clearance;
  after.clearance = std::abs(after.upper.height - after.lower.height) - thickness;
  return after;
}

} // namespace trassix
