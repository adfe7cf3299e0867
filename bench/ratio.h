// What every benchmark does: two ways to one end, timed in turns in one run. scripts/bench collects
// the quotients of several runs and judges them.
#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <utility>

namespace trassix::bench {

/// One of the two ways: returns the seconds in which it did `count` times what is compared.
struct Way {
  std::function<double()> seconds;
  double count = 1;
};

/// Processor time of this process in seconds, which a busy machine disturbs least.
double now();

/// `function`, measured in processor time, in memory that the process keeps from one turn to the
/// next.
template <class Function>
Way timed(Function function, double count = 1) {
  return {[function = std::move(function)]() mutable {
            const double start = now();
            function();
            return now() - start;
          },
          count};
}

/// Hands back to the system what memory the process does not use.
void giveMemoryBack();

/// The same, each time in memory that the process has to get from the system.
template <class Function>
Way timedInFreshMemory(Function function) {
  const Way inKeptMemory = timed(std::move(function));
  return {[inKeptMemory] {
    giveMemoryBack();
    return inKeptMemory.seconds();
  }};
}

/// Runs both ways in turns, so that whatever disturbs meets both, and reports the medians of what
/// one count costs as counters `ours` and `baseline`, in seconds, beside `limit`, the greatest
/// quotient of the two; the label says what the baseline is. For benchmarks of one iteration.
void compare(benchmark::State& state, double limit, const char* baselineName, const Way& ours,
             const Way& baseline);

} // namespace trassix::bench
