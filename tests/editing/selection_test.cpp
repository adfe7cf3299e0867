#include "editing/connector_geometry.h"
#include "editing/placing.h"
#include "editing/selection.h"
#include "support/plan.h"

#include <gtest/gtest.h>

#include <cmath>

namespace trassix {
namespace {

TEST(Selection, RotationTurnsAboutTheBoxAndOpensOuterJoints) {
  Plan single;
  single.place("24188", {100, 40, 0});
  selectAll(single.layout);
  EXPECT_TRUE(rotateSelection(single.layout, 90));
  EXPECT_NEAR(single.layout.pieces()[0].x, 100 + 94.15, 1e-9); // about the middle of its ends
  EXPECT_NEAR(single.layout.pieces()[0].y, 40 - 94.15, 1e-9);
  EXPECT_EQ(single.layout.pieces()[0].heading, 90);

  Plan chain;
  chain.place("24188").extend("24188").extend("24188");
  selectOnly(chain.layout, 2);
  Shape shape;
  shape.points = {{150, 0}, {420, 0}, {420, 100}};
  shape.sel = true;
  chain.layout.edit().shapes.push_back(shape);
  const PlanContent before = chain.layout.content();
  rotateSelection(chain.layout, 15);
  EXPECT_EQ(openEnds(chain.layout), 6);
  EXPECT_EQ(brokenRule(chain.layout), "");
  EXPECT_NE(chain.layout.content().shapes[0].points, before.shapes[0].points);
  for (int i = 1; i < 24; ++i)
    rotateSelection(chain.layout, 15);
  EXPECT_EQ(openEnds(chain.layout), 2); // all the way round it lies where it was
  for (int i = 0; i < 24; ++i)
    chain.layout.undo();
  EXPECT_EQ(chain.layout.content(), before);

  chain.layout.clearSelection();
  EXPECT_FALSE(rotateSelection(chain.layout, 15));
}

TEST(Selection, BoxTakesInEndsAndApexes) {
  Plan plan;
  plan.place("24130");
  selectAll(plan.layout);
  const std::optional<Box> box = selectionBox(plan.layout);
  ASSERT_TRUE(box);
  EXPECT_NEAR(box->minY, -360 * (1 - std::cos(toRadians(15))), 1e-9);
  EXPECT_NEAR(box->maxX, 180, 1e-9);
  EXPECT_NEAR(box->maxY, 360 * (1 - std::cos(toRadians(30))), 1e-9);
  plan.layout.clearSelection();
  EXPECT_FALSE(selectionBox(plan.layout));

  // Scenery by its scaled footprint, unturned; as a point when nobody knows its size.
  Layout scenery;
  dropScenery(scenery, "72886", {100, 200, 90});
  scenery.edit().scenery[0].scalex = 2;
  EXPECT_EQ(selectionBox(scenery), (Box{100 - 368, 200 - 173, 100 + 368, 200 + 173}));
  scenery.edit().scenery[0].item = "unknown";
  EXPECT_EQ(selectionBox(scenery), (Box{100, 200, 100, 200}));
}

TEST(Selection, ChainFollowsJointsOnly) {
  Plan plan;
  plan.place("24612").extend("24188").at(1, 2).extendLeft("24224").place("24188", {0, 500, 0});
  EXPECT_EQ(chainOf(plan.layout, 3), (std::vector<std::int32_t>{1, 2, 3}));
  EXPECT_EQ(chainOf(plan.layout, 4), (std::vector<std::int32_t>{4}));
  EXPECT_TRUE(chainOf(plan.layout, 99).empty());
}

TEST(Selection, DeletingOpensNeighboursAndForgetsThePiece) {
  Plan plan;
  plan.place("24188").extend("24130").extend("24188");
  selectOnly(plan.layout, 2);
  plan.layout.startGradeRun(1, 1, 2.0);
  plan.layout.startGradeRun(2, 1, 3.0);
  Tunnel tunnel;
  tunnel.id = 70;
  tunnel.covers = {1, 2, 3};
  plan.layout.edit().tunnels.push_back(tunnel);
  const PlanContent before = plan.layout.content();

  EXPECT_TRUE(deleteSelection(plan.layout));
  EXPECT_EQ(plan.layout.pieces().size(), 2u);
  EXPECT_EQ(brokenRule(plan.layout), "");
  EXPECT_EQ(openEnds(plan.layout), 4);
  EXPECT_EQ(plan.layout.content().tunnels[0].covers, (std::vector<std::int32_t>{1, 3}));
  ASSERT_EQ(plan.layout.content().gradeRuns.size(), 1u);
  EXPECT_EQ(plan.layout.content().currentGrade, (CurrentGrade{true, 2.0, 1, 1}));
  plan.layout.undo();
  EXPECT_EQ(plan.layout.content(), before);

  plan.layout.clearSelection();
  const std::uint64_t revision = plan.layout.revision();
  EXPECT_FALSE(deleteSelection(plan.layout));
  EXPECT_EQ(plan.layout.revision(), revision);
}

TEST(Selection, HelixAndTunnelTrackIsGuarded) {
  Plan plan;
  plan.place("24188").extend("24130").extend("24188");
  Tunnel tunnel;
  tunnel.portalA = 50;
  tunnel.portalB = -1;
  tunnel.covers = {2};
  plan.layout.edit().tunnels.push_back(tunnel);
  plan.layout.edit().scenery.push_back({.id = 50, .item = "portal", .sel = false});
  selectOnly(plan.layout, 1);
  EXPECT_FALSE(lockGuard(plan.layout, "delete"));
  selectOnly(plan.layout, 2);
  const Notice locked{
      "Tunnel is locked",
      "Selection includes tunnel track or portals. Remove the tunnel first, then delete.",
      Notice::Icon::Information};
  EXPECT_EQ(lockGuard(plan.layout, "delete"), locked);
  plan.layout.clearSelection();
  plan.layout.edit().scenery[0].sel = true;
  EXPECT_EQ(lockGuard(plan.layout, "delete"), locked);
  selectAll(plan.layout);
  plan.layout.editPiece(3)->helix = 4; // is reported although a tunnel piece comes first
  EXPECT_EQ(lockGuard(plan.layout, "delete"),
            (Notice{"Helix track is locked",
                    "Selection includes track that is part of a helix. Helix track cannot be "
                    "deleteed individually.",
                    Notice::Icon::Information}));
}

TEST(Selection, AllLeavesHiddenLevelsOut) {
  Plan plan;
  plan.place("24188").place("24188", {0, 200, 0});
  plan.layout.ensureLevel(2);
  plan.layout.editSettings().levels[1].visible = false;
  plan.layout.editPiece(2)->level = 2;
  plan.layout.editPiece(1)->level = 9; // not in the list: visible
  selectAll(plan.layout);
  EXPECT_EQ(selectedPieces(plan.layout), std::vector<std::int32_t>{1});
}

} // namespace
} // namespace trassix
