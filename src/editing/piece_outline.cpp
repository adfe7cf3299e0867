#include "editing/piece_outline.h"

#include "editing/track_geometry.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <unordered_map>

namespace trassix {

namespace {

constexpr double kUnknownHalfSize = 15.0; // mm
constexpr int kPitCorners = 48;

using Polygon = std::vector<Point>;

template <class Visit>
void visitEdges(const Polygon& polygon, Visit visit) {
  for (std::size_t i = 0, before = polygon.size() - 1; i < polygon.size(); before = i++)
    visit(polygon[before], polygon[i]);
}

bool inside(const Polygon& polygon, Point at) {
  bool in = false;
  visitEdges(polygon, [&](Point a, Point b) {
    if ((a.y > at.y) != (b.y > at.y) && at.x < (b.x - a.x) * (at.y - a.y) / (b.y - a.y) + a.x)
      in = !in;
  });
  return in;
}

double distanceToEdge(Point at, Point a, Point b) {
  const double dx = b.x - a.x;
  const double dy = b.y - a.y;
  const double squared = dx * dx + dy * dy;
  const double t =
      squared > 0 ? std::clamp(((at.x - a.x) * dx + (at.y - a.y) * dy) / squared, 0.0, 1.0) : 0.0;
  return std::hypot(at.x - a.x - t * dx, at.y - a.y - t * dy);
}

bool holds(const Box& box, Point p) {
  return p.x >= box.minX && p.x <= box.maxX && p.y >= box.minY && p.y <= box.maxY;
}

/// Clips the edge by the four sides of the box and sees whether anything is left.
bool edgeTouches(Point a, Point b, const Box& box) {
  double from = 0;
  double to = 1;
  const auto clip = [&](double start, double way, double low, double high) {
    if (way == 0)
      return start >= low && start <= high;
    const double first = (low - start) / way;
    const double second = (high - start) / way;
    from = std::max(from, std::min(first, second));
    to = std::min(to, std::max(first, second));
    return from <= to;
  };
  return clip(a.x, b.x - a.x, box.minX, box.maxX) && clip(a.y, b.y - a.y, box.minY, box.maxY);
}

Point toLocal(const Pose& pose, Point world) {
  const double radians = toRadians(pose.heading);
  const double c = std::cos(radians);
  const double s = std::sin(radians);
  const double dx = world.x - pose.x;
  const double dy = world.y - pose.y;
  return {dx * c + dy * s, dy * c - dx * s};
}

Polygon placed(const Polygon& polygon, const Pose& pose) {
  const double c = std::cos(toRadians(pose.heading));
  const double s = std::sin(toRadians(pose.heading));
  Polygon world;
  world.reserve(polygon.size());
  for (const Point& p : polygon)
    world.push_back({pose.x + p.x * c - p.y * s, pose.y + p.x * s + p.y * c});
  return world;
}

Box around(const std::vector<Polygon>& polygons) {
  constexpr double kFar = std::numeric_limits<double>::max();
  Box box{kFar, kFar, -kFar, -kFar};
  for (const Polygon& polygon : polygons)
    for (const Point& p : polygon)
      box = {std::min(box.minX, p.x), std::min(box.minY, p.y), std::max(box.maxX, p.x),
             std::max(box.maxY, p.y)};
  return polygons.empty() ? Box{} : box;
}

PieceOutline deriveOutline(const PieceDef* definition) {
  PieceOutline outline;
  if (definition == nullptr) {
    const double h = kUnknownHalfSize;
    outline.areas = {{{-h, -h}, {h, -h}, {h, h}, {-h, h}}};
  } else {
    outline.areas = trackGeometryOf(*definition).beds;
  }
  if (definition != nullptr && definition->kind == PieceKind::Turntable) {
    const double radius = std::max(definition->length / 2, definition->radius);
    Polygon pit;
    for (int i = 0; i < kPitCorners; ++i) {
      const double angle = 2 * kPi * i / kPitCorners;
      pit.push_back({radius * std::cos(angle), radius * std::sin(angle)});
    }
    outline.areas = {std::move(pit)};
  }
  outline.box = around(outline.areas);
  return outline;
}

} // namespace

const PieceOutline& outlineOf(const PieceDef* definition) {
  static std::unordered_map<const PieceDef*, PieceOutline> known;
  const auto [entry, isNew] = known.try_emplace(definition);
  if (isNew)
    entry->second = deriveOutline(definition);
  return entry->second;
}

bool covers(const PieceOutline& outline, const Pose& pose, Point at, double tolerance) {
  const Point local = toLocal(pose, at);
  const Box& box = outline.box;
  if (!holds(
          {box.minX - tolerance, box.minY - tolerance, box.maxX + tolerance, box.maxY + tolerance},
          local))
    return false;
  return std::any_of(outline.areas.begin(), outline.areas.end(), [&](const Polygon& area) {
    bool near = inside(area, local);
    visitEdges(area,
               [&](Point a, Point b) { near = near || distanceToEdge(local, a, b) <= tolerance; });
    return near;
  });
}

bool touches(const PieceOutline& outline, const Pose& pose, const Box& box) {
  return std::any_of(outline.areas.begin(), outline.areas.end(), [&](const Polygon& area) {
    const Polygon world = placed(area, pose);
    bool meets = inside(world, {box.minX, box.minY}); // the box lies within the area
    visitEdges(world, [&](Point a, Point b) { meets = meets || edgeTouches(a, b, box); });
    return meets;
  });
}

bool liesIn(const PieceOutline& outline, const Pose& pose, const Box& box) {
  return std::all_of(outline.areas.begin(), outline.areas.end(), [&](const Polygon& area) {
    const Polygon world = placed(area, pose);
    return std::all_of(world.begin(), world.end(), [&](Point p) { return holds(box, p); });
  });
}

Box boundsOf(const PieceOutline& outline, const Pose& pose) {
  const Box& box = outline.box;
  return around({placed(
      {{box.minX, box.minY}, {box.maxX, box.minY}, {box.maxX, box.maxY}, {box.minX, box.maxY}},
      pose)});
}

} // namespace trassix
