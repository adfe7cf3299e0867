#include "ratio.h"

#include <algorithm>
#include <chrono>
#include <ctime>
#include <limits>
#include <vector>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace trassix::bench {

namespace {

constexpr std::size_t kFewestTurns = 9;
constexpr double kSeconds = 0.5; ///< that the turns of a comparison take at least

/// Keeps the memory the process once had, so that neither side pays for getting it anew by chance.
void keepMemory() {
#ifdef __GLIBC__
  mallopt(M_MMAP_THRESHOLD, 32 << 20); // the largest that is accepted
  mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
#endif
}

double median(std::vector<double>& values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

} // namespace

double now() {
#ifdef CLOCK_PROCESS_CPUTIME_ID
  timespec time{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
#else
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
#endif
}

void giveMemoryBack() {
#ifdef __GLIBC__
  malloc_trim(0);
#endif
}

void compare(benchmark::State& state, double limit, const char* baselineName, const Way& ours,
             const Way& baseline) {
  keepMemory();
  std::vector<double> own;
  std::vector<double> other;
  for (auto _ : state) {
    // The first turn fills what is kept from then on.
    ours.seconds();
    baseline.seconds();
    for (double spent = 0; spent < kSeconds || own.size() < kFewestTurns;) {
      own.push_back(ours.seconds());
      other.push_back(baseline.seconds());
      spent += own.back() + other.back();
    }
  }
  state.counters["ours"] = median(own) / ours.count;
  state.counters["baseline"] = median(other) / baseline.count;
  state.counters["limit"] = limit;
  state.SetLabel(baselineName);
}

} // namespace trassix::bench
