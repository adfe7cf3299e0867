#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <iterator>
#include <limits>
#include <string>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace trassix::bench {

/// Processor time where the system tells it, which a busy machine disturbs least.
inline double now() {
#ifdef CLOCK_PROCESS_CPUTIME_ID
  timespec time{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
#else
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
#endif
}

template <class Function>
double seconds(Function& function) {
  const double start = now();
  function();
  return now() - start;
}

/// Keeps the memory the process once had, so that neither side pays for getting it anew by chance.
inline void keepMemory() {
#ifdef __GLIBC__
  mallopt(M_MMAP_THRESHOLD, 32 << 20); // the largest that is accepted
  mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
#endif
}

/// Runs both in turns, so that a busy machine disturbs both, and reports the quotient of their best
/// times. A quotient above `limit` is an error in the results.
template <class Ours, class Reference>
void compare(benchmark::State& state, double limit, Ours ours, Reference reference) {
  keepMemory();
  double best = std::numeric_limits<double>::infinity();
  double bestReference = best;
  for (auto _ : state) {
    const double time = seconds(ours);
    best = std::min(best, time);
    bestReference = std::min(bestReference, seconds(reference));
    state.SetIterationTime(time);
  }
  const double ratio = best / bestReference;
  char text[80];
  std::snprintf(text, sizeof text, "%.3f ms against %.3f ms: %.2f, at most %.2f", best * 1e3,
                bestReference * 1e3, ratio, limit);
  state.SetLabel(text);
  if (ratio > limit)
    state.SkipWithError((std::string("too slow: ") + text).c_str());
}

/// Reports the best time. More than `limit` milliseconds is an error in the results: what the user
/// waits for after each edit. The very first runs fill what is kept for the process, so that no
/// single one decides.
template <class Function>
void within(benchmark::State& state, double limit, Function function) {
  constexpr int kFirstRuns = 5;
  double best = std::numeric_limits<double>::infinity();
  for (int run = 0; run < kFirstRuns; ++run)
    best = std::min(best, seconds(function));
  for (auto _ : state) {
    const double time = seconds(function);
    best = std::min(best, time);
    state.SetIterationTime(time);
  }
  char text[80];
  std::snprintf(text, sizeof text, "%.3f ms, at most %.0f", best * 1e3, limit);
  state.SetLabel(text);
  if (best * 1e3 > limit)
    state.SkipWithError((std::string("too slow: ") + text).c_str());
}

/// Times `prepare(pieces)()` for plans of 1,000, 10,000 and 100,000 pieces and reports what a piece
/// of the largest costs compared with one of the smallest. Growth that is not linear would make it
/// tens of times more.
template <class Prepare>
void growth(benchmark::State& state, double limit, Prepare prepare) {
  keepMemory();
  constexpr int kSizes[] = {1000, 10000, 100000};
  double nanoseconds[std::size(kSizes)];
  for (std::size_t i = 0; i < std::size(kSizes); ++i) {
    auto function = prepare(kSizes[i]);
    double best = std::numeric_limits<double>::infinity();
    for (int run = 0; run < 1000000 / kSizes[i]; ++run)
      best = std::min(best, seconds(function));
    nanoseconds[i] = best * 1e9 / kSizes[i];
  }
  for (auto _ : state)
    state.SetIterationTime(nanoseconds[2] * 1e-9);
  const double ratio = nanoseconds[2] / nanoseconds[0];
  char text[80];
  std::snprintf(text, sizeof text, "%.0f, %.0f, %.0f ns a piece: %.2f, at most %.2f",
                nanoseconds[0], nanoseconds[1], nanoseconds[2], ratio, limit);
  state.SetLabel(text);
  if (ratio > limit)
    state.SkipWithError((std::string("not linear: ") + text).c_str());
}

} // namespace trassix::bench
