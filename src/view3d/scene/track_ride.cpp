#include "view3d/scene/track_ride.h"

#include "catalog/scenery_catalog.h"
#include "document/layout.h"
#include "document/plan_content.h"
#include "editing/elevation/end_heights.h"
#include "editing/elevation/train_way.h"
#include "editing/track/connector_geometry.h"
#include "editing/track/routes.h"
#include "editing/track/track_geometry.h"
#include "editing/tunnels/tunnel_facts.h"
#include "view3d/scene/track_mesh.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace trassix {

namespace {

constexpr double kEyeHeight = 2.6; // gauges above the rails: a driver's
constexpr double kChordPlay = 0.02;
constexpr double kNose = 3;     // gauges from the eyes to what stands at the end of a track
constexpr double kDaylight = 9; // gauges that it comes into a tunnel
constexpr double kEasing = 50;  // mm before and after a joint over which the view tilts

RideBranch mirrored(RideBranch branch) {
  return branch == RideBranch::Left    ? RideBranch::Right
         : branch == RideBranch::Right ? RideBranch::Left
                                       : branch;
}

const PieceDef* definitionIn(const Layout& layout, std::int32_t id) {
  const PlacedPiece* piece = layout.findPiece(id);
  return piece == nullptr ? nullptr : definitionOf(*piece);
}

/// The route between two ends in either direction; null when there is none.
const Route* routeBetween(const PieceDef& definition, std::int32_t from, std::int32_t to) {
  for (const Route& route : routesOf(definition))
    if ((route.from == from && route.to == to) || (route.from == to && route.to == from))
      return &route;
  return nullptr;
}

/// How far to the right a train turns that goes from one end to another; degrees.
double turnOf(const PieceDef& definition, std::int32_t from, std::int32_t to) {
  if (from == -1 || to == -1)
    return 0;
  const auto heading = [&](std::int32_t end) {
    return definition.connectors[static_cast<std::size_t>(end)].heading;
  };
  return std::remainder(heading(to) - heading(from) - 180, 360.0);
}

} // namespace

double modelSpeed(TrackSystem system, double kilometresPerHour) {
  const Gauge gauge = gaugeOf(system);
  const double scale = gauge == Gauge::Z ? 220 : gauge == Gauge::Gauge1 ? 32 : 87;
  return kilometresPerHour * 1e6 / 3600 / scale;
}

TrackRide::TrackRide(const Layout& layout, std::int32_t piece) {
  const PieceDef* definition = definitionIn(layout, piece);
  if (definition == nullptr || routesOf(*definition).empty())
    return;
  piece_ = piece;
  from_ = routesOf(*definition).front().from;
  to_ = routesOf(*definition).front().to;
  along_ = length(layout) / 2;
}

bool TrackRide::isOver(const Layout& layout) const {
  const PieceDef* definition = definitionIn(layout, piece_);
  return definition == nullptr || routeBetween(*definition, from_, to_) == nullptr;
}

double TrackRide::length(const Layout& layout) const {
  return routeLength(*routeBetween(*definitionIn(layout, piece_), from_, to_));
}

double TrackRide::reach(const Layout& layout) const {
  const double whole = length(layout);
  if (to_ != -1)
    return whole;
  const double nose = kNose * trackGauge(definitionIn(layout, piece_)->system);
  return std::max(whole - nose, std::min(along_, whole / 2));
}

double TrackRide::slope(const Layout& layout) const {
  const PieceDef& definition = *definitionIn(layout, piece_);
  if (from_ == -1 || to_ == -1)
    return 0;
  const PlacedPiece& piece = *layout.findPiece(piece_);
  return (endHeight(piece, definition, to_) - endHeight(piece, definition, from_)) / length(layout);
}

double TrackRide::tilt(const Layout& layout) const {
  const double own = slope(layout);
  const double ahead = length(layout) - along_;
  const bool leaving = ahead < along_;
  const double far = leaving ? ahead : along_;
  TrackRide next = *this;
  if (!leaving)
    next.turnRound(layout);
  if (far >= kEasing || !next.cross(layout))
    return own;
  const double other = leaving ? next.slope(layout) : -next.slope(layout);
  return own + (other - own) * (1 - far / kEasing) / 2;
}

