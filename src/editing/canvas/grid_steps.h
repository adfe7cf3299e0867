#pragma once

#include <cstdint>
#include <string>

namespace trassix {

/// Spacing of the grid in mm: fine lines, and every `major`-th drawn stronger.
struct GridSteps {
  double fine = 10;
  int major = 10;
};

/// The smallest sensible spacing in the chosen unit whose lines are at least `minPx` apart: 1, 2,
/// 5, 10, ... mm or cm; quarter, half and whole inches, then feet.
GridSteps gridSteps(double zoom, std::int32_t units, double minPx);

/// A round length in the chosen unit that covers at most `maxPx`, with its text, for a scale bar.
struct ScaleLength {
  double mm = 0;
  std::string text;
};
ScaleLength scaleLength(double zoom, std::int32_t units, double maxPx);

} // namespace trassix
