#include "editing/straight_fill.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace trassix {

namespace {

constexpr double kUnit = 0.1; // mm; sums are counted in it, so that comparisons are exact
constexpr double kRounding = 1e-6;

/// Set of sums, 0 up to a fixed largest one.
class SumSet {
 public:
  explicit SumSet(std::size_t largest) : words_(largest / 64 + 1) {}

  void insert(std::size_t sum) { words_[sum / 64] |= std::uint64_t{1} << (sum % 64); }

  /// Adds every sum of `other` increased by `shift`; what grows beyond the largest sum is dropped.
  void uniteShifted(const SumSet& other, std::size_t shift) {
    const std::size_t skip = shift / 64;
    const std::size_t bits = shift % 64;
    for (std::size_t i = skip; i < words_.size(); ++i) {
      words_[i] |= other.words_[i - skip] << bits;
      if (bits != 0 && i > skip)
        words_[i] |= other.words_[i - skip - 1] >> (64 - bits);
    }
  }

  /// True when a sum lies in [low, high].
  bool meets(std::int64_t low, std::int64_t high) const {
    for (std::int64_t sum = std::max<std::int64_t>(low, 0); sum <= high; ++sum) {
      const auto at = static_cast<std::size_t>(sum);
      if (at / 64 >= words_.size())
        return false;
      if ((words_[at / 64] >> (at % 64) & 1) != 0)
        return true;
    }
    return false;
  }

 private:
  std::vector<std::uint64_t> words_;
};

class Search {
 public:
  Search(std::span<const double> lengths, double gap)
      : low_(static_cast<std::int64_t>(
            std::ceil((gap - kStraightFillTolerance) / kUnit - kRounding))),
        high_(static_cast<std::int64_t>(
            std::floor((gap + kStraightFillTolerance) / kUnit + kRounding))) {
    for (const double length : lengths) {
      lengths_.push_back(std::llround(length / kUnit));
      if (distinct_.empty() || distinct_.back() != lengths_.back())
        distinct_.push_back(lengths_.back());
      kinds_.push_back(distinct_.size() - 1);
    }
    SumSet nothing(static_cast<std::size_t>(high_));
    nothing.insert(0);
    reachable_.assign(1, std::vector(distinct_.size(), nothing));
  }

  std::vector<std::vector<std::size_t>> run(int mostPieces) {
    for (int count = 1; count <= mostPieces && found_.size() < kStraightFillsSought; ++count) {
      addLayer();
      if (reachable_.back().front().meets(low_, high_))
        extend(0, static_cast<std::size_t>(count), 0);
    }
    return std::move(found_);
  }

 private:
  /// reachable_[n][k]: what exactly n pieces of the distinct lengths from the k-th on can add up
  /// to.
  void addLayer() {
    const std::vector<SumSet>& previous = reachable_.back();
    std::vector<SumSet> layer(distinct_.size(), SumSet(static_cast<std::size_t>(high_)));
    for (std::size_t kind = distinct_.size(); kind-- > 0;) {
      if (kind + 1 < distinct_.size())
        layer[kind] = layer[kind + 1];
      layer[kind].uniteShifted(previous[kind], static_cast<std::size_t>(distinct_[kind]));
    }
    reachable_.push_back(std::move(layer));
  }

  void extend(std::size_t first, std::size_t remaining, std::int64_t sum) {
    if (remaining == 0) {
      found_.push_back(run_);
      return;
    }
    for (std::size_t i = first; i < lengths_.size() && found_.size() < kStraightFillsSought; ++i) {
      const std::int64_t next = sum + lengths_[i];
      if (!reachable_[remaining - 1][kinds_[i]].meets(low_ - next, high_ - next))
        continue;
      run_.push_back(i);
      extend(i, remaining - 1, next);
      run_.pop_back();
    }
  }

  std::int64_t low_;
  std::int64_t high_;
  std::vector<std::int64_t> lengths_;
  std::vector<std::int64_t> distinct_; // longest first
  std::vector<std::size_t> kinds_;     // of each length in distinct_
  std::vector<std::vector<SumSet>> reachable_;
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
