// Changing finished track: swapping a piece in place, inserting one at a joint.
#include "editing/elevation/grade_edits.h"
#include "editing/joining/joining.h"
#include "editing/placing/inserting.h"
#include "editing/placing/swapping.h"
#include "editing/selection/selection.h"
#include "support/plan.h"

#include <gmock/gmock.h>

#include <array>
#include <cmath>
#include <set>
#include <tuple>

namespace trassix {
namespace {

using Articles = std::set<std::string>;

Articles swapsOf(const Layout& layout, std::int32_t piece) {
  Articles found;
  for (const SwapFit& fit : swapFits(layout, piece))
    found.insert(fit.definition->article);
  return found;
}

TEST(Swapping, OffersWhatFitsTheSameEnds) {
  Plan plan = Plan().place("24188").extend("24188").extend("24188").place("24188", {0, 900, 0});
  const Articles straights{"74620", "24611", "24612", "24630", "24640", "24624"};
  EXPECT_EQ(swapsOf(plan.layout, 2), straights);
  EXPECT_EQ(swapsOf(plan.layout, 1), straights);  // its open end counts too
  EXPECT_EQ(swapsOf(plan.layout, 4), Articles{}); // joined to nothing
  Plan branch; // a crossing has the same ends, but no way to the branch
  branch.place("24612").extend("24188").at(1, 2).extend("24188").at(1, 0).extend("24188");
  EXPECT_EQ(swapsOf(branch.layout, 1), (Articles{"24630", "24624"}));
  applyHeights(branch.layout, planGrade(branch.layout, {{1}, {1, 0}, 1, 0.04}));
  for (const SwapFit& fit : swapFits(branch.layout, 1)) { // their branches differ in length
    ASSERT_TRUE(swapPiece(branch.layout, 1, fit));
    EXPECT_LT(largestPlay(branch.layout).step, 1e-6) << fit.definition->article;
    branch.layout.undo();
  }
  Plan edge = Plan().place("24188", {999'600, 0, 0}).extend("24188");
  for (PlacedPiece& piece : edge.layout.edit().pieces)
    piece.x += 200;
  for (const SwapFit& fit : swapFits(edge.layout, 2))
    EXPECT_LE(fit.pose.x, 1e6) << fit.definition->article;
  Plan adapters = Plan().place("2200").extend("2291").at(1, 0).extend("2291");
  EXPECT_FALSE(swapsOf(adapters.layout, 1).contains("5106")); // as long, another system
}

TEST(Swapping, KeepsThePlaceTheJointsAndTheHeights) {
  Plan plan = Plan().place("24188").extend("24188").extend("24188");
  plan.layout.editPiece(2)->grade = 2;
  plan.layout.editPiece(2)->z = 10;
  const PlanContent before = plan.layout.content();
  const std::vector<SwapFit> fits = swapFits(plan.layout, 2);
  EXPECT_GT(fits.size(), 6u); // a turnout fits either way round
  for (const SwapFit& fit : fits) {
    SCOPED_TRACE(fit.definition->article);
    ASSERT_TRUE(swapPiece(plan.layout, 2, fit));
    EXPECT_TRUE(!plan.layout.findPiece(1)->joints[1].open() &&
                !plan.layout.findPiece(3)->joints[0].open());
    EXPECT_LT(largestPlay(plan.layout).distance, 0.01); // crossings are rounded a little
    const PlacedPiece& swapped = *plan.layout.findPiece(2);
    EXPECT_NEAR(endHeight(swapped, *fit.definition, fit.ends[0]), 10, 1e-9);
    EXPECT_NEAR(endHeight(swapped, *fit.definition, fit.ends[1]),
                10 + 188.3 * std::sin(toRadians(2)), 1e-9);
    EXPECT_FALSE(swapPiece(plan.layout, 2, fit)); // is there by now
    plan.layout.undo();
    EXPECT_EQ(plan.layout.content(), before);
  }
}

TEST(Swapping, AndInsertingLeaveOneSidedJointsAlone) {
  Plan plan = Plan().place("24188").extend("24188").extend("24188");
  Layout& layout = plan.layout;
  const std::vector<PlacedPiece> sound = layout.pieces();
  // What piece 2 says of its connector 1: pieces and ends that are not there, and one that is
  // taken.
  for (const Joint foreign : {Joint{9, 0}, Joint{3, 47}, Joint{1, 1}, Joint{2, 0}, Joint{2, 1}}) {
    SCOPED_TRACE(foreign.tconn);
    layout.edit().pieces = sound;
    layout.editPiece(2)->joints[1] = foreign;
    layout.editPiece(2)->joints.resize(47);
    layout.editPiece(2)->joints[46] = {3, 1};
    EXPECT_EQ(chainOf(layout, 2), (std::vector<std::int32_t>{1, 2}));
    EXPECT_FALSE(insertPiece(layout, "24188", {2, 1, 0, 1, {}}).changed());
    const std::vector<SwapFit> fits = swapFits(layout, 2);
    const auto turned = std::ranges::find_if(fits, [](const SwapFit& fit) {
      return fit.ends == std::vector<std::int32_t>{1, 0};
    });
    ASSERT_TRUE(turned != fits.end() && swapPiece(layout, 2, *turned));
    EXPECT_EQ(layout.findPiece(2)->joint(0), foreign);
    EXPECT_EQ(layout.findPiece(1)->joints, (JointTable{{}, {2, 1}}));
    EXPECT_EQ(layout.findPiece(3)->joints, sound[2].joints);
  }
  layout.edit().pieces = sound;
  layout.editPiece(3)->joints[0] = {}; // so that piece 2 alone makes room
  ASSERT_TRUE(insertPiece(layout, "24188", {1, 1, 0, 1, {}}).changed());
  EXPECT_EQ(layout.findPiece(1)->x, sound[0].x);
}

TEST(Joining, WritesOnOpenEndsOnly) {
  Plan plan = Plan().place("24188").extend("24188").place("24188", {0, 300, 0});
  const PlanContent before = plan.layout.content();
  const std::array<std::int32_t, 4> cases[] = {{1, 1, 3, 0}, {3, 0, 2, 0},  {1, 0, 3, 2},
                                               {3, 3, 2, 1}, {1, -1, 3, 0}, {3, 0, 3, 1},
                                               {1, 0, 9, 0}};
  for (const auto& [a, endOfA, b, endOfB] : cases) {
    join(plan.layout, a, endOfA, b, endOfB);
    EXPECT_TRUE(plan.layout.content() == before) << a << endOfA << b << endOfB;
  }
}

/// Five straights in a row, the second one shorter.
Plan row() {
  Plan plan = Plan().place("24188").extend("24077").extend("24188", 3);
  return plan;
}

std::optional<InsertSpot> spot(const Plan& plan, const char* article, const Pose& pose) {
  return findInsertSpot(plan.layout, SnapIndex(plan.layout), cataloguePiece(article), pose);
}

TEST(Inserting, TheShorterSideMakesRoom) {
  // The positions of a piece that stays and of one that moves, and how far along the track.
  const std::tuple<const char*, Pose, std::size_t, std::size_t, double> cases[] = {
      {"24188", {188.3 + 4, 3, 5}, 4, 0, -188.3},
      {"24188", {188.3 + 77.5 + 376.6, 0, 0}, 0, 4, 188.3},
      {"24612", {188.3 + 77.5 + 188.3, 0, 0}, 0, 4, 188.3},
  };
  for (const auto& [article, carried, still, moved, shift] : cases) {
    Plan plan = row();
    plan.layout.editPiece(3)->grade = plan.layout.editPiece(4)->grade = 30;
    const PlanContent before = plan.layout.content();
    const EditResult result =
        insertPiece(plan.layout, article, spot(plan, article, carried).value());
    const std::vector<PlacedPiece>& pieces = plan.layout.pieces();
    EXPECT_EQ(chainOf(plan.layout, 1).size(), 6u); // still one chain
    EXPECT_LT(largestPlay(plan.layout).distance, 1e-9);
    EXPECT_NEAR(pieces[5].z, still == 0 ? 94.15 : 0, 1e-9); // as the end that stays
    EXPECT_NEAR(pieces[still].x, before.pieces[still].x, 1e-9);
    EXPECT_NEAR(pieces[moved].x, before.pieces[moved].x + shift, 1e-9);
    EXPECT_EQ(selectedPieces(plan.layout), result.placed);
  }
}

TEST(Inserting, OnlyWhereThePieceCarriesOnTheTrack) {
  Plan plan = row();
  plan.place("24922", {0, 500, 0}).extend("2200");
  EXPECT_TRUE(spot(plan, "24130", {188.3, 11.9, 0})); // turns the track from here on
  EXPECT_FALSE(spot(plan, "24130", {188.3, 12.1, 0}));
  EXPECT_FALSE(spot(plan, "24130", {188.3, 0, 46}));    // too much across
  EXPECT_FALSE(spot(plan, "24977", {188.3, 0, 0}));     // track ends there
  EXPECT_FALSE(spot(plan, "24922", {188.3, 0, 0}));     // an adapter fits on one side only
  EXPECT_TRUE(spot(plan, "2200", {180, 500, 0}));       // the other side of an adapter
  EXPECT_FALSE(spot(plan, "24064", {-64.3 + 3, 0, 0})); // an open end comes first

  Plan circle = Plan().place("24130").extend("24130", 11);
  EXPECT_EQ(insertPiece(circle.layout, "24188", *spot(circle, "24188", {})).refusal->title,
            "Insert Piece");
  plan.layout.editPiece(1)->helix = 3;
  const EditResult locked = insertPiece(plan.layout, "24188", *spot(plan, "24188", {188.3, 0, 0}));
  EXPECT_EQ(locked.refusal->title, "Helix track is locked");
}

} // namespace
} // namespace trassix
