#include "document/block.h"
#include "document/record_kinds.h"
#include "editing/elevation/grade_edits.h"
#include "editing/elevation/grade_runs.h"
#include "editing/elevation/inheritance.h"
#include "editing/joining/joining.h"
#include "editing/levels/level_edits.h"
#include "editing/placing/block_placing.h"
#include "editing/placing/placing.h"
#include "editing/selection/moving.h"
#include "editing/selection/selection.h"
#include "support/plan.h"

#include <gmock/gmock.h>

#include <cmath>
#include <cstdlib>
#include <random>
#include <tuple>

namespace trassix {
namespace {

using testing::HasSubstr;

double rise(double degrees, double length) {
  return length * std::sin(toRadians(degrees));
}

HeightPlan openRun(const Layout& layout, std::int32_t piece, std::int32_t towards, double degrees) {
  GradeTask task = gradeOfPiece(layout, piece, towards);
  task.slope = std::sin(toRadians(degrees));
  task.open = true;
  return planGrade(layout, task);
}

/// Four straights a side.
Plan oval() {
  Plan plan = Plan().place("24188").extend("24188", 3).extend("24130", 6);
  return plan.extend("24188", 4).extend("24130", 6);
}

TEST(GradeRuns, TheAnchorClimbsTowardsItsConnector) {
  // Article, connector, degrees, then what the file holds.
  const std::tuple<const char*, int, double, double, double, bool> cases[] = {
      {"24188", 1, 2, 0, 2, false},
      {"24188", 0, 2, rise(2, 188.3), 2, true},
      {"24188", 0, -1, rise(-1, 188.3), -1, true},
      {"24611", 2, 2, 0, -2, true},
      {"24640", 3, 2, 0, -2, true},
      {"24640", 2, 2, rise(2, runTo(cataloguePiece("24640"), 3)), 2, true},
  };
  for (const auto& [article, conn, degrees, z, grade, rev] : cases) {
    SCOPED_TRACE(std::string(article) + " " + std::to_string(conn));
    Layout layout = Plan().place(article).layout;
    ASSERT_TRUE(applyHeights(layout, openRun(layout, 1, conn, degrees)).changed);
    const PlacedPiece& anchor = layout.pieces().front();
    EXPECT_NEAR(anchor.z, z, 1e-9);
    EXPECT_NEAR(anchor.grade, grade, 1e-9);
    EXPECT_EQ(anchor.rev, rev);
    EXPECT_NEAR(endHeight(layout, {1, oppositeEnd(*definitionOf(anchor), conn)}), 0, 1e-9);
    EXPECT_EQ(layout.content().currentGrade.conn, conn);
    EXPECT_EQ(elevationStatus(layout), std::string("[ELEV] ") + (degrees > 0 ? "2.0" : "-1.0") +
                                           " deg  (right-click piece to stop)");
  }
}

TEST(GradeRuns, WhatIsJoinedGoesOnClimbing) {
  Plan plan = Plan().place("24188");
  Layout& layout = plan.layout;
  applyHeights(layout, openRun(layout, 1, 1, 2));
  plan.extend("24611"); // piece 2
  plan.at(2, 2).extendLeft("24130").at(2, 1);
  selectOnly(layout, 2);
  ASSERT_TRUE(extendSelected(layout, "24172").changed());
  ASSERT_TRUE(cloneAndExtend(layout, 4).changed());
  const double branch = runTo(cataloguePiece("24611"), 2);
  EXPECT_NEAR(endHeight(layout, {5, 1}), rise(2, 188.3 * 2 + 171.7 * 2), 1e-9);
  EXPECT_NEAR(endHeight(layout, {3, 0}),
              rise(2, 188.3 + branch + runTo(cataloguePiece("24130"), 1)), 1e-9);
  // A block whose end lies there, and a group that snaps to it, though both are level.
  const PlacedPiece last = *layout.findPiece(5);
  Layout pair = Plan().place("24188").extend("24188").layout;
  selectAll(pair);
  Block block = blockFromSelection(pair);
  centreBlock(block);
  const WorldConnector end = worldEnd(last, 1);
  const Point at = toWorld({end.x, end.y, end.heading}, {188.3 / 2, 0});
  placeBlock(layout, block, {at.x, at.y, end.heading});
  EXPECT_EQ(runOver(layout, 7), 1);
  EXPECT_NEAR(endHeight(layout, {7, 1}), rise(2, 188.3 * 4 + 171.7 * 2), 1e-6);
  plan.place("24188", {0, 900, 0}).extend("24188");
  selectOnly(layout, 8);
  layout.select(RecordKind::Piece, 9, true);
  SelectionMove move(layout, {0, 900});
  const WorldConnector front = worldEnd(*layout.findPiece(7), 1);
  move.update({front.x + 5, front.y + 3}, true, SnapIndex(layout));
  ASSERT_TRUE(move.commit(layout));
  EXPECT_NEAR(endHeight(layout, {9, 1}), rise(2, 188.3 * 6 + 171.7 * 2), 1e-6);
  EXPECT_LT(largestPlay(layout).step, 1e-6);
  // The other end of the anchor is level track's, and so is all after the end of the grade.
  plan.at(1, 0).extendLeft("24188").at(9, 1);
  EXPECT_EQ(layout.pieces().back().grade, 0);
  ASSERT_TRUE(endGradeHere(layout, 4));
  EXPECT_FALSE(layout.content().currentGrade.active || endGradeHere(layout, 4));
  plan.extend("24188");
  EXPECT_EQ(layout.pieces().back().grade, 0);
  EXPECT_NEAR(layout.pieces().back().z, endHeight(layout, {9, 1}), 1e-9);
}

TEST(Heights, WhatHangsOnAChangeIsLiftedAlong) {
  Plan plan = Plan().place("24188").extend("24611").extend("24188").at(2, 2).extendLeft("24130");
  Layout& layout = plan.layout;
  layout.editPiece(4)->helix = 7; // lifted whole, with a member that nothing joins
  plan.place("24188", {0, 900, 0});
  layout.editPiece(5)->helix = 7;
  const PlanContent before = layout.content();
  GradeTask task = gradeOfPiece(layout, 1, 1);
  task.slope = 0.03;
  ASSERT_TRUE(applyHeights(layout, planGrade(layout, task)));
  for (const std::int32_t id : {2, 3, 4, 5})
    EXPECT_NEAR(layout.findPiece(id)->z, 188.3 * 0.03, 1e-9) << id;
  layout.undo();
  EXPECT_EQ(layout.content(), before);
  task = gradeOfPiece(layout, 4, 0);
  task.slope = 0.03;
  EXPECT_EQ(planGrade(layout, task).refusal.value().title, "Helix track is locked");
  ASSERT_TRUE(applyHeights(layout, planRaise(layout, 5, 4)));
  EXPECT_NEAR(layout.findPiece(1)->z, 4, 1e-9);
  layout.editPiece(1)->helix = 7;
  const PieceHeight torn[] = {{1, 5, 0, false}, {4, 6, 0, false}};
  EXPECT_FALSE(planHeights(layout, torn).possible());
}

TEST(Heights, ALoopThatDoesNotAddUpIsRefusedOrTakesItUp) {
  Layout layout = oval().layout;
  ASSERT_EQ(openEnds(layout), 0);
  TrainWay way = trainWays(layout, {1, 0}, {4, 1}).front();
  const TargetTask task{way, 25};
  const HeightPlan refused = planTarget(layout, task).heights;
  EXPECT_THAT(refused.refusal.value().text, HasSubstr("a step of 25.0 mm"));
  EXPECT_NEAR(std::abs(refused.gap.value().step), 25, 1e-9);
  EXPECT_FALSE(applyHeights(layout, refused));
  TargetTask spread = task;
  spread.loops = LoopRule::Spread;
  ASSERT_TRUE(applyHeights(layout, planTarget(layout, spread).heights));
  EXPECT_LT(largestPlay(layout).step, 1e-6);
  EXPECT_NEAR(endHeight(layout, {4, 1}), 25, 1e-9);
  const double rest = 4 * 188.3 + 12 * runTo(cataloguePiece("24130"), 1);
  for (std::int32_t id = 5; id <= 20; ++id)
    EXPECT_NEAR(slopeOut(*layout.findPiece(id), *definitionOf(*layout.findPiece(id)), 1),
                -25 / rest, 1e-9);
  // What is left for the loop must not become too steep for trains.
  layout.undo();
  spread.way = trainWays(layout, {1, 0}, {4, 1}).at(1);
  spread.height = 30;
  EXPECT_TRUE(planTarget(layout, spread).heights.possible());
  spread.limit = 0.03;
  EXPECT_THAT(planTarget(layout, spread).heights.refusal.value().text,
              HasSubstr("would be 4.0 % at 24188"));
}

TEST(Heights, APassingLoopClimbsWithItsLine) {
  Plan plan = Plan().place("24188").extend("24611").extend("24172").extend("24188", 2);
  plan.extend("24172").extendBy("24612", 1, 0).at(2, 2).extend("24224").extend("24188", 2);
  Layout& loop = plan.extend("24224").layout; // ways of 1141.9 and 1140.0 mm
  ASSERT_EQ(openEnds(loop), 2);
  selectAll(loop);
  const GradeTask task{selectedPieces(loop), {1, 0}, -1, 0.03};
  EXPECT_THAT(planGrade(loop, task).refusal.value().text, HasSubstr("a step of"));
  // It comes to a line that climbs.
  Layout line = Plan().place("24188", {-188.3, 0, 0}).layout;
  applyHeights(line, openRun(line, 1, 1, degreesOf(0.03)));
  placeBlock(line, blockFromSelection(loop), {});
  EXPECT_EQ(openEnds(line), 2);
  EXPECT_LT(largestPlay(line).step, 1e-6);
  for (const PlacedPiece& piece : line.pieces())
    EXPECT_NEAR(std::abs(slopeOf(piece)), 0.03, 0.001) << piece.id;
}

TEST(Heights, TheTargetSaysWhatItWouldTake) {
  Layout layout = Plan().place("24188").extend("24188", 9).layout;
  TargetTask task{trainWays(layout, {1, 0}, {10, 1}).front(), 100, TargetTask::Shape::OneGrade,
                  false, 0.03};
  const TargetPlan steep = planTarget(layout, task);
  EXPECT_NEAR(steep.slope, 100 / 1883.0, 1e-12);
  EXPECT_NEAR(steep.longer, 100 / 0.03 - 1883, 1e-6);
  EXPECT_EQ(steep.morePieces, 8);
  EXPECT_EQ(steep.morePiecesOf, "24188");
  EXPECT_FALSE(steep.heights.possible());
  task.limit = 1e-12;
  EXPECT_EQ(planTarget(layout, task).morePieces, 1000000);
  task.limit = 0.03;
  task.height = -30;
  task.shape = TargetTask::Shape::SteepThenLevel;
  ASSERT_TRUE(applyHeights(layout, planTarget(layout, task).heights));
  EXPECT_NEAR(slopeOf(layout.pieces()[0]), -30 / (6 * 188.3), 1e-12); // in five it is 3.2 %
  EXPECT_EQ(layout.pieces()[6].grade, 0);
  task = {trainWays(layout, {10, 1}, {1, 0}).front(), 40}; // eased, by at most 2.6 % a joint
  ASSERT_TRUE(applyHeights(layout, planTarget(layout, task).heights));
  EXPECT_NEAR(endHeight(layout, {1, 0}), 40, 1e-9);
  EXPECT_LE(std::abs(slopeOf(layout.pieces()[9])), 188.3 / 180 * 0.025 + 1e-12);
}

TEST(Heights, OtherWaysAreOfferedAndTrainsNeverTurnBack) {
  Plan plan = Plan().place("24611").extend("24188", 2).at(1, 2).extend("24224");
  Layout& layout = plan.layout;
  EXPECT_TRUE(trainWays(layout, {3, 1}, {4, 1}).empty()); // from branch to branch
  EXPECT_EQ(trainWays(layout, {3, 1}, {1, 0}).front().stretches.size(), 3u);
  EXPECT_EQ(trainWays(layout, {2, 0}, {2, 1}).front().stretches.size(), 1u);
  Layout ring = oval().layout;
  const std::vector<TrainWay> round = trainWays(ring, {1, 0}, {4, 1});
  ASSERT_EQ(round.size(), 2u);
  EXPECT_EQ(round[1].stretches.size(), 16u);
  EXPECT_EQ(wayThrough(ring, 3).stretches.size(), 20u);
  EXPECT_EQ(wayThrough(layout, 1, {{1, 2}}).end(), (TrackEnd{4, 1}));
}

TEST(Heights, AGroupIsLiftedWholeAndMissedEndsAreNamed) {
  Plan plan = Plan().place("24188").extend("24188").place("24188", {1000, 0, 0});
  Layout& layout = plan.layout;
  for (PlacedPiece& piece : layout.edit().pieces)
    piece.z = piece.id == 3 ? 14.2 : 10;
  layout.editPiece(3)->x = 188.3 * 3;
  const SnapResult snap = SnapIndex(layout).findSnap(cataloguePiece("24188"), {188.3 * 2, 3, 0});
  plan.place("24188", {188.3 * 2, 300, 0});
  selectOnly(layout, 4);
  SelectionMove move(layout, {188.3 * 2, 300});
  move.update({188.3 * 2 - 3, 2}, true, SnapIndex(layout));
  const ChangeResult moved = move.commit(layout);
  EXPECT_EQ(layout.findPiece(4)->z, 10);
  EXPECT_THAT(moved.remark.value().text, HasSubstr("4.2 mm lower"));
  EXPECT_TRUE(layout.findPiece(3)->joints[0].open() && snap.snapped);
}

TEST(Heights, ARampTakesUpWhatADeckIsMoved) {
  Plan plan = Plan().place("24188").extend("24188", 9);
  Layout& layout = plan.layout;
  layout.ensureLevel(2);
  for (PlacedPiece& piece : layout.edit().pieces)
    piece.level = piece.id > 5 ? 2 : 1;
  LevelChange change{layout.settings().levels, 1, {}, {}};
  change.levels[1].height = 30;
  EXPECT_EQ(stepsBetweenLevels(layout, change).size(), 1u); // no ramp yet
  TargetTask ramp{trainWays(layout, {3, 0}, {8, 1}).front(), 20, {}, false};
  ASSERT_TRUE(applyHeights(layout, planTarget(layout, ramp).heights));
  EXPECT_TRUE(stepsBetweenLevels(layout, change).empty());
  ASSERT_TRUE(setLevels(layout, change));
  EXPECT_NEAR(endHeight(layout, {10, 1}), 50, 1e-9);
  EXPECT_NEAR(endHeight(layout, {3, 0}), 0, 1e-9);
  EXPECT_LT(largestPlay(layout).step, 1e-9);
  change.levels[1].height = 300; // 5 % would not do
  EXPECT_EQ(stepsBetweenLevels(layout, change).size(), 1u);
}

/// Chains of pieces that a train takes by any of their routes, of every system.
class RandomChain {
 public:
  explicit RandomChain(std::uint32_t seed) : random_(seed) {
    constexpr TrackSystem kSystems[] = {TrackSystem::CTrack, TrackSystem::TrixCTrack,
                                        TrackSystem::ZTrack, TrackSystem::KTrack,
                                        TrackSystem::MTrack, TrackSystem::Gauge1};
    std::vector<const PieceDef*> articles;
    for (const PieceDef& definition : wholeCatalogue())
      if (definition.system == kSystems[seed % 6] && definition.adapterSystems.empty() &&
          definition.kind != PieceKind::Turntable && definition.connectors.size() > 1)
        articles.push_back(&definition);
    const int count = any(2, 30);
    for (int i = 0; i < count; ++i)
      append(*articles[static_cast<std::size_t>(any(0, static_cast<int>(articles.size()) - 1))]);
  }

