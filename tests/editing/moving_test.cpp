#include "catalog/track_catalog.h"
#include "editing/moving.h"
#include "editing/placing.h"
#include "editing/selection.h"
#include "support/plan.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

namespace trassix {
namespace {

void select(Layout& layout, std::initializer_list<std::int32_t> ids) {
  layout.clearSelection();
  for (const std::int32_t id : ids)
    layout.editPiece(id)->sel = true;
}

/// Two chains: pieces 1, 2, 3 in a row at y 0, and 4 alone above them.
Plan twoChains() {
  Plan plan;
  plan.place("24188").extend("24130").extend("24188");
  plan.place("24172", {700, -300, 90});
  return plan;
}

TEST(Moving, NothingHappensBeforeCommitAndOneUndoBringsAllBack) {
  Plan plan = twoChains();
  select(plan.layout, {2, 3});
  const PlanContent before = plan.layout.content();
  SelectionMove move(plan.layout, {200, 0});
  move.update({600, 400}, false, SnapIndex(plan.layout));
  EXPECT_TRUE(move.opensJoints());
  EXPECT_FALSE(move.opensGradedJoints());
  EXPECT_EQ(plan.layout.content(), before); // dropping the object now is the way to cancel

  ASSERT_TRUE(move.commit(plan.layout));
  EXPECT_EQ(brokenRule(plan.layout), "");
  EXPECT_TRUE(plan.layout.findPiece(1)->joints[1].open());
  EXPECT_EQ(plan.layout.findPiece(2)->joints[1], (Joint{3, 0})); // the group stays together
  EXPECT_NEAR(plan.layout.findPiece(2)->y, 400, 1e-9);
  EXPECT_LT(largestPlay(plan.layout).distance, 1e-9);
  plan.layout.undo();
  EXPECT_EQ(plan.layout.content(), before);
}

TEST(Moving, AGroupSnapsAsARigidBodyAndIsJoined) {
  Plan plan = twoChains();
  plan.layout.editPiece(4)->z = 60;
  plan.layout.editPiece(4)->level = 5;
  select(plan.layout, {2, 3});
  const WorldConnector target =
      ConnectorToWorld(*plan.layout.findPiece(4), *definitionOf(*plan.layout.findPiece(4)), 0);
  // Grasp the far end of the group and bring it near the upper chain's start.
  const WorldConnector end =
      ConnectorToWorld(*plan.layout.findPiece(3), *definitionOf(*plan.layout.findPiece(3)), 1);
  SelectionMove move(plan.layout, {end.x, end.y});
  move.update({target.x + 9, target.y - 12}, true, SnapIndex(plan.layout));
  ASSERT_TRUE(move.snap());
  EXPECT_NEAR(move.snap()->distance, 15, 1e-9);
  EXPECT_EQ(move.snappingPiece(), 3);
  EXPECT_TRUE(move.commit(plan.layout));
  EXPECT_EQ(brokenRule(plan.layout), "");
  EXPECT_EQ(plan.layout.findPiece(3)->joints[1], (Joint{4, 0}));
  EXPECT_EQ(plan.layout.findPiece(2)->level, 5);
  EXPECT_EQ(plan.layout.findPiece(2)->z, 60);
  EXPECT_LT(largestPlay(plan.layout).distance, 1e-9);
  EXPECT_LT(largestPlay(plan.layout).heading, 1e-9);
}

TEST(Moving, BackToWhereItWasChangesNothing) {
  Plan plan = twoChains();
  select(plan.layout, {2});
  const std::uint64_t revision = plan.layout.revision();
  SelectionMove move(plan.layout, {0, 0});
  move.update({8, 5}, true, SnapIndex(plan.layout)); // snaps to its own old neighbour
  ASSERT_TRUE(move.snap());
  EXPECT_FALSE(move.opensJoints());
  EXPECT_FALSE(move.commit(plan.layout));
  EXPECT_EQ(plan.layout.revision(), revision);
}

TEST(Moving, GradedNeighboursAreAskedForAndFreeTurnsOpenJoints) {
  Plan plan = twoChains();
  plan.layout.editPiece(1)->grade = 1.5;
  select(plan.layout, {2, 3});
  SelectionMove move(plan.layout, {0, 0});
  move.turn({188.3, 0}, 40);
  EXPECT_TRUE(move.opensGradedJoints());
  EXPECT_TRUE(move.commit(plan.layout));
  EXPECT_TRUE(plan.layout.findPiece(1)->joints[1].open());
  EXPECT_NEAR(plan.layout.findPiece(2)->heading, 40, 1e-9);
  // Turned back, the ends meet again and join (now that they are at one height).
  plan.layout.editPiece(1)->grade = 0;
  SelectionMove back(plan.layout, {0, 0});
  back.turn({188.3, 0}, -40);
  EXPECT_TRUE(back.commit(plan.layout));
  EXPECT_EQ(plan.layout.findPiece(1)->joints[1], (Joint{2, 0}));
}

TEST(Moving, NudgesAreOneStepAndTakeNotesAlong) {
  Plan plan = twoChains();
  plan.layout.edit().labels.push_back({.id = 90, .text = "Yard", .x = 5, .y = 6, .sel = true});
  select(plan.layout, {1});
  plan.layout.edit().labels[0].sel = true;
  const PlanContent before = plan.layout.content();
  EXPECT_TRUE(nudgeSelection(plan.layout, 0, 0.5, false));
  EXPECT_TRUE(nudgeSelection(plan.layout, 0, 0.5, true));
  EXPECT_TRUE(plan.layout.findPiece(1)->joints[1].open()); // not rejoined with a gap
  EXPECT_EQ(plan.layout.content().labels[0].y, 7);
  EXPECT_TRUE(nudgeSelection(plan.layout, 0, -1, true));
  EXPECT_EQ(plan.layout.content(), before);
  plan.layout.undo();
  EXPECT_EQ(plan.layout.content(), before);
  EXPECT_FALSE(nudgeSelection(plan.layout, 0, 0, false));
}

/// The plain loops over all pairs of ends that the index must agree with.
std::optional<std::pair<Joint, Joint>> plainGroupSnap(const Layout& layout, Point shift) {
  double best = std::numeric_limits<double>::max();
  std::optional<std::pair<Joint, Joint>> found;
  const auto group = selectedPieces(layout);
  const auto ends = endsOf(layout);
  const auto inGroup = [&](std::int32_t id) { return containsId(group, id); };
  for (const PlacedEnd& target : ends) {
    if (inGroup(target.piece) || !target.visible ||
        (target.joinedTo != -1 && !inGroup(target.joinedTo)))
      continue;
    for (const PlacedEnd& own : ends) {
      if (!inGroup(own.piece) || (own.joinedTo != -1 && inGroup(own.joinedTo)))
        continue;
      const double distance =
          std::hypot(target.at.x - (own.at.x + shift.x), target.at.y - (own.at.y + shift.y));
      if (own.system == target.system && distance <= 25.0 && distance < best &&
          headingDifference(own.heading, target.heading) >= 20.0) {
        best = distance;
        found = {{own.piece, own.connector}, {target.piece, target.connector}};
      }
    }
  }
  return found;
}

TEST(Moving, GroupSnapAgreesWithPlainLoops) {
  std::mt19937 random(77);
  const auto any = [&random](int from, int to) {
    return std::uniform_int_distribution<int>(from, to)(random);
  };
  constexpr const char* kArticles[] = {"24188", "24130", "24612", "24640", "8500", "24922"};
  int snapped = 0;
  for (int round = 0; round < 300; ++round) {
    Layout layout;
    for (int i = 0; i < 25; ++i) {
      const char* article = kArticles[any(0, 5)];
      const Pose pose{any(0, 40) * 12.5, any(0, 40) * 12.5, any(0, 11) * 30.0};
      const SnapResult snap =
          FindSnap(*TrackCatalog::instance().find(article), pose, layout.pieces());
      dropPiece(layout, article, pose, snap, false);
    }
    for (PlacedPiece& piece : layout.edit().pieces)
      piece.sel = any(0, 3) == 0;
    const Point shift{any(-8, 8) * 12.5, any(-8, 8) * 12.5};
    SelectionMove move(layout, {0, 0});
    move.update(shift, true, SnapIndex(layout));
    const auto plain = plainGroupSnap(layout, shift);
    ASSERT_EQ(move.snap().has_value(), plain.has_value()) << round;
    if (!plain)
      continue;
    ++snapped;
    EXPECT_EQ((Joint{move.snappingPiece(), move.snap()->newConnector}), plain->first) << round;
    EXPECT_EQ((Joint{move.snap()->target, move.snap()->targetConnector}), plain->second) << round;
  }
  EXPECT_GT(snapped, 100);
}

} // namespace
} // namespace trassix
