// Filling straight gaps from 2 mm to 10 m in each system, all of them and the one that takes
// longest, against the listing of all combinations that is written down most plainly.
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

void list(const std::vector<double>& lengths, double gap) {
  Listing plain{lengths, gap};
  for (std::size_t count = 1; count <= kStraightFillPieces; ++count)
    if (plain.found.size() < kStraightFillsSought)
      plain.extend(0, count, 0);
  benchmark::DoNotOptimize(plain.found);
}

void search(const std::vector<double>& lengths, double gap) {
  benchmark::DoNotOptimize(straightFills(lengths, gap));
}

std::vector<double> everyGap() {
  std::vector<double> gaps;
  for (double gap = 2; gap < kLongest; gap += 0.7)
    gaps.push_back(gap);
  return gaps;
}

/// The gap that the search takes longest for, often enough to be measured.
std::vector<double> hardestGap(const std::vector<double>& lengths) {
  constexpr int kTimes = 1000;
  double slowest = 0;
  double hardest = 0;
  for (const double gap : everyGap()) {
    const Way once = timed([&] { search(lengths, gap); });
    double time = once.seconds();
    // An interruption does not repeat itself.
    for (int again = 0; again < 5 && time > slowest; ++again)
      time = std::min(time, once.seconds());
    if (time > slowest) {
      slowest = time;
      hardest = gap;
    }
  }
  return std::vector(kTimes, hardest);
}

void autofill(benchmark::State& state, TrackSystem system, bool hardest) {
  const std::vector<double> lengths = lengthsOf(system);
  const std::vector<double> gaps = hardest ? hardestGap(lengths) : everyGap();
  const auto forAll = [&](void (*fill)(const std::vector<double>&, double)) {
    return timed(
        [&lengths, &gaps, fill] {
          for (const double gap : gaps)
            fill(lengths, gap);
        },
        static_cast<double>(gaps.size()));
  };
  compare(state, 0.65, "plain listing", forAll(search), forAll(list));
}

#define TRASSIX_FILL_BENCH(system)                                                                 \
  BENCHMARK_CAPTURE(autofill, system, TrackSystem::system, false)->Iterations(1);                  \
  BENCHMARK_CAPTURE(autofill, system##Hardest, TrackSystem::system, true)->Iterations(1)

TRASSIX_FILL_BENCH(CTrack);
TRASSIX_FILL_BENCH(TrixCTrack);
TRASSIX_FILL_BENCH(ZTrack);
TRASSIX_FILL_BENCH(KTrack);
TRASSIX_FILL_BENCH(MTrack);
TRASSIX_FILL_BENCH(Gauge1);

} // namespace

} // namespace trassix::bench
