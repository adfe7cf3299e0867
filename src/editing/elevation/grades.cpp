#include "editing/elevation/grades.h"

#include "catalog/plain_track.h"
#include "geometry/pose.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace trassix {

namespace {

double resistanceRadius(TrackSystem system) {
  switch (system) {
  case TrackSystem::ZTrack:
    return 3.21;
  case TrackSystem::Gauge1:
    return 22.1;
  default:
    return 8.13;
  }
}

double lengthOver(const Route& route, const RouteSegment& segment) {
  return routeLength({route.from, route.to, {segment}});
}

} // namespace

GradeBand gradeBand(double slope) {
  constexpr double kRounding = 1e-9;
  const double steep = std::abs(slope) - kRounding;
  return steep <= kComfortableSlope ? GradeBand::Comfortable
         : steep <= kCautionSlope   ? GradeBand::Caution
         : steep <= kSteepestSlope  ? GradeBand::Steep
                                    : GradeBand::TooSteep;
}

double easingLength(TrackSystem system) {
  switch (system) {
  case TrackSystem::ZTrack:
    return 75;
  case TrackSystem::Gauge1:
    return 490;
  default:
    return 180;
  }
}

double curveResistance(const PieceDef& definition, const Route& route) {
  const double length = routeLength(route);
  double resistance = 0;
  for (const RouteSegment& segment : route.segments) {
    if (std::holds_alternative<LineSegment>(segment))
      continue;
    const auto* arc = std::get_if<ArcSegment>(&segment);
    const double radius = arc != nullptr ? arc->radius : definition.radius;
    if (radius > 0 && length > 0)
      resistance += lengthOver(route, segment) / length / radius;
  }
  return resistance * resistanceRadius(definition.system);
}

double curveResistance(const PieceDef& definition, std::int32_t enter, std::int32_t leave) {
  for (const Route& route : routesOf(definition))
    if ((route.from == enter && route.to == leave) || (route.from == leave && route.to == enter))
      return curveResistance(definition, route);
  return 0;
}

double GradeValue::slope() const {
  switch (unit) {
  case Unit::Percent:
    return value / 100;
  case Unit::Degrees:
    return std::abs(value) < 90 ? std::sin(toRadians(value))
                                : std::numeric_limits<double>::infinity();
  case Unit::Rise:
    return length > 0 ? value / length : std::numeric_limits<double>::infinity();
  }
  return 0;
}

double degreesOf(double slope) {
  return toDegrees(std::asin(slope));
}

double percentOf(double slope) {
  return slope * 100;
}

const PieceDef* usualStraight(TrackSystem system) {
  const std::vector<PlainStraight> straights = plainStraights(system); // the longest first
  const auto usual = std::ranges::find_if(straights, [system](const PlainStraight& straight) {
    return straight.length <= 1.1 * easingLength(system);
  });
  return usual == straights.end() ? nullptr : usual->piece;
}

} // namespace trassix
