#include "document/block.h"
#include "document/plan_content.h"
#include "editing/elevation/end_heights.h"
#include "editing/helix/helix_edits.h"
#include "editing/helix/helix_ends.h"
#include "editing/joining/joining.h"
#include "editing/placing/block_placing.h"
#include "editing/placing/placing.h"
#include "editing/selection/moving.h"
#include "editing/selection/selection.h"
#include "support/plan.h"

#include <gmock/gmock.h>

#include <set>

namespace trassix {
namespace {

HelixPlan planOf(const HelixKit& kit, HelixHand hand) {
  return {&kit, hand, leastPitch(kit.system, true), {1234.5, -678.9, 33.3}, 41.7};
}

TEST(HelixKits, stackExactTurnsWhateverTheSystem) {
  std::set<std::string> keys;
  std::set<TrackSystem> systems;
  for (const HelixKit& kit : helixKits()) {
    EXPECT_TRUE(keys.insert(kit.key).second) << kit.key;
    systems.insert(kit.system);
    for (const HelixHand hand : {HelixHand::Right, HelixHand::Left}) {
      SCOPED_TRACE(kit.key);
      const HelixPlan plan = planOf(kit, hand);
      Layout layout;
      const EditResult placed = placeHelix(layout, plan, 1);
      ASSERT_TRUE(placed.changed());
      const Helix& helix = layout.content().helices.at(0);
      ASSERT_EQ(brokenRule(layout), "");
      ASSERT_EQ(openEnds(layout), static_cast<int>(kit.tracks()) * 2);
      const Play play = largestPlay(layout);
      EXPECT_LE(play.distance, 0.01);
      EXPECT_LE(std::abs(play.step), 0.01);
      double pieces = kit.turns * 360 / kit.inner->angle;
      const std::int32_t enter = hand == HelixHand::Right ? 0 : 1;
      const auto expectEnds = [&](std::int32_t bottom, std::int32_t top, double radius) {
        EXPECT_NEAR(endHeight(layout, {bottom, enter}), 41.7, 0.01);
        EXPECT_NEAR(endHeight(layout, {top, 1 - enter}), 41.7 + kit.turns * plan.pitch, 0.01);
        const WorldConnector end = worldEnd(*layout.findPiece(bottom), enter);
        EXPECT_NEAR(std::hypot(end.x - helix.cx, end.y - helix.cy), radius, 0.01);
        EXPECT_NEAR(headingDifference(end.heading, 33.3 + 180), 0, 0.01);
      };
      expectEnds(helix.bottomR1, helix.topR1, kit.inner->radius);
      if (kit.outer != nullptr) {
        pieces += kit.turns * 360 / kit.outer->angle;
        expectEnds(helix.bottomR2, helix.topR2, kit.outer->radius);
      } else {
        EXPECT_EQ(helix.bottomR2, -1);
        EXPECT_EQ(helix.topR2, -1);
      }
      EXPECT_NEAR(static_cast<double>(layout.pieceCount()), pieces, 1e-9);
      const auto back = planOfHelix(layout, helix);
      ASSERT_TRUE(back);
      EXPECT_EQ(back->kit, &kit);
      EXPECT_EQ(back->hand, hand);
      EXPECT_NEAR(back->pitch, plan.pitch, 1e-6);
      EXPECT_NEAR(back->height, 41.7, 1e-6);
    }
  }
  EXPECT_EQ(systems.size(), 6U);
  for (const char* known :
       {"proses_2_5_r1r2", "helix_2_5_r2r3", "helix_1_0_r5", "helix_12_0_r0r1_m",
        "helix_3_5_r2r3_z", "helix_2_0_r1r2_k", "helix_2_0_r1r2_1", "helix_2_5_r3r4",
        "helix_1_0_r4r5", "helix_1_0_r2r3_trix"})
    EXPECT_NE(findHelixKit(known), nullptr) << known;
  EXPECT_EQ(findHelixKit("helix_2_5_r1r2_z"), nullptr) << "too far apart";
}

TEST(Helices, ChangeWhereTheyAreJoined) {
  // Both tracks of a helix between two lines, of which the upper one is joined at its top.
  const HelixPlan first{findHelixKit("helix_2_0_r1r2"), HelixHand::Right, 80, {0, 0, 0}, 0};
  Layout joined;
  placeHelix(joined, first, 1);
  for (const HelixEnd& end : endsOf(first)) {
    const PieceDef& straight = cataloguePiece("24188");
    const std::int32_t id =
        addPiece(joined, straight,
                 AttachPose(straight, 0, {end.placed.at.x, end.placed.at.y, end.placed.heading}), 1,
                 end.placed.height);
    closeMeetingEnds(joined, std::span(&id, 1));
  }
  joined.editPiece(joined.content().helices[0].bottomR1)->hasColor = true;
  const std::int32_t helix = joined.content().helices[0].id;
  ASSERT_EQ(openEnds(joined), 4);
  struct Case {
    const char* kit;
    HelixHand hand;
    double pitch;
    int open; ///< ends then
    double x, y, height;
  };
  for (const Case& c :
       {Case{"helix_2_0_r1r2", HelixHand::Right, 90, 8, 0, 0, 0},
        Case{"helix_3_0_r1r2", HelixHand::Right, 160 / 3.0, -1, 0, 0, 0}, // trains cannot pass
        Case{"helix_1_0_r1r2", HelixHand::Right, 160, 4, 0, 0, 0},
        Case{"helix_2_0_r1", HelixHand::Right, 80, 6, 0, 0, 0},
        Case{"helix_2_0_r2r3", HelixHand::Right, 80, 4, 0, 77.5, 0},
        Case{"helix_2_0_r1r2", HelixHand::Left, 80, 8, 0, -720, 0}}) {
    SCOPED_TRACE(c.kit);
    Layout layout = joined;
    const EditResult changed =
        changeHelix(layout, helix, {findHelixKit(c.kit), c.hand, c.pitch, {5, 5, 5}, 5});
    if (c.open < 0) {
      EXPECT_TRUE(changed.refusal);
      EXPECT_EQ(layout.content(), joined.content());
      continue;
    }
    ASSERT_EQ(brokenRule(layout), "");
    EXPECT_EQ(openEnds(layout), c.open);
    const Helix& now = layout.content().helices.at(0);
    EXPECT_EQ(now.id, helix);
    const HelixPlan plan = planOfHelix(layout, now).value();
    EXPECT_EQ(plan.kit->key, c.kit);
    EXPECT_EQ(plan.hand, c.hand);
    EXPECT_NEAR(plan.pitch, c.pitch, 1e-6);
    EXPECT_NEAR(now.cx, c.x, 0.01);
    EXPECT_NEAR(now.cy, c.y, 0.01);
    EXPECT_NEAR(plan.height, c.height, 1e-6);
    EXPECT_LE(std::abs(largestPlay(layout).step), 0.01);
    EXPECT_TRUE(layout.findPiece(now.topR1)->hasColor);
    EXPECT_EQ(selectedHelix(layout), helix);
    layout.undo();
    EXPECT_EQ(layout.content().pieces.size(), joined.pieceCount());
    EXPECT_EQ(layout.content().helices, joined.content().helices);
  }
  EXPECT_FALSE(changeHelix(joined, helix, first).changed());
}

TEST(Helices, AreOneStepEachAndRefuseTrainsThatCannotPass) {
  const HelixKit& kit = *findHelixKit(kDefaultHelixKit);
  Layout layout;
  HelixPlan plan = planOf(kit, HelixHand::Right);
  plan.pitch = 79;
  EXPECT_TRUE(placeHelix(layout, plan, 1).refusal);
  plan.pitch = 80;
  plan.centre.x = 999'900;
  EXPECT_TRUE(placeHelix(layout, plan, 1).refusal);
  EXPECT_FALSE(layout.canUndo());
  plan.centre = {};
  const std::int32_t id = placeHelix(layout, plan, 1).placed.front();
  EXPECT_EQ(selectedHelix(layout), id);
  EXPECT_EQ(selectedPieces(layout).size(), 60U);
  const PlanContent placed = layout.content();
  for (const auto edit : {deleteHelix, turnIntoLooseTrack}) {
    EXPECT_TRUE(edit(layout, id));
    EXPECT_TRUE(layout.content().helices.empty());
    EXPECT_EQ(layout.pieceCount(), edit == deleteHelix ? 0U : 60U);
    EXPECT_TRUE(piecesOfHelix(layout, id).empty());
    layout.undo();
    EXPECT_EQ(layout.content(), placed);
  }
  layout.undo();
  EXPECT_EQ(layout.pieceCount(), 0U);
}

TEST(Helices, AreMovedAndCopiedWhole) {
  Layout layout;
  HelixPlan plan = planOf(*findHelixKit("helix_1_5_r2r3"), HelixHand::Left);
  const std::int32_t id = placeHelix(layout, plan, 1).placed.front();
  EXPECT_FALSE(moveGuard(layout, "move"));
  EXPECT_TRUE(lockGuard(layout, "delet"));
  ASSERT_TRUE(nudgeSelection(layout, 10, 20, false));
  ASSERT_TRUE(rotateSelection(layout, 90));
  const auto expectWhole = [&layout](const Helix& helix) {
    const double radius = findHelixKit(helix.variant)->inner->radius;
    for (const std::int32_t piece : piecesOfHelix(layout, helix.id))
      for (const WorldConnector& end :
           WorldConnectorsOf(*layout.findPiece(piece), *definitionOf(*layout.findPiece(piece))))
        EXPECT_LT(std::hypot(end.x - helix.cx, end.y - helix.cy), radius + 100);
    const WorldConnector end = worldEnd(*layout.findPiece(helix.bottomR1), 1);
    EXPECT_NEAR(std::hypot(end.x - helix.cx, end.y - helix.cy), radius, 0.01);
    EXPECT_NEAR(headingDifference(end.heading, helix.heading), 180, 0.01);
  };
  expectWhole(layout.content().helices[0]);
  EXPECT_NEAR(layout.content().helices[0].heading, 123.3, 1e-6);

  Block block = blockFromSelection(layout);
  centreBlock(block);
  ASSERT_TRUE(placeBlock(layout, block, {3000, 0, 45}).changed());
  ASSERT_EQ(layout.content().helices.size(), 2U);
  const Helix copy = layout.content().helices[1];
  EXPECT_NE(copy.id, id);
  EXPECT_EQ(piecesOfHelix(layout, copy.id).size(), piecesOfHelix(layout, id).size());
  EXPECT_EQ(layout.findPiece(copy.topR2)->helix, copy.id);
  expectWhole(copy);

  layout.select(RecordKind::Piece, copy.topR2, false); // parts come without the helix
  EXPECT_TRUE(moveGuard(layout, "move"));
  EXPECT_TRUE(blockFromSelection(layout).content.helices.empty());
  ASSERT_TRUE(placeBlock(layout, blockFromSelection(layout), {6000, 0, 0}).changed());
  EXPECT_EQ(layout.pieces().back().helix, -1);
}

TEST(Helices, RiseWholeToTheTrackThatOneOfTheirEndsMeets) {
  Layout layout;
  HelixPlan plan = planOf(*findHelixKit("helix_1_5_r2r3"), HelixHand::Right);
  plan.centre = {};
  placeHelix(layout, plan, 1);
  const Block block = blockFromSelection(layout);
  dropPiece(layout, "24188", {3000 - 188.3, -437.5, 0}, {}, false);
  layout.editPiece(layout.pieces().back().id)->z = 66.7;
  ASSERT_TRUE(placeBlock(layout, block, {3000, 0, 0}).changed());
  const Helix& copy = layout.content().helices.at(1);
  EXPECT_FALSE(layout.findPiece(copy.bottomR1)->joint(0).open());
  for (const std::int32_t bottom : {copy.bottomR1, copy.bottomR2})
    EXPECT_NEAR(endHeight(layout, {bottom, 0}), 66.7, 1e-6);
  EXPECT_EQ(brokenRule(layout), "");
}

} // namespace
} // namespace trassix
