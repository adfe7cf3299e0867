// The numbers that a plan can hold. Readers take others for damage, and no edit goes beyond, so
// that arithmetic on a plan never overflows and what was saved can be loaded.
#pragma once

#include "document/plan_settings.h"
#include "geometry/lengths.h"

namespace trassix {

inline constexpr double kSmallestScale = 0.001;
inline constexpr double kLargestScale = 1000;

inline bool isScale(double scale) {
  return scale >= kSmallestScale && scale <= kLargestScale;
}

inline bool inLimits(const Level& level) {
  return inLimits(level.outline) && isLength(level.height);
}

} // namespace trassix
