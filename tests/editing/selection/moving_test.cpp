#include "document/block.h"
#include "document/record_kinds.h"
#include "editing/autofill/autofill.h"
#include "editing/levels/level_edits.h"
#include "editing/placing/block_placing.h"
#include "editing/placing/inserting.h"
#include "editing/placing/placing.h"
#include "editing/scenery/annotations.h"
#include "editing/selection/moving.h"
#include "editing/selection/property_edits.h"
#include "editing/selection/selection.h"
#include "support/loose_records.h"
#include "support/plan.h"
#include "support/print_records.h"

#include <gtest/gtest.h>

#include <cmath>

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
  const std::uint64_t before = layout.revision();
  const auto refused = [&](const char* edit, bool byNotice) {
    EXPECT_TRUE(byNotice) << edit;
    EXPECT_TRUE(layout.revision() == before && layout.canRedo()) << edit;
  };
  const auto is = [](const auto& result) { return result.refusal == beyondPlan(); };
  refused("drop", is(dropPiece(layout, "24188", {0, 1e19, 0}, {}, true)));
  refused("far end", is(dropPiece(layout, "24188", {-999'900, 0, 180}, {}, true)));
  refused("clone", is(cloneAndExtend(layout, 1)));
  refused("extend", is(extendSelected(layout, "24188")));
  refused("scenery", is(dropScenery(layout, "74861", {-1e7, 0, 0})));
  refused("block", is(placeBlock(layout, blockFromSelection(layout), {300, 0, 0})));
  refused("nudge", is(nudgeSelection(layout, 201, 0, false)));
  refused("turn", is(rotateSelection(layout, 45)));
  SelectionMove drag(layout, {0, 0});
  drag.update({0, -9}, false, SnapIndex(layout));
  refused("drag", is(drag.commit(layout)));
  refused("height", is(setTrackHeight(layout, 2, -1e7)));
  refused("level", is(setSelectedLevel(layout, 2)));
  for (const auto& [level, height] : {std::pair{0U, 51.0}, {1U, 2e6}}) { // with track and without
    LevelChange change{layout.settings().levels, 1, {}, {}};
    change.levels[level].height = height;
    refused("levels", is(setLevels(layout, change)));
  }
  refused("pose", !setPiecePose(layout, 2, {2e6, 0, 0}));
  refused("label", addLabel(layout, {0, 2e6}, "x") == -1);
  refused("tape", addMeasurement(layout, {}, {2e6, 0}) == -1);
  refused("shape", addShape(layout, test::shapeOf(-1, {{0, 0}, {9, 0}, {9, 9}}, 1, 2e6)) == -1);
  SceneryItem item = layout.content().scenery[0];
  item.scalex = 1001;
  refused("record", !replaceRecord(layout, item));
  item = layout.content().scenery[0];
  item.heading = NAN;
  refused("heading of scenery", !replaceRecord(layout, item));
  Block block;
  block.content.scenery = layout.content().scenery;
  block.content.scenery[0].x = 999'800;
  refused("scenery of a block", is(placeBlock(layout, block, {300, 0, 0})));
  block.content.scenery[0].x = block.content.scenery[0].scaley = 0;
  refused("scale in a block", is(placeBlock(layout, block, {})));
  block.content.scenery.clear();
  block.content.helices = {{3, 999'800, 0, 0, "proses_2_5_r1r2", 2, -1, 2, -1}};
  block.content.pieces = {layout.pieces()[1]};
  block.content.pieces[0].helix = 3;
  refused("helix of a block", is(placeBlock(layout, block, {300, 0, 0})));
  refused("heading of a piece", !setPiecePose(layout, 2, {0, 0, NAN}));
  refused("heading of a drop", is(dropScenery(layout, "74861", {0, 0, NAN})));
  refused("measures", !setBaseboard(layout, {{0, 0}, {9, 0}, {0, 9}}, {0, 1e7, 1, 1, 1}));

  Layout climb = Plan().place("24188").extend("24188").place("24188", {753.2, 0, 0}).layout;
  for (PlacedPiece& piece : climb.edit().pieces)
    piece.z = 1e6;
  climb.editPiece(1)->grade = climb.editPiece(2)->grade = 1;
  EXPECT_TRUE(is(insertPiece(climb, "24188", {1, 1, 0, 1, {}})));
  const Autofill fills = solveAutofill(climb, 2, 3).value();
  EXPECT_TRUE(is(placeFill(climb, *fills.gap, fills.candidates.at(0))));
  Plan gap = Plan().place("24188", {999'888.3, 0, 180}).place("24188", {999'700, 720, 0});
  const Autofill arcs = solveAutofill(gap.layout, 1, 2).value();
  EXPECT_TRUE(is(placeFill(gap.layout, *arcs.gap, arcs.candidates.at(0))));
  Plan row = Plan().place("24188", {999'990, 0, 180}).extend("24188", 2);
  EXPECT_TRUE(is(insertPiece(row.layout, "24188", {1, 1, 0, 1, {}})));
  Layout decks =
      Plan().place("24188").place("24188", {0, 300, 0}).place("24172", {400, 300}).layout;
  decks.editPiece(1)->z = 999'950;
  decks.editPiece(3)->z = 51;
  decks.editPiece(3)->sel = false;
  decks.editPiece(1)->sel = decks.editPiece(2)->sel = true;
  SelectionMove move(decks, {188.3, 300});
  move.update({398, 301}, true, SnapIndex(decks));
  EXPECT_TRUE(is(move.commit(decks))) << "one of them is lifted too far";
  Layout plans[3];
  dropScenery(plans[0], "74861", {1e6, 0, 0});
  addLabel(plans[1], {1e6, 0}, "x");
  addMeasurement(plans[2], {1e6, 0}, {});
  for (Layout& each : plans)
    EXPECT_TRUE(is(nudgeSelection(each, 1, 0, false))) << &each - plans;
}

TEST(Undo, AnEditThatChangesNothingIsNoStep) {
  Layout plan = twoChains();
  selectAll(plan);
  rotateSelection(plan, 36.87);
  plan.editPiece(3)->sel = false;
  rotateSelection(plan, 10);
  plan.undo();
  const PlanContent before = plan.content();
  const auto still = [&](const char* edit, const ChangeResult& result) {
    EXPECT_FALSE(result) << edit;
    EXPECT_TRUE(plan.content() == before && plan.canRedo()) << edit;
  };
  still("turn", rotateSelection(plan, 360));
  still("turn back", rotateSelection(plan, -720));
  still("nudge", nudgeSelection(plan, 0, 0, false));
  SelectionMove move(plan, {7, 8});
  move.turn({3, 4}, 360);
  still("drag", move.commit(plan));
  const Pose pose = poseOf(*plan.findPiece(2));
  still("pose", setPiecePose(plan, 2, {pose.x, pose.y, pose.heading - 720}));
  still("height", setTrackHeight(plan, 2, 0));
  still("level", setSelectedLevel(plan, 1));
  still("colour", setSelectedColor(plan, {}));
  still("what fits nowhere", extendSelected(plan, "2200").changed());
}

} // namespace
} // namespace trassix
