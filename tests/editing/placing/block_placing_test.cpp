#include "document/block.h"
#include "document/record_kinds.h"
#include "editing/placing/block_placing.h"
#include "editing/selection/selection.h"
#include "support/loose_records.h"
#include "support/plan.h"
#include "support/print_records.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace trassix::test {
namespace {

TEST(BlockPlacing, turnsMovesAndRenumbersAsOneStep) {
  Layout layout = Plan().place("24188", {1000, 1000, 0}).layout;
  layout.ensureLevel();
  const PlanContent before = layout.content();
  Block block;
  block.content.pieces = {loosePiece(40, "24188", {}, {{99, 1}, {7, 0}}),
                          loosePiece(7, "24188", {188.3, 0}, {{40, 1}, {}})};
  block.content.pieces[0].heading = 350;
  block.content.pieces[1].level = 5;
  block.content.pieces[1].helix = 3;
  block.content.scenery = {{40, "house", 10, 20, 300, 1, 1, 8, false}};

  const EditResult result = placeBlock(layout, block, {100, 50, 90});
  EXPECT_EQ(result.placed, (std::vector<std::int32_t>{2, 3, 4}));
  EXPECT_FALSE(layout.pieces()[0].sel) << "only what was placed is selected";
  const PlacedPiece& first = layout.pieces()[1];
  const PlacedPiece& second = layout.pieces()[2];
  EXPECT_TRUE(first.sel && second.sel && layout.content().scenery[0].sel);
  EXPECT_EQ(first.joints, (JointTable{{}, {3, 0}}));
  EXPECT_EQ(second.joints, (JointTable{{2, 1}, {}}));
  EXPECT_DOUBLE_EQ(first.heading, 80);
  EXPECT_NEAR(second.x, 100, 1e-9);
  EXPECT_NEAR(second.y, 238.3, 1e-9);
  EXPECT_EQ(second.helix, -1);
  const SceneryItem& house = layout.content().scenery[0];
  EXPECT_NEAR(house.x, 80, 1e-9);
  EXPECT_NEAR(house.y, 60, 1e-9);
  EXPECT_DOUBLE_EQ(house.heading, 30);
  ASSERT_EQ(layout.settings().levels.size(), 2U);
  EXPECT_EQ(layout.settings().levels[1].name, "Level 5");

  layout.undo();
  EXPECT_EQ(layout.content(), before);
  EXPECT_FALSE(placeBlock(layout, {}, {}).changed());
  EXPECT_TRUE(layout.canRedo()) << "nothing placed, nothing pushed";
}

TEST(BlockPlacing, copiesOfASelectionJoinWhereTheyMeet) {
  Layout layout = Plan().place("24188").extend("24130", 3).layout;
  selectAll(layout);
  const Block copy = blockFromSelection(layout);
  // A straight and a quarter circle, four times, make a closed ring.
  for (int i = 1; i < 4; ++i) {
    const WorldConnector end = worldEnd(layout.pieces().back(), 1);
    placeBlock(layout, copy, {end.x, end.y, end.heading});
  }
  EXPECT_EQ(layout.pieces().size(), 16U);
  EXPECT_EQ(openEnds(layout), 0);
}

TEST(BlockPlacing, aBlockFromTheLibraryStandsOnItsLevels) {
  Layout layout = Plan().place("24188").extend("24188", 2).layout;
  for (PlacedPiece& piece : layout.edit().pieces)
    piece.z = 7;
  layout.editPiece(3)->level = 2;
  selectAll(layout);
  const Block copy = blockFromSelection(layout);
  std::string text;
  writeBlock(copy, [&text](std::string_view part) { text += part; });
  Block loaded;
  ASSERT_EQ(readBlock(text, loaded), "");
  for (const double upper : {30.0, 100.0}) {
    layout.editSettings().levels = {{1, "", true, 30, false, {}, {}},
                                    {2, "", true, upper, false, {}, {}}};
    const EditResult result = placeBlock(layout, loaded, {0, 500, 0});
    EXPECT_EQ(layout.findPiece(result.placed[0])->z, 30);
    EXPECT_EQ(layout.findPiece(result.placed[2])->z, upper);
    EXPECT_EQ(layout.findPiece(result.placed[1])->joint(1).open(), upper == 100);
    EXPECT_FALSE(layout.findPiece(result.placed[1])->joint(0).open());
    EXPECT_EQ(result.remark.has_value(), upper == 100);
  }
  const EditResult pasted = placeBlock(layout, copy, {0, 900, 0});
  EXPECT_EQ(layout.findPiece(pasted.placed[2])->z, 7);
  EXPECT_FALSE(layout.findPiece(pasted.placed[2])->joint(0).open());
}

TEST(BlockPlacing, opensTheJointsOfADamagedBlock) {
  Block block;
  block.content.pieces = {loosePiece(1, "24188", {}, {{2, 0}, {1, 1}, {2, 2}}),
                          loosePiece(2, "24188", {1000, 0}, {{1, 1}, {1, 40}, {1, 2}}),
                          loosePiece(2, "24188", {2000, 0}, {{2, 1}})};
  Layout layout;
  placeBlock(layout, block, {});
  for (const PlacedPiece& piece : layout.pieces())
    EXPECT_TRUE(std::ranges::all_of(piece.joints, &Joint::open));
}

} // namespace
} // namespace trassix::test
