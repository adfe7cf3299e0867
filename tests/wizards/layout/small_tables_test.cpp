// On small tables all loops can be written down: none of them may be better than what is proposed.
#include "catalog/plain_track.h"
#include "geometry/pose.h"
#include "slow_search.h"
#include "wizards/layout/layout_search.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdlib>
#include <map>
#include <random>
#include <set>

namespace trassix {
namespace {

/// A length in tenths of a millimetre with every way to make it up: how many pieces at least, by
/// the set of kinds.
using Ways = std::map<std::uint32_t, int>;

class Enumeration {
 public:
  Enumeration(TrackSystem system, long longest) : ways_(static_cast<std::size_t>(longest) + 1) {
    for (const PlainStraight& straight : plainStraights(system))
      if (const long length = std::lround(straight.length * 10);
          lengths_.empty() || lengths_.back() != length)
        lengths_.push_back(length);
    write(0, 0, 0, 0, longest);
  }

  const Ways& of(long length) const { return ways_[static_cast<std::size_t>(length)]; }
  bool has(long length) const {
    return length >= 0 && length < static_cast<long>(ways_.size()) && !of(length).empty();
  }
  int pieces(long length) const {
    return std::ranges::min_element(of(length), {}, [](const auto& way) { return way.second; })
        ->second;
  }
  long shortest() const { return lengths_.back(); }

 private:
  void write(std::size_t kind, std::uint32_t kinds, int pieces, long sum, long longest) {
    if (kind == lengths_.size()) {
      const auto [way, isNew] = ways_[static_cast<std::size_t>(sum)].emplace(kinds, pieces);
      way->second = std::min(way->second, pieces);
      return;
    }
    write(kind + 1, kinds, pieces, sum, longest);
    while ((sum += lengths_[kind]) <= longest)
      write(kind + 1, kinds | 1U << kind, ++pieces, sum, longest);
  }

