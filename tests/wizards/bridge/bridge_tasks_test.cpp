#include "bridge_tasks.h"
#include "document/plan_content.h"
#include "support/plan.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <map>

namespace trassix {
namespace {

constexpr TrackSystem kSystems[]{TrackSystem::CTrack, TrackSystem::TrixCTrack, TrackSystem::KTrack,
                                 TrackSystem::MTrack, TrackSystem::ZTrack,     TrackSystem::Gauge1};
constexpr BridgeWay kWays[]{BridgeWay::LiftOver, BridgeWay::FromEnd, BridgeWay::AsItLies};

/// Of each system, angle and way in; TRASSIX_BRIDGE_TASKS asks for more.
int tasksOfEach() {
  const char* wanted = std::getenv("TRASSIX_BRIDGE_TASKS");
  return wanted == nullptr ? 1 : std::atoi(wanted);
}

TEST(BridgeTasks, AreJudgedByOneWhoSeesFaults) {
  std::mt19937 random(4);
  BridgeCase task = randomCase(random, TrackSystem::KTrack, BridgeWay::LiftOver, 80, 90);
  task.task.limit = 0.05;
  const BridgePlan plan = planBridge(task.layout, task.task);
  ASSERT_TRUE(plan.possible());
  Layout built = task.layout;
  applyBridge(built, task.task);
  EXPECT_EQ(faultIn(task, built, plan), "");
  const auto sink = [&](double by) {
    Layout layout = built;
    for (const std::int32_t id : plan.pieces)
      layout.editPiece(id)->z -= by;
    return layout;
  };
  EXPECT_THAT(faultIn(task, sink(0.02), plan), testing::HasSubstr("step"));
  BridgeCase strict = task;
  strict.task.limit = plan.steepest() - 0.001;
  EXPECT_THAT(faultIn(strict, built, plan), testing::HasSubstr("grade"));
  strict = task;
  strict.task.clearance += plan.spare + 0.5;
  EXPECT_THAT(faultIn(strict, built, plan), testing::HasSubstr("clearance"));
}

TEST(BridgeTasks, AreBuiltSoundlyOrRefusedForAReason) {
  std::map<std::string, int> refusals;
  int accepted = 0;
  int missed = 0;
  for (const TrackSystem system : kSystems)
    for (const BridgeWay way : kWays)
      for (int angle = 20; angle < 90; angle += 14) {
        std::mt19937 random(static_cast<unsigned>(angle + 100 * static_cast<int>(way) +
                                                  1000 * static_cast<int>(system)));
        for (int i = 0; i < tasksOfEach(); ++i) {
          const BridgeCase task = randomCase(random, system, way, angle, angle + 14);
          SCOPED_TRACE(task.about + ", number " + std::to_string(i));
          const BridgePlan plan = planBridge(task.layout, task.task);
          if (!plan.possible()) {
            ++refusals[plan.refusal->text.substr(0, 60)];
            EXPECT_FALSE(plan.refusal->text.empty());
            if (couldClimb(task)) {
              ++missed;
              std::cout << task.about << ": " << plan.refusal->text << "\n";
            }
            continue;
          }
          ++accepted;
          Layout built = task.layout;
          const EditResult result = applyBridge(built, task.task);
          ASSERT_FALSE(result.refusal);
          EXPECT_EQ(faultIn(task, built, plan), "");
          if (!(built.content() == task.layout.content())) {
            built.undo();
            EXPECT_TRUE(built.content() == task.layout.content());
          }
        }
      }
  for (const auto& [text, count] : refusals)
    std::cout << count << " x " << text << "\n";
  std::cout << accepted << " built, " << missed << " missed\n";
  EXPECT_LE(missed * 20, accepted + missed);
}

} // namespace
} // namespace trassix
