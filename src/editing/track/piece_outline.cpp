#include "editing/track/piece_outline.h"

#include "editing/track/track_geometry.h"
#include "geometry/polygons.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <unordered_map>

namespace trassix {

namespace {

constexpr double kUnknownHalfSize = 15.0; // mm
constexpr int kPitCorners = 48;

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
    return inside(area, local) || nearOutline(area, local, tolerance);
  });
}

bool touches(const PieceOutline& outline, const Pose& pose, const Box& box) {
  return std::any_of(outline.areas.begin(), outline.areas.end(),
                     [&](const Polygon& area) { return touches(placed(area, pose), box); });
}

bool liesIn(const PieceOutline& outline, const Pose& pose, const Box& box) {
  return std::all_of(outline.areas.begin(), outline.areas.end(),
                     [&](const Polygon& area) { return liesIn(placed(area, pose), box); });
}

Box boundsOf(const PieceOutline& outline, const Pose& pose) {
  const Box& box = outline.box;
  return around({placed(
      {{box.minX, box.minY}, {box.maxX, box.minY}, {box.maxX, box.maxY}, {box.minX, box.maxY}},
      pose)});
}

} // namespace trassix
