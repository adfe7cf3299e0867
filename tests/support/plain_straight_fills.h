#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace trassix {

/// What `straightFills` must answer, by trying all combinations.
struct PlainFills {
  std::vector<std::vector<std::size_t>> runs;
  long steps = 0;
  bool finished = false; ///< within `mostSteps`
};
PlainFills plainStraightFills(std::span<const double> lengths, double gap, long mostSteps);

} // namespace trassix
