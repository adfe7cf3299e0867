// The numbers that a plan can hold. Readers take others for damage, and no edit goes beyond, so
// that arithmetic on a plan never overflows and what was saved can be loaded.
#pragma once

#include "document/records.h"

#include <cmath>

namespace trassix {

inline constexpr double kFarthest = 1'000'000; ///< mm from the origin, also up and down
inline constexpr double kSmallestScale = 0.001;
inline constexpr double kLargestScale = 1000;

inline bool isLength(double mm) {
  return std::abs(mm) <= kFarthest; // false for NaN
}
inline bool isScale(double scale) {
  return scale >= kSmallestScale && scale <= kLargestScale;
}

bool inLimits(Point p);
bool inLimits(const std::vector<Point>& points);
bool inLimits(const PlacedPiece& piece);
bool inLimits(const SceneryItem& item);
bool inLimits(const Label& label);
bool inLimits(const Shape& shape);
bool inLimits(const Level& level);

} // namespace trassix
