// Looking for layouts around tables: the longest pause between two looks at Cancel, and whole
// searches against a plain listing of the sums of the same sides that meets them in the middle.
#include "catalog/plain_track.h"
#include "ratio.h"
#include "wizards/layout/layout_search.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace trassix::bench {

namespace {

Polygon stairs(double scale) {
  Polygon outline{{0, 0},       {1200, 0},    {1200, 900},  {2100, 900},
                  {2100, 1700}, {3100, 1700}, {3100, 2900}, {0, 2900}};
  for (Point& p : outline)
    p = {std::round(p.x * scale), std::round(p.y * scale)};
  return outline;
}

/// Every form of table, with all that can be wished for.
std::vector<LayoutTask> tasks() {
  std::vector<LayoutTask> all;
  for (const TrackSystem system : layoutSystems()) {
    const double radius = cornerRadii(system).front();
    for (const Polygon& shape :
         {usualTables(TrackSystem::CTrack)[0].outline, usualTables(TrackSystem::CTrack)[5].outline,
          usualTables(TrackSystem::CTrack)[6].outline, stairs(1)})
      for (const bool two : {false, true}) {
        LayoutTask task = usualLayoutTask(system, {});
        task.outline = shape;
        for (Point& p : task.outline)
          p = {std::round(p.x * radius / 360), std::round(p.y * radius / 360)};
        const std::vector<double> outer = outerRadii(system, radius);
        task.secondRadius = two && !outer.empty() ? outer.front() : 0;
        task.station = StationWish{shape.size() - 2, 2, radius};
        all.push_back(task);
        task.station->usableLength = 30 * radius; // which cannot be: reasons are sought as well
        all.push_back(task);
      }
  }
  return all;
}

void search(const LayoutTask& task) {
  LayoutSearch work(task);
  while (!work.done())
    work.step();
  benchmark::DoNotOptimize(work.proposals());
}

double longestStep(const LayoutTask& task) {
  double start = now();
  LayoutSearch work(task);
  double longest = now() - start;
  while (!work.done()) {
    start = now();
    work.step();
    longest = std::max(longest, now() - start);
  }
  return longest;
}

/// All sums of the sides that run one way, and which of those of the other way meet them: for each
/// axis, sides as long as the table has them, in tenths of a millimetre.
/// With `every` above 1 only so many of the sums of long sides, for a guess at what it takes.
void list(const LayoutTask& task, std::size_t every = 1) {
  std::vector<long> lengths;
  for (const PlainStraight& straight : plainStraights(task.system))
    lengths.push_back(std::lround(straight.length * 10));
  const std::size_t sides = task.outline.size();
  for (const bool level : {true, false}) {
    std::vector<std::vector<bool>> sums;
    for (std::size_t i = 0; i < sides; ++i) {
      const Point a = task.outline[i];
      const Point b = task.outline[(i + 1) % sides];
      if ((a.y == b.y) != level)
        continue;
      std::vector<bool> own(static_cast<std::size_t>(std::hypot(a.x - b.x, a.y - b.y) * 10) + 1);
      own[0] = true;
      for (std::size_t at = 0; at < own.size(); ++at)
        for (const long length : lengths)
          if (own[at] && at + static_cast<std::size_t>(length) < own.size())
            own[at + static_cast<std::size_t>(length)] = true;
      sums.push_back(std::move(own));
    }
    // Sums of two sides, then those of the other two that meet one of them.
    const std::vector<bool> none{true};
    const auto pairs = [&](std::size_t first, std::size_t second, auto visit) {
      const std::vector<bool>& a = first < sums.size() ? sums[first] : none;
      const std::vector<bool>& b = second < sums.size() ? sums[second] : none;
      for (std::size_t i = 0; i < a.size(); i += every)
        for (std::size_t k = 0; a[i] && k < b.size(); k += every)
          if (b[k])
            visit(i, k);
    };
    std::vector<char> half(sums[0].size() + (sums.size() > 2 ? sums[2].size() : 1));
    pairs(0, sums.size() > 2 ? 2 : sums.size(),
          [&](std::size_t a, std::size_t b) { half[a + b] = 1; });
    long met = 0;
    pairs(1, 3,
          [&](std::size_t a, std::size_t b) { met += a + b < half.size() ? half[a + b] : 0; });
    benchmark::DoNotOptimize(met);
  }
}

/// The task whose search takes longest beside its listing, as far as a part of that tells.
LayoutTask hardest() {
  constexpr std::size_t kEvery = 8;
  const std::vector<LayoutTask> all = tasks();
  std::vector<double> ratios;
  for (const LayoutTask& task : all) {
    const bool whole = task.outline.size() == 4;
    const double ours = timed([&] { search(task); }).seconds();
    const double part = timed([&] { list(task, whole ? 1 : kEvery); }).seconds();
    ratios.push_back(ours / part / (whole ? 1 : kEvery * kEvery));
  }
  return all[static_cast<std::size_t>(std::ranges::max_element(ratios) - ratios.begin())];
}

/// Against 50 ms, which is where a user begins to feel it.
void layoutSlice(benchmark::State& state) {
  double longest = 0;
  for (const LayoutTask& task : tasks()) {
    // An interruption does not repeat itself.
    double step = longestStep(task);
    for (int again = 0; again < 3 && step > longest; ++again)
      step = std::min(step, longestStep(task));
    longest = std::max(longest, step);
  }
  constexpr double kSlice = 0.05;
  compare(state, 1, "50 ms", {[longest] { return longest; }}, {[] { return kSlice; }});
}

void layoutHardest(benchmark::State& state) {
  const LayoutTask task = hardest();
  compare(state, 50, "plain listing met in the middle", timed([&] { search(task); }),
          timed([&] { list(task); }));
}

BENCHMARK(layoutSlice)->Iterations(1);
BENCHMARK(layoutHardest)->Iterations(1);

} // namespace

} // namespace trassix::bench
