#include "support/plain_straight_fills.h"

#include <algorithm>
#include <cmath>

namespace trassix {

namespace {

constexpr double kTolerance = 1.5 + 1e-7; // sums are decimal, doubles are not

struct PlainSearch {
  std::span<const double> lengths;
  double gap;
  long steps;
  std::vector<std::size_t> run;
  std::vector<std::vector<std::size_t>> found;

  void extend(std::size_t first, int count, double sum) {
    if (--steps < 0 || found.size() == 16)
      return;
    const int left = count - static_cast<int>(run.size());
    if (left == 0) {
      if (std::abs(sum - gap) <= kTolerance)
        found.push_back(run);
      return;
    }
    for (std::size_t i = first; i < lengths.size() && found.size() < 16; ++i) {
      if (sum + lengths[i] > gap + kTolerance)
        continue;
      if (sum + left * lengths[i] < gap - kTolerance)
        continue;
      run.push_back(i);
      extend(i, count, sum + lengths[i]);
      run.pop_back();
    }
  }
};

} // namespace

PlainFills plainStraightFills(std::span<const double> lengths, double gap, long mostSteps) {
  PlainSearch search{lengths, gap, mostSteps, {}, {}};
  const int most = std::clamp(static_cast<int>(std::ceil(gap / lengths.back())) + 2, 1, 32);
  for (int count = 1; count <= most && search.found.size() < 16; ++count)
    search.extend(0, count, 0);
  return {search.found, mostSteps - search.steps, search.steps >= 0};
}

} // namespace trassix
