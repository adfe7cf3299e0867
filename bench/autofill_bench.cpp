// Filling straight gaps from 2 mm to 10 m in each system: the slowest of them, and all of them
// against the listing of all combinations that is written down most plainly.
#include "catalog/plain_track.h"
#include "editing/autofill/straight_fill.h"
#include "ratio.h"

#include <cmath>
#include <vector>

namespace trassix::bench {

namespace {

constexpr double kLongest = 10000; // mm

std::vector<double> lengthsOf(TrackSystem system) {
  std::vector<double> lengths;
  for (const PlainStraight& straight : plainStraights(system))
    lengths.push_back(straight.length);
  return lengths;
}

/// Lists runs of exactly `count` pieces in the order in which the search gives them. Sums are
/// doubles, so that it may take one for another at the very edge.
struct Listing {
  const std::vector<double>& lengths;
  double gap;
  std::vector<std::size_t> run = {};
  std::vector<std::vector<std::size_t>> found = {};

  void extend(std::size_t first, std::size_t count, double sum) {
    if (run.size() == count) {
      if (std::abs(sum - gap) <= kStraightFillTolerance)
        found.push_back(run);
      return;
    }
    const auto missing = static_cast<double>(count - run.size());
    for (std::size_t i = first; i < lengths.size() && found.size() < kStraightFillsSought; ++i) {
      if (sum + lengths[i] > gap + kStraightFillTolerance ||
          sum + missing * lengths[i] < gap - kStraightFillTolerance)
        continue;
      run.push_back(i);
      extend(i, count, sum + lengths[i]);
      run.pop_back();
    }
  }
};

template <class Search>
void everyGap(Search search) {
  for (double gap = 2; gap < kLongest; gap += 0.7)
    search(gap);
}

void againstPlainListing(benchmark::State& state, TrackSystem system) {
  const std::vector<double> lengths = lengthsOf(system);
  const auto ours = [&lengths] {
    everyGap([&](double gap) { benchmark::DoNotOptimize(straightFills(lengths, gap)); });
  };
  const auto listing = [&lengths] {
    everyGap([&](double gap) {
      Listing plain{lengths, gap};
      for (std::size_t count = 1; count <= kStraightFillPieces; ++count)
        if (plain.found.size() < kStraightFillsSought)
          plain.extend(0, count, 0);
      benchmark::DoNotOptimize(plain.found);
    });
  };
  compare(state, 1.0, ours, listing);
}

/// No gap may take as long as a user notices.
void slowestGap(benchmark::State& state, TrackSystem system) {
  const std::vector<double> lengths = lengthsOf(system);
  double slowest = 0;
  double hardest = 0;
  everyGap([&](double gap) {
    auto solve = [&] { benchmark::DoNotOptimize(straightFills(lengths, gap)); };
    if (const double time = seconds(solve); time > slowest) {
      slowest = std::min(time, seconds(solve)); // an interruption does not repeat itself
      hardest = gap;
    }
  });
  within(state, 5, [&] { benchmark::DoNotOptimize(straightFills(lengths, hardest)); });
}

#define TRASSIX_FILL_BENCH(system)                                                                 \
  BENCHMARK_CAPTURE(againstPlainListing, system, TrackSystem::system)                              \
      ->UseManualTime()                                                                            \
      ->Iterations(5)                                                                              \
      ->Unit(benchmark::kMillisecond);                                                             \
  BENCHMARK_CAPTURE(slowestGap, system, TrackSystem::system)                                       \
      ->UseManualTime()                                                                            \
      ->Iterations(20)                                                                             \
      ->Unit(benchmark::kMillisecond)

TRASSIX_FILL_BENCH(CTrack);
TRASSIX_FILL_BENCH(TrixCTrack);
TRASSIX_FILL_BENCH(ZTrack);
TRASSIX_FILL_BENCH(KTrack);
TRASSIX_FILL_BENCH(MTrack);
TRASSIX_FILL_BENCH(Gauge1);

} // namespace

} // namespace trassix::bench