  std::vector<long> lengths_; ///< longest first
  std::vector<Ways> ways_;
};

struct Best {
  long total = -1; ///< of all straights of one track, in tenths
  long station = 0;
  int pieces = 0;
  int kinds = 0;
};

/// Rectangles: both axes by themselves, opposite sides alike.
Best bestRectangle(const LayoutTask& task, const Enumeration& sums, std::array<long, 2> room) {
  Best best;
  std::array<long, 2> longest{};
  for (const std::size_t axis : {0U, 1U}) {
    longest.at(axis) = room.at(axis);
    while (!sums.has(longest.at(axis)))
      --longest.at(axis);
  }
  best.total = 2 * (longest[0] + longest[1]);
  std::array<std::map<std::uint32_t, int>, 2> sets;
  int pieces = 0;
  for (const std::size_t axis : {0U, 1U}) {
    int fewest = 1 << 20;
    for (long length = std::max(longest.at(axis) - sums.shortest(), 0L); length <= longest.at(axis);
         ++length) {
      if (!sums.has(length))
        continue;
      fewest = std::min(fewest, 2 * sums.pieces(length));
      for (const auto& [first, count] : sums.of(length))
        sets.at(axis).emplace(first, count); // both sides of the same pieces
    }
    pieces += fewest;
  }
  best.pieces = pieces * task.tracks();
  best.kinds = 1 << 20;
  for (const auto& [x, countX] : sets[0])
    for (const auto& [y, countY] : sets[1])
      best.kinds = std::min(best.kinds, std::popcount(x | y));
  return best;
}

LayoutProposal proposalFor(LayoutTask task, LayoutPreference preference) {
  task.preference = preference;
  LayoutSearch search(task);
  while (!search.done() && search.proposals().empty())
    search.step();
  return search.proposals().empty() ? LayoutProposal{} : search.proposals().front();
}

std::size_t curvesOf(const LayoutProposal& proposal, const LayoutTask& task) {
  std::size_t curves = 0;
  for (const auto& [radius, curve] : plainCurvesByRadius(task.system))
    if (std::abs(radius - task.radius) < 1e-6 || std::abs(radius - task.secondRadius) < 1e-6)
      curves += static_cast<std::size_t>(std::lround(90 / curve->angle)) * proposal.outline.size();
  return curves;
}

double bedOf(TrackSystem system) {
  return system == TrackSystem::ZTrack ? 6 : system == TrackSystem::Gauge1 ? 31.5 : 18.7;
}

class SmallTables : public testing::TestWithParam<TrackSystem> {};

TEST_P(SmallTables, HaveNoLoopThatIsBetter) {
  const TrackSystem system = GetParam();
  std::mt19937 random(static_cast<unsigned>(system) + 5U);
  const double size = system == TrackSystem::ZTrack   ? 300
                      : system == TrackSystem::Gauge1 ? 900
                                                      : 430;
  const Enumeration sums(system, std::lround(size * 10));
  const std::vector<double> radii = cornerRadii(system);
  for (int i = 0; i < 84; ++i) {
    LayoutTask task;
    task.system = system;
    task.distance = usualEdgeDistance(system);
    task.radius = radii[random() % radii.size()];
    if (const auto outer = outerRadii(system, task.radius); !outer.empty() && random() % 2 == 0)
      task.secondRadius = outer.front();
    const double bend =
        2 * std::max(task.radius, task.secondRadius) + 2 * (task.distance + bedOf(system));
    std::array<long, 2> room{};
    for (long& tenths : room)
      tenths = static_cast<long>(random() % static_cast<unsigned>(size * 10));
    const double width = bend + static_cast<double>(room[0]) / 10;
    const double depth = bend + static_cast<double>(room[1]) / 10;
    task.outline = {{0, 0}, {width, 0}, {width, depth}, {0, depth}};
    const Best best = bestRectangle(task, sums, room);

    const LayoutProposal run = proposalFor(task, LayoutPreference::LongestRun);
    const double arcs = 2 * kPi * task.radius;
    EXPECT_NEAR(run.figures.length, static_cast<double>(best.total) / 10 + arcs, 1e-6) << i;
    const LayoutProposal few = proposalFor(task, LayoutPreference::FewestPieces);
    EXPECT_EQ(few.figures.pieces, static_cast<std::size_t>(best.pieces) + curvesOf(few, task)) << i;
    const LayoutProposal kinds = proposalFor(task, LayoutPreference::FewestKinds);
    EXPECT_EQ(kinds.figures.kinds, static_cast<std::size_t>(best.kinds + task.tracks())) << i;
  }
}

TEST_P(SmallTables, HaveNoLongerStation) {
  const TrackSystem system = GetParam();
  if (!hasStationKit(system))
    return;
  std::mt19937 random(static_cast<unsigned>(system) + 11U);
  for (int i = 0; i < 10; ++i) {
    LayoutTask task;
    task.system = system;
    task.distance = usualEdgeDistance(system);
    task.radius = cornerRadii(system).front();
    task.station = StationWish{0, 1 + static_cast<int>(random() % 2), 0};
    const double bend = 2 * (task.radius + task.distance + bedOf(system));
    const double room =
        (system == TrackSystem::ZTrack ? 700 : 1250) + static_cast<double>(random() % 4000) / 10;
    task.outline = {{0, 0}, {bend + room, 0}, {bend + room, bend}, {0, bend}};
    // What stands beside the station on its side makes it no longer, so that it has all of it.
    const std::vector<long> lengths = stationSums(task, room + 0.05);
    ASSERT_FALSE(lengths.empty());
    const double longest = static_cast<double>(lengths.back()) / 10;
    const LayoutProposal proposal = proposalFor(task, LayoutPreference::LongestStation);
    EXPECT_NEAR(proposal.figures.usableLength, usableOf(task, longest), 6) << i;
    EXPECT_GE(proposal.figures.usableLength, usableOf(task, longest) - 4) << i;
  }
}

INSTANTIATE_TEST_SUITE_P(Systems, SmallTables,
                         testing::Values(TrackSystem::CTrack, TrackSystem::TrixCTrack,
                                         TrackSystem::KTrack, TrackSystem::MTrack,
                                         TrackSystem::ZTrack, TrackSystem::Gauge1));

} // namespace
} // namespace trassix
