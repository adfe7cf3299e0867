#include "editing/autofill/autofill.h"
#include "editing/levels/level_edits.h"
#include "editing/placing/block_placing.h"
#include "editing/placing/inserting.h"
#include "editing/placing/placing.h"
#include "editing/scenery/annotations.h"
#include "editing/selection/moving.h"
#include "editing/selection/property_edits.h"
#include "editing/selection/selection.h"
#include "support/plan.h"
#include "support/print_records.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>

namespace trassix {
namespace {

/// Pieces 1, 2, 3 joined in a row, 4 alone above them; 2 and 3 are selected.
Layout twoChains() {
  Plan plan = Plan().place("24188").extend("24130").extend("24188").place("24172", {700, -300, 90});
  plan.layout.clearSelection();
  plan.layout.editPiece(2)->sel = plan.layout.editPiece(3)->sel = true;
  return plan.layout;
}

Point endOf(const Layout& layout, std::int32_t piece, std::int32_t connector) {
  const WorldConnector end = worldEnd(*layout.findPiece(piece), connector);
  return {end.x, end.y};
}

TEST(Moving, AGroupSnapsAsARigidBodyAndIsJoined) {
  Layout layout = twoChains();
  layout.editPiece(4)->z = 60;
  layout.editPiece(4)->level = 5;
  const PlanContent before = layout.content();
  const Point target = endOf(layout, 4, 0);
  SelectionMove move(layout, endOf(layout, 3, 1)); // grasped at its far end
  move.update({target.x + 9, target.y - 12}, true, SnapIndex(layout));
  EXPECT_NEAR(move.snap().value().distance, 15, 1e-9);
  EXPECT_EQ(layout.content(), before); // dropping the object now is the way to cancel
  ASSERT_TRUE(move.commit(layout));
  EXPECT_EQ(brokenRule(layout), "");
  EXPECT_EQ(layout.findPiece(3)->joints[1], (Joint{4, 0}));
  EXPECT_EQ(layout.findPiece(2)->joints[1], (Joint{3, 0})); // the group stays together
  EXPECT_TRUE(layout.findPiece(1)->joints[1].open());
  EXPECT_EQ(layout.findPiece(2)->level, 5);
  EXPECT_EQ(layout.findPiece(2)->z, 60);
  EXPECT_LT(largestPlay(layout).distance, 1e-9);
  layout.undo();
  EXPECT_EQ(layout.content(), before);

  SelectionMove back(layout, {0, 0}); // snaps to its own old neighbour
  back.update({8, 5}, true, SnapIndex(layout));
  EXPECT_TRUE(back.snap() && !back.opensJoints());
  EXPECT_FALSE(back.commit(layout));

  layout.editPiece(4)->joints[0] = {3, 1}; // of which 3 knows nothing
  SelectionMove blocked(layout, endOf(layout, 3, 1));
  blocked.update({target.x + 9, target.y - 12}, true, SnapIndex(layout));
  EXPECT_FALSE(blocked.snap());
}

TEST(Moving, GradedNeighboursAreAskedForAndFreeTurnsOpenJoints) {
  Layout layout = twoChains();
  layout.editPiece(1)->grade = 1.5;
  SelectionMove move(layout, {0, 0});
  move.turn({188.3, 0}, 40);
  EXPECT_TRUE(move.opensGradedJoints());
  EXPECT_TRUE(move.commit(layout));
  EXPECT_TRUE(layout.findPiece(1)->joints[1].open());
  EXPECT_NEAR(layout.findPiece(2)->heading, 40, 1e-9);
  layout.editPiece(1)->grade = 0; // turned back, the ends meet again and join
  SelectionMove back(layout, {0, 0});
  back.turn({188.3, 0}, -40);
  EXPECT_TRUE(back.commit(layout));
  EXPECT_EQ(layout.findPiece(1)->joints[1], (Joint{2, 0}));
}

TEST(Moving, NudgesAreOneStepAndTakeNotesAlong) {
  Layout layout = twoChains();
  layout.edit().labels.push_back({9, "", 0, 0, true});
  const PlanContent before = layout.content();
  EXPECT_TRUE(nudgeSelection(layout, 0, 0.5, false));
  EXPECT_TRUE(nudgeSelection(layout, 0, 0.5, true));
  EXPECT_TRUE(layout.findPiece(1)->joints[1].open()); // not joined again with a gap
  EXPECT_EQ(layout.content().labels[0].y, 1);
  EXPECT_TRUE(nudgeSelection(layout, 0, -1, true));
  EXPECT_EQ(layout.content(), before);
  EXPECT_FALSE(nudgeSelection(layout, 0, 0, false));
}

TEST(Edge, NothingGoesBeyondThePlan) {
  Plan plan = Plan().place("24188", {999'800, 999'000, 0}).place("24188");
  Layout& layout = plan.layout;
  layout.editPiece(1)->z = 999'950;
  layout.ensureLevel(2);
  layout.editSettings().levels[1].height = 100;
  dropScenery(layout, "74861", {});
  addShape(layout, {{-1e6, -1e6}, {0, 0}, {0, 50}});
  layout.editPiece(1)->sel = true;
  nudgeSelection(layout, 1, 1, false);
  layout.undo();
  const auto refusedIf = [](bool none) {
    return none ? std::optional(beyondPlan()) : std::nullopt;
  };
  const struct {
    const char* name;
    std::function<std::optional<Notice>(Layout&)> refusal;
  } cases[] = {
      {"drop",
       [](Layout& l) {
         return dropPiece(l, "24188", {0, 1e19, 0}, {}, true).refusal;
       }},
      {"far end",
       [](Layout& l) {
         return dropPiece(l, "24188", {-999'900, 0, 180}, {}, true).refusal;
       }},
      {"clone", [](Layout& l) { return cloneAndExtend(l, 1).refusal; }},
      {"extend", [](Layout& l) { return extendSelected(l, "24188").refusal; }},
      {"scenery",
       [](Layout& l) {
         return dropScenery(l, "74861", {-1e7, 0, 0}).refusal;
       }},
      {"block",
       [](Layout& l) {
         return placeBlock(l, blockFromSelection(l), {300, 0, 0}).refusal;
       }},
      {"nudge", [](Layout& l) { return nudgeSelection(l, 201, 0, false).refusal; }},
      {"turn", [](Layout& l) { return rotateSelection(l, 45).refusal; }},
      {"drag",
       [](Layout& l) {
         SelectionMove move(l, {0, 0});
         move.update({0, -9}, false, SnapIndex(l));
         return move.commit(l).refusal;
       }},
      {"height", [](Layout& l) { return setTrackHeight(l, 2, -1e7).refusal; }},
      {"level", [](Layout& l) { return setSelectedLevel(l, 2).refusal; }},
      {"levels",
       [](Layout& l) {
         LevelChange change{l.settings().levels, 1, {}, {}};
         change.levels[0].height = 51;
         return setLevels(l, change).refusal;
       }},
      {"pose",
       [&](Layout& l) {
         return refusedIf(!setPiecePose(l, 2, {2e6, 0, 0}));
       }},
      {"label",
       [&](Layout& l) {
         return refusedIf(addLabel(l, {0, 2e6}, "x") == -1);
       }},
      {"tape",
       [&](Layout& l) {
         return refusedIf(addMeasurement(l, {}, {2e6, 0}) == -1);
       }},
      {"record",
       [&](Layout& l) {
         SceneryItem item = l.content().scenery[0];
         item.scalex = 1001;
         return refusedIf(!replaceRecord(l, item));
       }},
      {"headings, scales and measures",
       [&](Layout& l) {
         SceneryItem item = l.content().scenery[0];
         item.heading = NAN;
         Block block;
         block.content.scenery = l.content().scenery;
         block.content.scenery[0].scaley = 0;
         return refusedIf(!replaceRecord(l, item) && !setPiecePose(l, 2, {0, 0, NAN}) &&
                          dropScenery(l, "74861", {0, 0, NAN}).refusal &&
                          placeBlock(l, block, {}).refusal &&
                          !setBaseboard(l, {{0, 0}, {9, 0}, {0, 9}}, {0, 1e7, 1, 1, 1}));
       }},
      {"end of a climb",
       [](Layout&) {
         Layout l = Plan().place("24188").extend("24188").place("24188", {753.2, 0, 0}).layout;
         for (PlacedPiece& piece : l.edit().pieces)
           piece.z = 1e6;
         l.editPiece(1)->grade = l.editPiece(2)->grade = 1;
         const auto inserted = insertPiece(l, "24188", {1, 1, 0, 1, {}}).refusal;
         const auto fills = solveAutofill(l, 2, 3);
         return inserted ? placeFill(l, *fills->gap, fills->candidates.at(0)).refusal : inserted;
       }},
  };
  const std::uint64_t before = layout.revision();
  for (const auto& c : cases) {
    EXPECT_EQ(c.refusal(layout), beyondPlan()) << c.name;
    EXPECT_TRUE(layout.revision() == before && layout.canRedo()) << c.name;
  }
}

TEST(Undo, AnEditThatChangesNothingIsNoStep) {
  const std::function<ChangeResult(Layout&)> edits[] = {
      [](Layout& plan) { return rotateSelection(plan, 360); },
      [](Layout& plan) { return rotateSelection(plan, -720); },
      [](Layout& plan) { return nudgeSelection(plan, 0, 0, false); },
      [](Layout& plan) {
        SelectionMove move(plan, {7, 8});
        move.turn({3, 4}, 360);
        return move.commit(plan);
      },
      [](Layout& plan) {
        const Pose pose = poseOf(*plan.findPiece(2));
        return setPiecePose(plan, 2, {pose.x, pose.y, pose.heading - 720});
      },
      [](Layout& plan) { return setTrackHeight(plan, 2, 0); },
      [](Layout& plan) { return setSelectedLevel(plan, 1); },
      [](Layout& plan) { return setSelectedColor(plan, {}); },
      [](Layout& plan) { return extendSelected(plan, "2200").changed(); }, // fits nowhere
  };
  Layout plan = twoChains();
  selectAll(plan);
  rotateSelection(plan, 36.87);
  plan.editPiece(3)->sel = false;
  rotateSelection(plan, 10);
  plan.undo();
  const PlanContent before = plan.content();
  for (const auto& edit : edits) {
    EXPECT_FALSE(edit(plan)) << &edit - edits;
    EXPECT_TRUE(plan.content() == before) << &edit - edits;
    EXPECT_TRUE(plan.canRedo()) << &edit - edits;
  }
}

} // namespace
} // namespace trassix