double TrackRide::darkness(const Layout& layout) const {
  if (tunnelOver(layout, piece_) == nullptr)
    return 0;
  const double daylight = kDaylight * trackGauge(definitionIn(layout, piece_)->system);
  double dark = 1;
  for (const bool ahead : {true, false}) {
    TrackRide end = *this;
    if (!ahead)
      end.turnRound(layout);
    const double far = length(layout) - end.along_;
    if (!end.cross(layout) || tunnelOver(layout, end.piece_) == nullptr)
      dark = std::min(dark, far / daylight);
  }
  return dark;
}

void TrackRide::turnRound(const Layout& layout) {
  if (isOver(layout))
    return;
  along_ = length(layout) - along_;
  std::swap(from_, to_);
}

bool TrackRide::advance(const Layout& layout, double way) {
  if (isOver(layout))
    return false;
  if (way < 0) { // left stays where the eyes see it
    turnRound(layout);
    branch_ = mirrored(branch_);
    const bool went = advance(layout, -way);
    branch_ = mirrored(branch_);
    turnRound(layout);
    return went;
  }
  along_ += way;
  while (along_ > reach(layout)) {
    const double beyondIt = along_ - reach(layout);
    along_ = reach(layout);
    if (!cross(layout))
      return false;
    along_ = std::min(beyondIt, 1e6);
  }
  return true;
}

bool TrackRide::cross(const Layout& layout) {
  if (to_ == -1)
    return false;
  const TrackEnd next = beyond(layout, {piece_, to_});
  const PieceDef* definition = definitionIn(layout, next.piece);
  if (definition == nullptr || definition->kind == PieceKind::Turntable)
    return false;
  enter(layout, next.piece, next.connector);
  return true;
}

void TrackRide::enter(const Layout& layout, std::int32_t piece, std::int32_t connector) {
  const PieceDef& definition = *definitionIn(layout, piece);
  std::vector<std::int32_t> exits;
  for (const Route& route : routesOf(definition))
    if (route.from == connector)
      exits.push_back(route.to);
    else if (route.to == connector)
      exits.push_back(route.from);
  piece_ = piece;
  from_ = connector;
  to_ = exits.front();
  if (exits.size() < 2)
    return;
  const auto turn = [&](std::int32_t exit) { return turnOf(definition, connector, exit); };
  if (branch_ == RideBranch::Left)
    to_ = *std::ranges::min_element(exits, {}, turn);
  else if (branch_ == RideBranch::Right)
    to_ = *std::ranges::max_element(exits, {}, turn);
  branch_ = RideBranch::Straight;
}

RideView TrackRide::view(const Layout& layout) const {
  RideView view{{}, {1, 0, 0}, false};
  if (isOver(layout))
    return view;
  const PlacedPiece& piece = *layout.findPiece(piece_);
  const PieceDef& definition = *definitionOf(piece);
  const Route& route = *routeBetween(definition, from_, to_);
  const bool backwards = route.from != from_;
  const std::vector<RoutePoint> line = sampleRoute(route, kChordPlay);
  const RoutePoint at = pointAlong(line, backwards ? line.back().along - along_ : along_);
  const Point place = toWorld(poseOf(piece), at.position);
  const double start = endHeight(piece, definition, std::max(route.from, 0));
  const double end = route.to == -1 ? start : endHeight(piece, definition, route.to);
  const double rise = (end - start) / line.back().along;
  const TrackSection section = trackSection(definition.system);
  view.eye = {place.x, -place.y,
              start + rise * at.along + section.railTop + kEyeHeight * section.gauge};
  const double heading = toRadians(-(piece.heading + at.heading));
  const double sign = backwards ? -1 : 1;
  view.forward = unit({sign * std::cos(heading), sign * std::sin(heading), tilt(layout)});
  view.dark = darkness(layout);
  return view;
}

} // namespace trassix
