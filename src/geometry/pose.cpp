#include "geometry/pose.h"

#include <cmath>

namespace trassix {

namespace {

/// Beyond this, stepping by 360 would take for ever (or never move at all).
constexpr double kSteppedRange = 360.0 * 64;

} // namespace

double normaliseHeading(double degrees) {
  if (!std::isfinite(degrees))
    return 0;
  if (std::abs(degrees) > kSteppedRange)
    degrees = std::fmod(degrees, 360.0);
  while (degrees < 0)
    degrees += 360.0;
  while (degrees >= 360.0)
    degrees -= 360.0;
  return degrees;
}

double headingDifference(double a, double b) {
  const double difference = std::fmod(std::abs(a - b), 360.0);
  return difference > 180.0 ? 360.0 - difference : difference;
}

bool isStill(const Pose& from, const Pose& to) {
  constexpr double kRounding = 1e-6; // mm and degrees
  return std::hypot(to.x - from.x, to.y - from.y) <= kRounding &&
         headingDifference(to.heading, from.heading) <= kRounding;
}

Point toWorld(const Pose& pose, Point local) {
  return PoseFrame(pose)(local);
}

PoseFrame::PoseFrame(const Pose& pose)
    : x_(pose.x), y_(pose.y), cos_(std::cos(toRadians(pose.heading))),
      sin_(std::sin(toRadians(pose.heading))) {}

} // namespace trassix
