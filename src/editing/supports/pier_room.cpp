#include "editing/supports/pier_room.h"

#include "catalog/scenery_catalog.h"
#include "document/layout.h"
#include "document/plan_content.h"
#include "editing/elevation/crossings.h"
#include "editing/elevation/end_heights.h"
#include "editing/scenery/scenery_footprint.h"
#include "editing/track/connector_geometry.h"
#include "editing/track/routes.h"
#include "editing/track/track_geometry.h"
#include "editing/tunnels/tunnel_figures.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace trassix {

namespace {

constexpr double kChordPlay = 0.2; // mm

double distanceToBox(const Box& box, Point p) {
  const double dx = std::max({box.minX - p.x, 0.0, p.x - box.maxX});
  const double dy = std::max({box.minY - p.y, 0.0, p.y - box.maxY});
  return std::hypot(dx, dy);
}

std::array<Point, 4> cornersOf(const Box& box) {
  return {{{box.minX, box.minY}, {box.maxX, box.minY}, {box.maxX, box.maxY}, {box.minX, box.maxY}}};
}

/// 0 where the line leads through the box.
double distanceToBox(const Box& box, Point a, Point b) {
  double from = 0;
  double to = 1;
  const auto clip = [&](double start, double step, double least, double most) {
    if (step == 0)
      return start >= least && start <= most;
    const auto [near, far] = std::minmax({(least - start) / step, (most - start) / step});
    from = std::max(from, near);
    to = std::min(to, far);
    return from <= to;
  };
  if (clip(a.x, b.x - a.x, box.minX, box.maxX) && clip(a.y, b.y - a.y, box.minY, box.maxY))
    return 0;
  double nearest = std::min(distanceToBox(box, a), distanceToBox(box, b));
  for (const Point corner : cornersOf(box))
    nearest = std::min(nearest, distanceToEdge(corner, a, b));
  return nearest;
}

double sharpestOf(const Route& route) {
  double radius = 0;
  for (const RouteSegment& segment : route.segments)
    if (const auto* arc = std::get_if<ArcSegment>(&segment))
      radius = radius > 0 ? std::min(radius, arc->radius) : arc->radius;
  return radius;
}

} // namespace

double halfFreeWidth(TrackSystem system) {
  switch (gaugeOf(system)) {
  case Gauge::Z:
    return 10;
  case Gauge::Gauge1:
    return 65;
  case Gauge::H0:
    break;
  }
  return 24;
}

PierRoom::PierRoom(const Layout& layout) {
  for (const PlacedPiece& piece : layout.pieces())
    addTrack(piece);
  const Grounds grounds(layout);
  for (const SceneryItem& item : layout.content().scenery) {
    const SceneryDef* definition = findScenery(item.item);
    if (definition != nullptr && definition->category == SceneryCategory::Road)
      roads_.push_back(
          {sceneryOutline(layout, item), grounds.standing({item.x, item.y}, item.level)});
  }
  std::vector<BoxTree::Entry> entries;
  for (std::uint32_t i = 0; i < reaches_.size(); ++i) {
    const Reach& reach = reaches_[i];
    const auto [minX, maxX] = std::minmax(reach.from.x, reach.to.x);
    const auto [minY, maxY] = std::minmax(reach.from.y, reach.to.y);
    entries.emplace_back(
        Box{minX - reach.half, minY - reach.half, maxX + reach.half, maxY + reach.half}, i);
  }
  tree_ = BoxTree(entries);
}

void PierRoom::addTrack(const PlacedPiece& piece) {
  const PieceDef* definition = definitionOf(piece);
  if (definition == nullptr)
    return;
  if (definition->kind == PieceKind::Turntable)
    return addTurntable(piece);
  const TrackSystem system = definition->system;
  const PoseFrame frame(poseOf(piece));
  for (const Route& route : routesOf(*definition)) {
    const std::vector<RoutePoint> line = sampleRoute(route, kChordPlay, 60);
    const double from = endHeight(piece, *definition, route.from);
    const double to = route.to == -1 ? from : endHeight(piece, *definition, route.to);
    const double half = std::max(halfFreeWidth(system), trackHalfWidth(system)) +
                        sideAddition(system, sharpestOf(route)) + kChordPlay;
    for (std::size_t i = 0; i + 1 < line.size(); ++i) {
      const auto height = [&](std::size_t k) {
        return from + (to - from) * line[k].along / line.back().along;
      };
      const auto [low, high] = std::minmax({height(i), height(i + 1)});
      reaches_.push_back({piece.id, frame(line[i].position), frame(line[i + 1].position), half, low,
                          high + railTop(system) + leastClearance(system)});
    }
  }
}

void PierRoom::addTurntable(const PlacedPiece& piece) {
  const PieceDef& definition = *definitionOf(piece);
  const Point centre{piece.x, piece.y};
  reaches_.push_back({piece.id, centre, centre, trackGeometryOf(definition).radius, piece.z,
                      piece.z + railTop(definition.system) + leastClearance(definition.system)});
}

PierObstacle PierRoom::obstacleAt(const PierSpot& spot,
                                  std::span<const std::int32_t> carried) const {
  const Box body{-spot.along / 2, -spot.across / 2, spot.along / 2, spot.across / 2};
  const Pose& pose = spot.pose;
  const PoseFrame back(Pose{0, 0, -pose.heading});
  const auto local = [&](Point p) { return back({p.x - pose.x, p.y - pose.y}); };
  const auto inTheWay = [&](const Reach& reach) {
    return reach.bottom + kRaised < spot.head && reach.top > spot.foot &&
           std::ranges::find(carried, reach.piece) == carried.end() &&
           distanceToBox(body, local(reach.from), local(reach.to)) < reach.half;
  };
  const double reach = std::hypot(spot.along, spot.across) / 2;
  bool track = false;
  tree_.query(
      {pose.x - reach, pose.y - reach, pose.x + reach, pose.y + reach},
      [&](const BoxTree::Entry& entry) { track = track || inTheWay(reaches_[entry.second]); });
  if (track)
    return PierObstacle::Track;
  const auto onRoad = [&](const Road& road) {
    if (road.height > spot.head - kRaised || road.height < spot.foot - kRaised)
      return false;
    Polygon outline;
    for (const Point p : road.outline)
      outline.push_back(local(p));
    return touches(outline, body);
  };
  return std::ranges::any_of(roads_, onRoad) ? PierObstacle::Road : PierObstacle::None;
}

} // namespace trassix
