#include "document/block.h"
#include "document/block_file.h"
#include "document/record_kinds.h"
#include "support/documented_example.h"
#include "support/loose_records.h"
#include "support/print_records.h"
#include "support/random_plan.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

namespace trassix {
namespace {

TEST(BlockFile, writesTheDocumentedExampleAsItIs) {
  const std::string example = test::documentedExample("<block ");
  Block block;
  ASSERT_EQ(readBlock(example, block), "");
  EXPECT_EQ(block.name, "Passing loop");
  ASSERT_EQ(block.content.pieces.size(), 2U);
  EXPECT_EQ(block.content.pieces[0].joints, (JointTable{{3, 1}, {13, 0}}));
  EXPECT_FALSE(block.content.pieces[0].sel || block.content.scenery[0].sel)
      << "the file's flag is not read";
  for (PlacedPiece& piece : block.content.pieces)
    piece.sel = true;
  block.content.scenery[0].sel = true;
  std::string text;
  EXPECT_EQ(writeBlock(block, [&text](std::string_view part) { text += part; }), "");
  EXPECT_EQ(text, example);
}

TEST(BlockFile, comesBackPlainAndLevel) {
  const test::TempFolder folder;
  const auto file = folder.path() / "Süd bahn.txl";
  const Layout plan = test::randomPlan(5, 60);
  ASSERT_EQ(saveBlock(plan, file, "my block"), "");
  Block loaded;
  ASSERT_EQ(loadBlock(file, loaded), "");

  Block expected = blockFromSelection(plan);
  ASSERT_GT(expected.content.pieces.size(), 0U);
  ASSERT_GT(expected.content.scenery.size(), 0U);
  for (PlacedPiece& piece : expected.content.pieces) {
    piece.z = piece.grade = 0;
    piece.rev = piece.free = piece.sel = piece.hasColor = false;
    piece.color = {};
    piece.helix = -1;
  }
  for (SceneryItem& item : expected.content.scenery)
    item.sel = false;
  EXPECT_EQ(loaded.content.pieces, expected.content.pieces);
  EXPECT_EQ(loaded.content.scenery, expected.content.scenery);
  EXPECT_EQ(loaded.name, "my block");
}

TEST(BlockFile, refusesNothingAndNonsense) {
  const test::TempFolder folder;
  Layout plan = test::randomPlan(5, 10);
  plan.clearSelection();
  EXPECT_EQ(saveBlock(plan, folder.path() / "b.txl", "b"), "No pieces or scenery selected");
  EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
  plan.edit().scenery[0].sel = true;
  EXPECT_EQ(saveBlock(plan, folder.path() / "a/b.txl", "b"),
            "Cannot open file: " + (folder.path() / "a/b.txl").string());
  EXPECT_EQ(saveBlock(plan, folder.path() / "b.txl", "b"), "");
  EXPECT_EQ(test::readText(folder.path() / "b.txl").find("<piece "), std::string::npos);

  Block block;
  block.name = "before";
  EXPECT_EQ(loadBlock("no/such.txl", block), "Cannot open file: no/such.txl");
  EXPECT_EQ(block.name, "before");
  EXPECT_EQ(readBlock("<block name=\"b\">\n<piece id=\"1\" x=\"0\" y=\"0\" heading=\"?\">", block),
            "invalid stod argument (line 2, heading=\"?\")");
  EXPECT_EQ(readBlock("<piece id=\"1\" x=\"0\" y=\"0\" heading=\"0\" z=\"?\" grade=\"?\">\n"
                      "<joint conn=\"99\" target=\"1\" tconn=\"1\">",
                      block),
            "no such connector (line 2, conn=\"99\")");
}

TEST(BlockFile, centresOnTheBoxOfThePositions) {
  const auto blockAt = [](Point a, Point b, Point c) {
    Block block;
    block.content.pieces = {test::loosePiece(1, "", a), test::loosePiece(2, "", b)};
    block.content.scenery = {{3, "", c.x, c.y}};
    return block;
  };
  Block block = blockAt({100, 10}, {300, 20}, {150, 50});
  EXPECT_EQ(centreBlock(block), (Point{200, 30}));
  EXPECT_EQ(block, blockAt({-100, -20}, {100, -10}, {-50, 20}));
  Block farOff = blockAt({2e8, 5}, {3e8, 6}, {4e8, 7});
  EXPECT_EQ(centreBlock(farOff), Point{}) << "so far off, the box counts as empty";
  EXPECT_EQ(farOff, blockAt({2e8, 5}, {3e8, 6}, {4e8, 7}));
}

} // namespace
} // namespace trassix
