#include "editing/autofill/straight_fill.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace trassix {

namespace {

constexpr double kUnit = 0.1; // mm; sums are counted in it, so that comparisons are exact
constexpr double kRounding = 1e-6;

class Search {
 public:
  Search(std::span<const double> lengths, double gap)
      : low_(static_cast<std::int64_t>(
            std::ceil((gap - kStraightFillTolerance) / kUnit - kRounding))),
        high_(static_cast<std::int64_t>(
            std::floor((gap + kStraightFillTolerance) / kUnit + kRounding))) {
    for (const double length : lengths)
      lengths_.push_back(std::llround(length / kUnit));
  }

  std::vector<std::vector<std::size_t>> run(int mostPieces) {
    for (int count = 1; count <= mostPieces && found_.size() < kStraightFillsSought; ++count)
      extend(0, count, 0);
    return std::move(found_);
  }

 private:
  void extend(std::size_t first, int missing, std::int64_t sum) {
    if (missing == 0) {
      found_.push_back(run_);
      return;
    }
    for (std::size_t i = first; i < lengths_.size() && found_.size() < kStraightFillsSought; ++i) {
      if (sum + missing * lengths_[i] < low_)
        return; // and what follows is shorter still
      const std::int64_t next = sum + lengths_[i];
      if (next + (missing - 1) * lengths_.back() > high_)
        continue;
      run_.push_back(i);
      extend(i, missing - 1, next);
      run_.pop_back();
    }
  }

  std::int64_t low_;
  std::int64_t high_;
  std::vector<std::int64_t> lengths_;
  std::vector<std::size_t> run_;
  std::vector<std::vector<std::size_t>> found_;
};

} // namespace

std::vector<std::vector<std::size_t>> straightFills(std::span<const double> lengths, double gap) {
  if (lengths.empty() || !(gap > 0) ||
      gap - kStraightFillTolerance > kStraightFillPieces * lengths.front() + 1)
    return {};
  const int most =
      std::clamp(static_cast<int>(std::ceil(gap / lengths.back())) + 2, 1, kStraightFillPieces);
  return Search(lengths, gap).run(most);
}

} // namespace trassix
