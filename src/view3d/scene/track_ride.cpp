#include "view3d/scene/track_ride.h"

#include "catalog/scenery_catalog.h"
#include "document/layout.h"
#include "document/plan_content.h"
#include "editing/elevation/end_heights.h"
#include "editing/elevation/train_way.h"
#include "editing/track/connector_geometry.h"
#include "editing/track/routes.h"
#include "editing/tunnels/tunnel_facts.h"
#include "view3d/scene/track_mesh.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace trassix {

namespace {

constexpr double kEyeHeight = 2.6; // gauges above the rails: a driver's
constexpr double kChordPlay = 0.02;

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

void TrackRide::turnRound(const Layout& layout) {
  if (isOver(layout))
    return;
  along_ = length(layout) - along_;
  std::swap(from_, to_);
}

bool TrackRide::advance(const Layout& layout, double way) {
  if (isOver(layout))
    return false;
  if (way < 0) {
    turnRound(layout);
    const bool went = advance(layout, -way);
    turnRound(layout);
    return went;
  }
  along_ += way;
  while (along_ > length(layout)) {
    const double beyondIt = along_ - length(layout);
    along_ = length(layout);
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
  const double slope = (end - start) / line.back().along;
  const TrackSection section = trackSection(definition.system);
  view.eye = {place.x, -place.y,
              start + slope * at.along + section.railTop + kEyeHeight * section.gauge};
  const double heading = toRadians(-(piece.heading + at.heading));
  const double sign = backwards ? -1 : 1;
  view.forward = unit({sign * std::cos(heading), sign * std::sin(heading), sign * slope});
  view.inTunnel = tunnelOver(layout, piece_) != nullptr;
  return view;
}

} // namespace trassix
