#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace trassix {

/// What `straightFills` must answer, by trying all combinations; with the steps it took, so that a
/// hopeless search can be told from a finished one.
struct PlainFills {
  std::vector<std::vector<std::size_t>> runs;
  bool finished = false;
};
PlainFills plainStraightFills(std::span<const double> lengths, double gap, long mostSteps);

} // namespace trassix
