// Filling straight gaps: every gap from 2 mm to 10 m in steps of a tenth of a millimetre in each
// system, the slowest of them, and the same search by plain enumeration.
#include "catalog/plain_track.h"
#include "editing/straight_fill.h"
#include "ratio.h"
#include "support/plain_straight_fills.h"

#include <string>
#include <vector>

namespace trassix::bench {

namespace {

constexpr double kLimit = 0.050; // seconds

std::vector<double> lengthsOf(TrackSystem system) {
  std::vector<double> lengths;
  for (const PlainStraight& straight : plainStraights(system))
    lengths.push_back(straight.length);
  return lengths;
}

void sweep(benchmark::State& state, TrackSystem system) {
  keepMemory();
  const std::vector<double> lengths = lengthsOf(system);
  double slowest = 0;
  double slowestGap = 0;
  double total = 0;
  int solved = 0;
  constexpr int kFirst = 20;
  constexpr int kLast = 100000; // tenths of a millimetre
  for (auto _ : state) {
    for (int tenths = kFirst; tenths <= kLast; ++tenths) {
      const double gap = tenths / 10.0;
      auto solve = [&] { solved += straightFills(lengths, gap).empty() ? 0 : 1; };
      double time = seconds(solve);
      if (time > slowest) // an interruption does not repeat itself
        time = std::min({time, seconds(solve), seconds(solve)});
      total += time;
      if (time > slowest) {
        slowest = time;
        slowestGap = gap;
      }
    }
    state.SetIterationTime(total);
  }
  char text[120];
  std::snprintf(text, sizeof text, "slowest %.2f ms (gap %.1f mm), mean %.2f ms, at most %.0f ms",
                slowest * 1e3, slowestGap, total / (kLast - kFirst + 1) * 1e3, kLimit * 1e3);
  state.SetLabel(text);
  if (slowest > kLimit)
    state.SkipWithError("too slow");
}

/// The plain enumeration on the gap where it takes longest of many spread over the range. It is
/// stopped when it has taken so many steps that there is no doubt.
void againstPlainEnumeration(benchmark::State& state, TrackSystem system) {
  const std::vector<double> lengths = lengthsOf(system);
  constexpr long kMostSteps = 30'000'000;
  long most = 0;
  double hardest = 0;
  for (double gap = 2; gap < 10000 && most < kMostSteps / 10; gap += 0.7) {
    const long steps = plainStraightFills(lengths, gap, kMostSteps / 10).steps;
    if (steps > most) {
      most = steps;
      hardest = gap;
    }
  }
  bool finished = false;
  auto plain = [&] { finished = plainStraightFills(lengths, hardest, kMostSteps).finished; };
  const double plainTime = seconds(plain);
  double best = plainTime;
  for (auto _ : state) {
    auto ours = [&] { benchmark::DoNotOptimize(straightFills(lengths, hardest)); };
    best = std::min(best, seconds(ours));
    state.SetIterationTime(best);
  }
  char text[120];
  std::snprintf(text, sizeof text, "gap %.1f mm: %.3f ms against %s%.3f ms: %s%.1f times", hardest,
                best * 1e3, finished ? "" : "more than ", plainTime * 1e3,
                finished ? "" : "more than ", plainTime / best);
  state.SetLabel(text);
}

#define TRASSIX_FILL_BENCH(system)                                                                 \
  BENCHMARK_CAPTURE(sweep, system, TrackSystem::system)                                            \
      ->UseManualTime()                                                                            \
      ->Iterations(1)                                                                              \
      ->Unit(benchmark::kMillisecond);                                                             \
  BENCHMARK_CAPTURE(againstPlainEnumeration, system, TrackSystem::system)                          \
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
