// Angles, and frames that lie turned in the plan.
//
//   +---> +x      Layout frame: x to the right, y downwards, as the plan is drawn.
//   |   \         Positive angles turn from +x towards +y, clockwise on the screen.
//   v +y \ +45    Lengths in mm, headings in degrees, normalised to [0, 360).
#pragma once

#include "geometry/point.h"

namespace trassix {

inline constexpr double kPi = 3.141592653589793;

constexpr double toRadians(double degrees) {
  constexpr double kHuge = 1e300; // from here on the product might be infinite
  return degrees < kHuge && degrees > -kHuge ? degrees * kPi / 180.0 : degrees / 180.0 * kPi;
}

constexpr double toDegrees(double radians) {
  return radians * 180.0 / kPi;
}

/// Adds or subtracts 360 until the value lies in [0, 360). Values that are not finite come back as
/// 0.
double normaliseHeading(double degrees);

/// The angle between two headings, folded into [0, 180].
double headingDifference(double a, double b);

/// Position and rotation of a frame of its own, such as a piece's, in the layout.
struct Pose {
  double x = 0;
  double y = 0;
  double heading = 0;

  bool operator==(const Pose&) const = default;
};

/// Whether what goes from one pose to the other stays where it is, but for rounding.
bool isStill(const Pose& from, const Pose& to);

/// A point of the frame in layout coordinates.
Point toWorld(const Pose& pose, Point local);

/// The same for the many points of one frame.
class PoseFrame {
 public:
  explicit PoseFrame(const Pose& pose);
  Point operator()(Point local) const {
    return {x_ + local.x * cos_ - local.y * sin_, y_ + local.x * sin_ + local.y * cos_};
  }

 private:
  double x_, y_, cos_, sin_;
};

/// Turns by `to.heading` and shifts so that the point `from` lands at `to`.
struct RigidMotion {
  Point from;
  Pose to;

  Point operator()(Point p) const { return toWorld(to, {p.x - from.x, p.y - from.y}); }
  Pose operator()(const Pose& pose) const {
    const Point at = (*this)(Point{pose.x, pose.y});
    return {at.x, at.y, normaliseHeading(pose.heading + to.heading)};
  }
};

} // namespace trassix
