#pragma once

#include <cstdint>

namespace trassix {

/// A run of track on a constant grade.
struct GradeRun {
  double deg = 0;           ///< signed grade angle
  std::int32_t anchor = -1; ///< id of the piece where the run starts
  std::int32_t conn = 1;    ///< connector on that piece

  bool operator==(const GradeRun&) const = default;
};

/// Mirrors the last grade run; off when there is none.
struct CurrentGrade {
  bool active = false;
  double grade = 0;
  std::int32_t anchor = -1;
  std::int32_t conn = 1;

  bool operator==(const CurrentGrade&) const = default;
};

} // namespace trassix
