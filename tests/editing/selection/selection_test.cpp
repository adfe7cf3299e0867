#include "document/block.h"
#include "document/layout_reader.h"
#include "document/layout_writer.h"
#include "document/record_kinds.h"
#include "editing/placing/block_placing.h"
#include "editing/placing/placing.h"
#include "editing/selection/selection.h"
#include "editing/track/connector_geometry.h"
#include "support/plan.h"

#include <gtest/gtest.h>

#include <cmath>
#include <tuple>

namespace trassix {
namespace {

TEST(Selection, RotationTurnsAboutTheBoxAndOpensOuterJoints) {
  Plan single;
  single.place("24188", {100, 40, 0}); // turns about the middle of its ends
  EXPECT_TRUE(rotateSelection(single.layout, 90));
  EXPECT_NEAR(single.layout.pieces()[0].y, 40 - 94.15, 1e-9);

  Plan chain = Plan().place("24188").extend("24188").extend("24188");
  selectOnly(chain.layout, 2);
  Shape shape;
  shape.points = {{150, 0}, {420, 0}, {420, 100}};
  shape.sel = true;
  chain.layout.edit().shapes.push_back(shape);
  rotateSelection(chain.layout, 15);
  EXPECT_EQ(openEnds(chain.layout), 6);
  EXPECT_NE(chain.layout.content().shapes[0].points, shape.points);
  for (int i = 1; i < 24; ++i)
    rotateSelection(chain.layout, 15);
  EXPECT_EQ(openEnds(chain.layout), 2); // all the way round it lies where it was
  chain.layout.clearSelection();
  EXPECT_FALSE(rotateSelection(chain.layout, 15));
}

TEST(Selection, BoxTakesInEndsApexesAndFootprints) {
  Plan plan = Plan().place("24130");
  const Box box = selectionBox(plan.layout).value();
  EXPECT_NEAR(box.minY, -360 * (1 - std::cos(toRadians(15))), 1e-9);
  EXPECT_NEAR(box.maxY, 360 * (1 - std::cos(toRadians(30))), 1e-9);
  plan.layout.clearSelection();
  EXPECT_FALSE(selectionBox(plan.layout));

  Layout scenery; // scaled, unturned; a point when nobody knows its size
  dropScenery(scenery, "72886", {100, 200, 90});
  scenery.edit().scenery[0].scalex = 2;
  EXPECT_EQ(selectionBox(scenery), (Box{100 - 368, 200 - 173, 100 + 368, 200 + 173}));
  scenery.edit().scenery[0].item = "unknown";
  EXPECT_EQ(selectionBox(scenery), (Box{100, 200, 100, 200}));
}

TEST(Selection, ChainFollowsJointsAndAllLeavesHiddenLevelsOut) {
  Plan plan;
  plan.place("24612").extend("24188").at(1, 2).extendLeft("24224").place("24188", {0, 500, 0});
  EXPECT_EQ(chainOf(plan.layout, 3), (std::vector<std::int32_t>{1, 2, 3}));
  EXPECT_TRUE(chainOf(plan.layout, 99).empty());
  plan.layout.ensureLevel(2);
  plan.layout.editSettings().levels[1].visible = false;
  plan.layout.editPiece(2)->level = 2;
  plan.layout.editPiece(1)->level = 9; // not in the list: visible
  selectAll(plan.layout);
  EXPECT_EQ(selectedPieces(plan.layout), (std::vector<std::int32_t>{1, 3, 4}));
}

TEST(Selection, DeletingOpensNeighboursAndForgetsThePiece) {
  Plan plan = Plan().place("24188").extend("24130").extend("24188");
  selectOnly(plan.layout, 2);
  plan.layout.startGradeRun(1, 1, 2.0);
  plan.layout.startGradeRun(2, 1, 3.0);
  plan.layout.edit().tunnels = {{9, -1, -1, -1, -1, {1, 2, 3}}};
  EXPECT_TRUE(deleteSelection(plan.layout));
  EXPECT_EQ(openEnds(plan.layout), 4);
  EXPECT_EQ(plan.layout.content().tunnels[0].covers, (std::vector<std::int32_t>{1, 3}));
  EXPECT_EQ(plan.layout.content().gradeRuns, (std::vector<GradeRun>{{2.0, 1, 1}}));
  EXPECT_EQ(plan.layout.content().currentGrade, (CurrentGrade{true, 2.0, 1, 1}));
  EXPECT_FALSE(deleteSelection(plan.layout));
}

TEST(Selection, DeletingOneOfAPairTakesTheOtherAndNoNeighbour) {
  // Clones behind the dropped pair, saved and loaded, what is deleted, what is left.
  const std::tuple<int, bool, std::int32_t, std::vector<std::int32_t>> cases[] = {
      {0, false, 1, {}},        {1, false, 3, {1, 2}},    {1, false, 2, {3}},
      {2, false, 4, {1, 2, 3}}, {2, false, 3, {1, 2, 4}}, {0, true, 2, {}},
      {1, true, 3, {1, 2}},     {2, true, 1, {2, 3, 4}},
  };
  for (const auto& [clones, loaded, deleted, left] : cases) {
    SCOPED_TRACE(testing::Message() << clones << loaded << deleted);
    Layout layout = Plan().place("74618").layout;
    for (int i = 0; i < clones; ++i)
      cloneAndExtend(layout, i + 2);
    if (loaded) {
      std::string text;
      std::string name;
      writeLayout(layout, "ramps", text);
      readLayout(text, layout, name);
    }
    for (int again = 0; again < 2; ++again) { // undo brings back what belongs together
      selectOnly(layout, deleted);
      deleteSelection(layout);
      selectAll(layout);
      EXPECT_EQ(selectedPieces(layout), left);
      layout.undo();
    }
  }
  Layout layout = Plan().place("74618").layout;
  layout.ensureLevel(2);
  layout.editSettings().levels.back().visible = false;
  layout.editPiece(2)->level = 2;
  selectOnly(layout, 1);
  deleteSelection(layout); // alone, since the other is out of sight
  EXPECT_NE(layout.findPiece(2), nullptr);
  layout.undo();
  layout.editPiece(2)->level = 1;
  selectAll(layout); // a copy of both is a pair as well, a copy of one is none
  placeBlock(layout, blockFromSelection(layout), {0, 500, 0});
  std::string text;
  writeBlock(blockFromSelection(layout), [&text](std::string_view part) { text += part; });
  Block loaded;
  readBlock(text, loaded);
  EXPECT_EQ(loaded.content.pairs.size(), 1U);
  selectOnly(layout, 4);
  placeBlock(layout, blockFromSelection(layout), {0, 900, 0});
  deleteSelection(layout); // 5
  selectOnly(layout, 3);
  selectPartners(layout); // as before a cut
  EXPECT_EQ(selectedPieces(layout), (std::vector<std::int32_t>{3, 4}));
  layout.edit().tunnels = {{9, 2, -1, -1, -1, {}}};
  layout.editPiece(1)->sel = true; // whose partner must not go
  deleteSelection(layout);
  selectAll(layout);
  EXPECT_EQ(selectedPieces(layout), std::vector<std::int32_t>{2});
}

TEST(Selection, HelixAndTunnelTrackIsGuarded) {
  Plan plan = Plan().place("24188").extend("24130").extend("24188");
  plan.layout.edit().tunnels.resize(1);
  plan.layout.edit().tunnels[0].portalA = 50;
  plan.layout.edit().tunnels[0].covers = {2};
  plan.layout.edit().scenery.resize(1);
  plan.layout.edit().scenery[0].id = 50;
  const Notice locked{
      "Tunnel is locked",
      "Selection includes tunnel track or portals. Remove the tunnel first, then delete.",
      Notice::Icon::Information};
  selectOnly(plan.layout, 1);
  EXPECT_FALSE(lockGuard(plan.layout, "delete"));
  plan.layout.edit().scenery[0].sel = true;
  EXPECT_EQ(lockGuard(plan.layout, "delete"), locked);
  selectOnly(plan.layout, 2);
  EXPECT_EQ(lockGuard(plan.layout, "delete"), locked);
  selectAll(plan.layout);
  plan.layout.editPiece(3)->helix = 4; // is reported although a tunnel piece comes first
  EXPECT_EQ(lockGuard(plan.layout, "delete"),
            (Notice{"Helix track is locked",
                    "Selection includes track that is part of a helix. Helix track cannot be "
                    "deleteed individually.",
                    Notice::Icon::Information}));
}

} // namespace
} // namespace trassix
