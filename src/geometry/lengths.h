// How far anything can lie or reach. Readers take more for damage, and no edit goes beyond, so that
// arithmetic on coordinates never overflows.
#pragma once

#include "geometry/point.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace trassix {

inline constexpr double kFarthest = 1'000'000; ///< mm from the origin, also up and down

inline bool isLength(double mm) {
  return std::abs(mm) <= kFarthest; // false for NaN
}

inline bool inLimits(Point p) {
  return isLength(p.x) && isLength(p.y);
}

inline bool inLimits(const std::vector<Point>& points) {
  return std::ranges::all_of(points, [](Point p) { return inLimits(p); });
}

} // namespace trassix
