// The numbers that a plan can hold. Readers take others for damage, and no edit goes beyond, so
// that arithmetic on a plan never overflows and what was saved can be loaded.
#pragma once

#include "document/plan_settings.h"
#include "document/record_kinds.h"
#include "geometry/lengths.h"

#include <cmath>

namespace trassix {

inline constexpr double kSmallestScale = 0.001;
inline constexpr double kLargestScale = 1000;

inline bool isScale(double scale) {
  return scale >= kSmallestScale && scale <= kLargestScale;
}

/// Whatever the record has of positions, heights, headings, grades and scales.
template <class Record>
requires requires {
  Record::kKind;
}
bool inLimits(const Record& record) {
  bool in = true;
  forEachPosition(record, [&in](Point p) { in = in && inLimits(p); });
  if constexpr (requires { record.z; })
    in = in && isLength(record.z) && std::isfinite(record.grade);
  if constexpr (requires { record.height; })
    in = in && isLength(record.height);
  if constexpr (requires { record.heading; })
    in = in && std::isfinite(record.heading);
  if constexpr (requires { record.scalex; })
    in = in && isScale(record.scalex) && isScale(record.scaley);
  return in;
}

inline bool inLimits(const Level& level) {
  return inLimits(level.outline) && isLength(level.height);
}

} // namespace trassix
