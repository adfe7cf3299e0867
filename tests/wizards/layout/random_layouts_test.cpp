// Many random tasks: what is proposed is measured, and what is refused is sought in another way.
#include "catalog/plain_track.h"
#include "catalog/system_kits.h"
#include "laid_track.h"
#include "random_tables.h"
#include "slow_search.h"
#include "wizards/layout/layout_search.h"

#include <gmock/gmock.h>

#include <cstdio>
#include <cstdlib>
#include <map>

namespace trassix {
namespace {

/// In each of six runs; more by hand.
int tasksOfARun() {
  const char* number = std::getenv("TRASSIX_RANDOM_LAYOUTS");
  return number == nullptr ? 40 : std::atoi(number) / 6;
}

class RandomLayouts : public testing::TestWithParam<TrackSystem> {};

TEST_P(RandomLayouts, CloseFitAndAreRefusedOnlyWhereThereIsNone) {
  std::mt19937 random(static_cast<unsigned>(GetParam()) * 7919U + 17U);
  std::map<std::size_t, int> asked;
  std::map<std::size_t, int> exact;
  int made = 0;
  int refused = 0;
  int beyondSlowSearch = 0;
  for (int i = 0; i < tasksOfARun(); ++i) {
    const LayoutTask task = randomTask(GetParam(), random);
    LayoutSearch search(task);
    while (!search.done() && search.proposals().empty() && !search.refusal())
      search.step();
    const std::string told = describe(task);
    const bool roomy = task.outline.size() > 4;
    if (search.proposals().empty()) {
      ++refused;
      ASSERT_TRUE(search.refusal()) << told;
      const SlowVerdict verdict = slowSearch(task);
      EXPECT_NE(verdict, SlowVerdict::Possible) << i << ": " << told;
      beyondSlowSearch += verdict == SlowVerdict::Unknown ? 1 : 0;
      continue;
    }
    ++made;
    const LayoutProposal& best = search.proposals().front();
    const LaidTrack track(best);
    ASSERT_EQ(track.problem(task), "") << i << ": " << told;
    EXPECT_NEAR(std::max(best.figures.residue, best.figures.sidingResidue), track.worstGap(), 1e-3);
    if (!roomy) {
      EXPECT_LT(best.figures.residue, 1e-6) << told;
    }
    if (task.station && hasStationKit(task.system)) {
      EXPECT_GE(best.figures.usableLength, task.station->usableLength) << told;
    }
    ++asked[task.outline.size()];
    exact[task.outline.size()] += best.figures.residue < 1e-6 ? 1 : 0;
  }
  for (const auto& [corners, count] : asked)
    EXPECT_GE(10 * exact[corners], 9 * count) << corners << " corners";
  std::printf("%d made, %d refused, of these %d beyond the slow search\n", made, refused,
              beyondSlowSearch);
  EXPECT_LE(beyondSlowSearch * 50, made + refused);
}

INSTANTIATE_TEST_SUITE_P(Systems, RandomLayouts,
                         testing::Values(TrackSystem::CTrack, TrackSystem::TrixCTrack,
                                         TrackSystem::KTrack, TrackSystem::MTrack,
                                         TrackSystem::ZTrack, TrackSystem::Gauge1));

} // namespace
} // namespace trassix
