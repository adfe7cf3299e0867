// Changing finished track: swapping a piece in place, inserting one at a joint.
#include "catalog/track_catalog.h"
#include "editing/inserting.h"
#include "editing/joining.h"
#include "editing/selection.h"
#include "editing/swapping.h"
#include "support/plan.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <set>

namespace trassix {
namespace {

const PieceDef& piece(std::string_view article) {
  return *TrackCatalog::instance().find(article);
}

std::set<std::string> articles(const std::vector<SwapFit>& fits) {
  std::set<std::string> found;
  for (const SwapFit& fit : fits)
    found.insert(fit.definition->article);
  return found;
}

TEST(Swapping, OffersWhatFitsTheSameEnds) {
  Plan plan;
  plan.place("24188").extend("24188").extend("24188").place("24188", {0, 900, 0});
  const auto straight = swapFits(plan.layout, 2);
  // A turnout fits either way round; the straight itself is not offered.
  EXPECT_THAT(articles(straight),
              testing::UnorderedElementsAre("74620", "24611", "24612", "24630", "24640", "24624"));
  EXPECT_EQ(std::ranges::count(straight, &piece("24612"), &SwapFit::definition), 2);
  EXPECT_EQ(articles(swapFits(plan.layout, 1)), articles(straight)); // its open end counts too
  EXPECT_TRUE(swapFits(plan.layout, 4).empty());                     // joined to nothing

  Plan branch;
  branch.place("24612").extend("24188").at(1, 2).extend("24188").at(1, 0).extend("24188");
  EXPECT_THAT(articles(swapFits(branch.layout, 1)),
              testing::UnorderedElementsAre("24630", "24624")); // three ends joined
  Plan adapter;
  adapter.place("2200").extend("2291").at(1, 0).extend("2291");
  EXPECT_FALSE(articles(swapFits(adapter.layout, 1)).contains("5106")); // as long, another system
}

TEST(Swapping, KeepsThePlaceAndTheJoints) {
  Plan plan;
  plan.place("24188").extend("24188").extend("24188");
  plan.layout.editPiece(2)->grade = 2;
  plan.layout.editPiece(2)->z = 10;
  const PlanContent before = plan.layout.content();
  for (const SwapFit& fit : swapFits(plan.layout, 2)) {
    ASSERT_TRUE(swapPiece(plan.layout, 2, fit));
    EXPECT_EQ(brokenRule(plan.layout), "");
    const PlacedPiece& swapped = *plan.layout.findPiece(2);
    EXPECT_EQ(swapped.cat, fit.definition->article);
    EXPECT_TRUE(!plan.layout.findPiece(1)->joints[1].open() &&
                !plan.layout.findPiece(3)->joints[0].open());
    EXPECT_LT(largestPlay(plan.layout).distance, 0.01); // crossings are rounded a little
    // The heights of both joined ends stay.
    const auto heightAt = [&](std::size_t end) {
      return endHeight(swapped, *fit.definition, fit.ends[end]);
    };
    EXPECT_NEAR(heightAt(0), 10, 1e-3) << swapped.cat;
    EXPECT_NEAR(heightAt(1), 10 + 188.3 * std::sin(toRadians(2)), 1e-3) << swapped.cat;
    EXPECT_FALSE(swapPiece(plan.layout, 2, fit)); // is there by now
    plan.layout.undo();
    EXPECT_EQ(plan.layout.content(), before);
  }
}

/// Five straights in a row, the second one shorter.
Plan row() {
  Plan plan;
  plan.place("24188").extend("24077").extend("24188", 3);
  return plan;
}

TEST(Inserting, TheShorterSideMakesRoom) {
  const struct {
    const char* article;
    Pose carried;
    std::int32_t unmoved, moved;
    double shift; // of the moved side along the track
  } cases[] = {
      {"24188", {188.3 + 4, 3, 5}, 5, 1, -188.3},           // before piece 2: piece 1 goes
      {"24188", {188.3 + 77.5 + 376.6, 0, 0}, 1, 5, 188.3}, // before piece 5: it goes
      {"24612", {188.3 + 77.5 + 376.6 - 188.3, 0, 0}, 1, 5, 188.3},
  };
  for (const auto& c : cases) {
    Plan plan = row();
    const PlanContent before = plan.layout.content();
    const auto spot =
        findInsertSpot(plan.layout, SnapIndex(plan.layout), piece(c.article), c.carried);
    ASSERT_TRUE(spot) << c.carried.x;
    const EditResult result = insertPiece(plan.layout, c.article, *spot);
    ASSERT_TRUE(result.changed());
    EXPECT_EQ(brokenRule(plan.layout), "");
    EXPECT_EQ(chainOf(plan.layout, 1).size(), 6u); // still one chain
    EXPECT_LT(largestPlay(plan.layout).distance, 1e-9);
    const auto x = [](const PlanContent& content, std::int32_t id) {
      return content.pieces[static_cast<std::size_t>(id) - 1].x;
    };
    EXPECT_NEAR(x(plan.layout.content(), c.unmoved), x(before, c.unmoved), 1e-9);
    EXPECT_NEAR(x(plan.layout.content(), c.moved), x(before, c.moved) + c.shift, 1e-9);
    EXPECT_EQ(selectedPieces(plan.layout), result.placed);
    plan.layout.undo();
    EXPECT_EQ(plan.layout.content(), before);
  }
}

TEST(Inserting, OnlyWhereThePieceCarriesOnTheTrack) {
  Plan plan = row();
  plan.place("24922", {0, 500, 0}).extend("2200");
  const SnapIndex index(plan.layout);
  const auto spot = [&](const char* article, const Pose& pose) {
    return findInsertSpot(plan.layout, index, piece(article), pose);
  };
  EXPECT_TRUE(spot("24130", {188.3, 11.9, 0})); // turns the track from here on
  EXPECT_FALSE(spot("24130", {188.3, 12.1, 0}));
  EXPECT_FALSE(spot("24130", {188.3, 0, 46})); // too much across
  EXPECT_FALSE(spot("24977", {188.3, 0, 0}));  // track ends there
  EXPECT_FALSE(spot("2200", {188.3, 0, 0}));   // another system
  EXPECT_FALSE(spot("24922", {188.3, 0, 0}));  // an adapter fits on one side only
  EXPECT_TRUE(spot("2200", {180, 500, 0}));    // the adapter's other side
  EXPECT_FALSE(spot("24188", {188.3 - 7, 0, 180}) == spot("24188", {188.3, 0, 0}));
  EXPECT_FALSE(spot("24064", {-64.3 + 3, 0, 0})); // an open end comes first

  Plan circle;
  circle.place("24130").extend("24130", 11);
  const auto closed = findInsertSpot(circle.layout, SnapIndex(circle.layout), piece("24188"), {});
  ASSERT_TRUE(closed);
  const std::uint64_t revision = circle.layout.revision();
  EXPECT_EQ(insertPiece(circle.layout, "24188", *closed).refusal->title, "Insert Piece");
  EXPECT_EQ(circle.layout.revision(), revision);

  Plan helix = row();
  helix.layout.editPiece(1)->helix = 3;
  const auto locked =
      findInsertSpot(helix.layout, SnapIndex(helix.layout), piece("24188"), {188.3, 0, 0});
  EXPECT_EQ(insertPiece(helix.layout, "24188", *locked).refusal->title, "Helix track is locked");
}

} // namespace
} // namespace trassix
