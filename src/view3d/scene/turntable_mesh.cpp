#include "geometry/pose.h"
#include "view3d/scene/track_mesh.h"

#include <cmath>

namespace trassix {

namespace {

constexpr Color kRim{150, 144, 134};
constexpr Color kFloor{104, 100, 94};
constexpr Color kGirder{84, 98, 92};
constexpr Color kPlanks{126, 104, 80};
constexpr Color kRail{188, 188, 186};
constexpr Color kCabin{170, 150, 112};

Polygon circle(double radius, int sides) {
  Polygon points;
  for (int i = 0; i < sides; ++i) {
    const double t = 2 * kPi * i / sides;
    points.push_back({radius * std::cos(t), radius * std::sin(t)});
  }
  return points;
}

void addBridgeOfTable(MeshBuilder& builder, const TurntableShape& shape, bool fine) {
  const TrackSection& s = shape.section;
  const double reach = shape.pitRadius - s.gauge * 0.1;
  const double half = s.gauge * 0.95;
  builder.box({-reach, -half, s.railFoot - s.gauge * 0.4}, {reach, half, s.railFoot}, kGirder,
              kPlanks);
  const double w = s.railWidth / 2;
  for (const double y : {-s.gauge / 2, s.gauge / 2})
    builder.box({-reach, y - w, s.railFoot}, {reach, y + w, s.railTop}, kRail);
  if (!fine)
    return;
  for (const double y : {-half, half}) {
    const double top = s.railTop + s.gauge * 0.7;
    builder.bar({-reach, y, top}, {reach, y, top}, s.gauge * 0.06, kGirder);
    const int posts = 8;
    for (int i = 0; i <= posts; ++i) {
      const double x = -reach + 2 * reach * i / posts;
      builder.bar({x, y, s.railFoot}, {x, y, top}, s.gauge * 0.06, kGirder);
    }
  }
}

} // namespace

void addTurntable(MeshBuilder& builder, const TurntableShape& shape, Detail detail) {
  const int sides = detail == Detail::Near ? 64 : 24;
  const TrackSection& s = shape.section;
  const Polygon pit = circle(shape.pitRadius, sides);
  const Polygon outer = circle(shape.outerRadius, sides);
  builder.area(pit, s.bedTop * 0.1, kFloor);
  builder.skirt(outer, 0, outer, s.bedTop, shaded(kRim, 0.9));
  builder.skirt(outer, s.bedTop, pit, s.bedTop, kRim);
  for (std::size_t i = 0; i < pit.size(); ++i) { // the wall of the pit is seen from within
    const Point a = pit[i];
    const Point b = pit[(i + 1) % pit.size()];
    builder.quad({b.x, b.y, 0}, {a.x, a.y, 0}, {a.x, a.y, s.bedTop}, {b.x, b.y, s.bedTop},
                 shaded(kRim, 0.7));
  }
  addBridgeOfTable(builder, shape, detail == Detail::Near);
  const double g = s.gauge;
  const double roof = s.railFoot + 2.4 * g;
  const double x = shape.pitRadius * 0.6;
  builder.box({x, g * 1.0, s.railFoot}, {x + 1.4 * g, g * 2.1, roof}, kCabin);
  builder.box({x - g * 0.1, g * 0.9, roof}, {x + 1.5 * g, g * 2.2, roof + g * 0.15}, {96, 70, 60});
}

} // namespace trassix
