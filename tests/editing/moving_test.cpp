#include "editing/moving.h"
#include "editing/placing.h"
#include "editing/selection.h"
#include "support/plan.h"

#include <gtest/gtest.h>

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

} // namespace
} // namespace trassix
