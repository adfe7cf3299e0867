#pragma once

#include <cmath>

namespace trassix {

/// In the frame of the scene: x to the right as on the plan, y to where the plan's y decreases, z
/// up; mm. The plan's y runs downwards on paper, so that seen from above the scene looks like the
/// plan, and is right-handed.
struct Vec3 {
  double x = 0;
  double y = 0;
  double z = 0;

  bool operator==(const Vec3&) const = default;
};

inline Vec3 operator+(Vec3 a, Vec3 b) {
  return {a.x + b.x, a.y + b.y, a.z + b.z};
}
inline Vec3 operator-(Vec3 a, Vec3 b) {
  return {a.x - b.x, a.y - b.y, a.z - b.z};
}
inline Vec3 operator*(double factor, Vec3 v) {
  return {factor * v.x, factor * v.y, factor * v.z};
}
inline double dot(Vec3 a, Vec3 b) {
  return a.x * b.x + a.y * b.y + a.z * b.z;
}
inline Vec3 cross(Vec3 a, Vec3 b) {
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
inline double lengthOf(Vec3 v) {
  return std::sqrt(dot(v, v));
}
/// `v` itself where it has no direction.
inline Vec3 unit(Vec3 v) {
  const double length = lengthOf(v);
  return length > 0 ? (1 / length) * v : v;
}

} // namespace trassix
