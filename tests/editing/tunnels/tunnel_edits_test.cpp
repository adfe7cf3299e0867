#include "document/plan_content.h"
#include "document/reselecting.h"
#include "editing/records_by_id.h"
#include "editing/selection/selection.h"
#include "editing/tunnels/tunnel_edits.h"
#include "editing/tunnels/tunnel_facts.h"
#include "support/plan.h"

#include <gmock/gmock.h>

namespace trassix {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

using Ids = std::vector<std::int32_t>;

void selectPieces(Layout& layout, const Ids& ids) {
  layout.reselect([&ids](const auto& record) {
    return std::remove_cvref_t<decltype(record)>::kKind == RecordKind::Piece &&
           std::ranges::find(ids, record.id) != ids.end();
  });
}

Plan line() {
  Plan plan;
  plan.place("24188").extend("24188", 2);
  return plan;
}

/// Pieces 1, 2 and the curve 5 below them that joins 6 (an outer track at double track's distance).
Plan doubleLine(double offset = 0) {
  Plan plan;
  plan.place("24188").extend("24188").extend("24130"); // R1 inside, to the right
  plan.place("24188", {offset, -77.5, 0}).extend("24188").extend("24230"); // 4, 5, 6
  return plan;
}

TEST(Tunnels, StandSquareAtTheEndsOfAChainAndComeAwayAgain) {
  Plan plan = line();
  selectPieces(plan.layout, {1, 2, 3});
  const PlanContent before = plan.layout.content();
  const EditResult made = placeTunnel(plan.layout);
  ASSERT_EQ(made.placed.size(), 3U);
  const Tunnel tunnel = plan.layout.content().tunnels.at(0);
  EXPECT_EQ(tunnel, (Tunnel{made.placed[0], made.placed[1], made.placed[2], 1, 3, {1, 2, 3}}));
  const SceneryItem& a = *recordWithId(plan.layout.content().scenery, tunnel.portalA);
  const SceneryItem& b = *recordWithId(plan.layout.content().scenery, tunnel.portalB);
  EXPECT_EQ(a.item, "tun.single");
  EXPECT_NEAR(b.x, 3 * 188.3, 0.01);
  EXPECT_NEAR(a.heading, 90, 1e-9); // local y looks out of the tunnel, to the left
  EXPECT_NEAR(b.heading, 270, 1e-9);
  EXPECT_TRUE(liesInTunnel(plan.layout));
  EXPECT_TRUE(placeTunnel(plan.layout).refusal);

  selectPieces(plan.layout, {2});
  ASSERT_TRUE(removeTunnels(plan.layout, tunnelChoice(plan.layout).present));
  EXPECT_EQ(plan.layout.content().scenery, before.scenery);
  EXPECT_EQ(plan.layout.pieceCount(), 3U);
  plan.layout.undo();
  EXPECT_EQ(plan.layout.content().tunnels.size(), 1U);
  plan.layout.undo();
  EXPECT_EQ(plan.layout.content(), before);
}

TEST(Tunnels, TwoTracksSideBySideShareTheirPortals) {
  for (const double offset : {0.0, -30.0}) {
    Plan plan = doubleLine(offset);
    selectPieces(plan.layout, {1, 2, 3, 4, 5, 6});
    if (offset != 0) // out of step the outer curve ends elsewhere
      selectPieces(plan.layout, {1, 2, 4, 5});
    ASSERT_TRUE(placeTunnel(plan.layout).changed()) << tunnelChoice(plan.layout).problem.text;
    const Tunnel& tunnel = plan.layout.content().tunnels[0];
    EXPECT_EQ(tunnel.anchorA, 1);
    EXPECT_EQ(tunnel.covers, offset == 0 ? Ids({1, 2, 3, 4, 5, 6}) : Ids({1, 2, 4, 5}));
    const SceneryItem& a = plan.layout.content().scenery[0];
    EXPECT_EQ(a.item, "tun.double");
    EXPECT_NEAR(a.x, offset, 1e-6); // over all that is covered
    EXPECT_NEAR(a.y, -77.5 / 2, 1e-6);
    const auto facts = tunnelFacts(plan.layout, tunnel);
    ASSERT_TRUE(facts);
    EXPECT_EQ(facts->tracks, 2U);
    EXPECT_NEAR(facts->sharpest, offset == 0 ? 360 : 0, 1e-6);
    EXPECT_NEAR(facts->needed, 58 + 77.5 + (offset == 0 ? 16 : 0), 1e-6);
  }
  Plan slim = Plan().place("24330").place("24430", {0, -64.3, 0}); // needs less than its portals
  selectPieces(slim.layout, {1, 2});
  placeTunnel(slim.layout);
  EXPECT_NEAR(tunnelFacts(slim.layout, slim.layout.content().tunnels.at(0))->needed, 132.3, 1e-6);
}

TEST(Tunnels, CoverTheChainWithTheSmallestIdAndThenTheOtherTheSameWay) {
  struct Row {
    const char* straight;
    double spacing;
  };
  for (const auto& [straight, spacing] :
       {Row{"24188", 77.5}, Row{"24188", -64.3}, Row{"2200", 64.6}, Row{"5106", -77.4},
        Row{"8500", 25}, Row{"59059", 125}, Row{"62188", 77.5}})
    for (const double heading : {0.0, 180.0}) { // of the second track
      Plan plan;
      const double length = cataloguePiece(straight).length;
      plan.place(straight, {length, 0, 0}).extend(straight).at(1, 0).extendLeft(straight); // 3 1 2
      plan.place(straight, {heading == 0 ? 0 : 3 * length, spacing, heading});
      plan.extend(straight, 2);
      selectPieces(plan.layout, {1, 2, 3, 4, 5, 6});
      ASSERT_TRUE(placeTunnel(plan.layout).changed()) << straight;
      const Tunnel& tunnel = plan.layout.content().tunnels[0];
      EXPECT_EQ(tunnel.anchorA, 2);
      EXPECT_EQ(tunnel.anchorB, 3);
      EXPECT_EQ(tunnel.covers, heading == 0 ? Ids({2, 1, 3, 6, 5, 4}) : Ids({2, 1, 3, 4, 5, 6}));
      for (const SceneryItem& portal : plan.layout.content().scenery)
        EXPECT_NEAR(portal.y, spacing / 2, 1e-6);
      const auto facts = tunnelFacts(plan.layout, tunnel);
      EXPECT_TRUE(facts && facts->sufficesForWire() && facts->sufficesForCurve()) << straight;
    }
}

TEST(Tunnels, AreRefusedWithTheReason) {
  Plan ring;
  ring.place("24130").extend("24130", 11);
  Plan turnouts; // 1, turnout 2 with the branch 4, 3
  turnouts.place("24188").extend("24611").extend("24188");
  turnouts.at(2, 2).extend("24188");
  Plan covered = line();
  selectPieces(covered.layout, {1, 2});
  placeTunnel(covered.layout);
  Plan brief;
  brief.place("24064");
  struct Row {
    Plan plan;
    Ids pieces;
    const char* reason;
  };
  for (Row row :
       {Row{ring, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}, "ring"}, Row{covered, {2, 3}, "already"},
        Row{brief, {1}, "at least 100 mm"}, Row{turnouts, {1, 2, 3, 4}, "branches"},
        Row{turnouts, {2, 3, 4}, "No train"}, Row{line(), {1, 3}, "neither"},
        Row{doubleLine(), {1, 4, 5}, "neither"}, Row{line(), {}, "Select"}}) {
    selectPieces(row.plan.layout, row.pieces);
    const PlanContent before = row.plan.layout.content();
    const EditResult result = placeTunnel(row.plan.layout);
    ASSERT_TRUE(result.refusal) << row.reason;
    EXPECT_THAT(result.refusal->text, HasSubstr(row.reason));
    EXPECT_EQ(row.plan.layout.content(), before);
  }
  selectPieces(turnouts.layout, {1, 2, 3});
  EXPECT_THAT(tunnelChoice(turnouts.layout).chains.branches, ElementsAre(2));
  selectPieces(turnouts.layout, {2, 4});
  const EditResult stone = placeTunnel(turnouts.layout, TunnelOpening::OldStone);
  ASSERT_TRUE(stone.changed());
  const auto facts = tunnelFacts(turnouts.layout, turnouts.layout.content().tunnels[0]);
  EXPECT_EQ(turnouts.layout.content().tunnels[0].covers, Ids({2, 4}));
  EXPECT_EQ(facts->opening.height, 62);
  EXPECT_FALSE(facts->sufficesForWire());
  EXPECT_FALSE(facts->sufficesForCurve());
}

} // namespace
} // namespace trassix