  int any(int from, int to) { return std::uniform_int_distribution<int>(from, to)(random_); }

  Layout layout;
  TrackEnd start;
  TrackEnd end;

 private:
  void append(const PieceDef& definition) {
    const auto own =
        static_cast<std::int32_t>(any(0, static_cast<int>(definition.connectors.size()) - 1));
    const Pose pose =
        end.piece == -1
            ? Pose{}
            : AttachPose(definition, own, worldEnd(*layout.findPiece(end.piece), end.connector));
    const std::int32_t id = addPiece(layout, definition, pose, 1, 0);
    if (end.piece == -1)
      start = {id, own};
    else
      join(layout, id, own, end.piece, end.connector);
    end = {id, oppositeEnd(definition, own)};
  }

  std::mt19937 random_;
};

TEST(Heights, TheTargetIsReachedOnAnyChain) {
  const char* number = std::getenv("TRASSIX_RANDOM_CHAINS"); // more by hand
  const int chains = number == nullptr ? 1000 : std::atoi(number);
  int reached = 0;
  for (int seed = 0; seed < chains; ++seed) {
    SCOPED_TRACE(seed);
    RandomChain chain(static_cast<std::uint32_t>(seed));
    Layout& layout = chain.layout;
    const bool back = chain.any(0, 1) == 0;
    const TrackEnd from = back ? chain.end : chain.start;
    const TrackEnd to = back ? chain.start : chain.end;
    TargetTask task{trainWays(layout, from, to, 1).at(0), 0};
    task.height = task.way.length() * chain.any(-49, 49) / 1000;
    task.shape = static_cast<TargetTask::Shape>(chain.any(0, 1));
    task.eased = chain.any(0, 1) == 0;
    const TargetPlan plan = planTarget(layout, task);
    ASSERT_TRUE(plan.heights.possible() || task.eased) << plan.heights.refusal->text;
    if (!plan.heights.possible())
      continue;
    applyHeights(layout, plan.heights);
    ++reached;
    ASSERT_NEAR(endHeight(layout, to), task.height, 0.01);
    ASSERT_NEAR(endHeight(layout, from), 0, 1e-9);
    ASSERT_LT(largestPlay(layout).step, 1e-6);
    for (const PlacedPiece& piece : layout.pieces())
      ASSERT_LE(std::abs(slopeOf(piece)), task.limit + 1e-6);
  }
  EXPECT_GT(reached, chains * 8 / 10);
}

} // namespace
} // namespace trassix
