#include "catalog/track_catalog.h"
#include "editing/placing.h"
#include "editing/snapping.h"
#include "support/plan.h"

#include <gtest/gtest.h>

#include <random>

namespace trassix {
namespace {

const PieceDef& piece(std::string_view article) {
  return *TrackCatalog::instance().find(article);
}

/// A straight 24188 at the origin: open ends at x 0 and x 188.3.
Plan oneStraight() {
  Plan plan;
  plan.place("24188");
  return plan;
}

TEST(Snapping, ReachFacingAndSystemDecide) {
  const Plan plan = oneStraight();
  const struct {
    const char* what;
    const char* article;
    Pose pose;
    bool snaps;
  } cases[] = {
      {"at the reach", "24188", {188.3 + 25.0, 0, 0}, true},
      {"just beyond the reach", "24188", {188.3 + 25.01, 0, 0}, false},
      {"same heading", "24977", {188.3, 0, 180}, false},
      {"just under 20 degrees off the same heading", "24977", {188.3, 0, 199.9}, false},
      {"20 degrees off the same heading", "24977", {188.3, 0, 200}, true},
      {"across", "24977", {188.3, 0, 90}, true},
      {"another system", "2200", {190, 0, 0}, false},
      {"an adapter by its end of this system", "24922", {190, 0, 0}, true},
      {"an adapter by its other end", "24922", {190 + 180, 0, 180}, false},
  };
  for (const auto& c : cases)
    EXPECT_EQ(FindSnap(piece(c.article), c.pose, plan.layout.pieces()).snapped, c.snaps) << c.what;

  const SnapResult snap = FindSnap(piece("24130"), {190, 3, 17}, plan.layout.pieces());
  EXPECT_EQ(snap.target, plan.last());
  EXPECT_EQ(snap.targetConnector, 1);
  EXPECT_EQ(snap.newConnector, 0);
  EXPECT_NEAR(snap.pose.x, 188.3, 1e-9);
  EXPECT_NEAR(snap.pose.heading, 0, 1e-9);
  EXPECT_NEAR(snap.distance, std::hypot(1.7, 3), 1e-9);
}

TEST(Snapping, OfEquallyNearEndsTheFirstMetWins) {
  Plan plan;
  plan.place("24188", {0, 10, 0}).place("24188", {0, -10, 0});
  const std::int32_t first = plan.layout.pieces()[0].id;
  EXPECT_EQ(FindSnap(piece("24188"), {200, 0, 0}, plan.layout.pieces()).target, first);
  // The ends of 8502 lie 13.75 mm on either side of the open end between them: its own first end.
  Plan small;
  small.place("8500");
  const SnapResult snap = FindSnap(piece("8502"), {110, -13.75, 90}, small.layout.pieces());
  EXPECT_EQ(snap.newConnector, 0);
}

TEST(Snapping, IncompatibleContactSeesJoinedAndHiddenEnds) {
  Plan plan = oneStraight();
  plan.extend("24188");
  plan.layout.ensureLevel();
  plan.layout.editSettings().levels[0].visible = false;
  const SnapIndex index(plan.layout);
  EXPECT_FALSE(index.findSnap(piece("24188"), {-189, 0, 0}).snapped);
  for (const double x : {188.3, 376.6}) {
    const auto contact = index.findIncompatibleContact(piece("2200"), {x + 5, 0, 0});
    ASSERT_TRUE(contact);
    EXPECT_EQ(contact->carried, TrackSystem::KTrack);
    EXPECT_EQ(contact->other, TrackSystem::CTrack);
  }
  EXPECT_FALSE(index.findIncompatibleContact(piece("24188"), {380, 0, 0}));
}

/// Random plans on a coarse lattice, so that equal distances and ends exactly at the reach are
/// common.
TEST(Snapping, IndexAndPlainLoopsAgree) {
  const TrackCatalog& catalog = TrackCatalog::instance();
  std::mt19937 random(20240611);
  const auto any = [&random](int from, int to) {
    return std::uniform_int_distribution<int>(from, to)(random);
  };
  int snapped = 0;
  int contacts = 0;
  for (int round = 0; round < 60; ++round) {
    Layout layout;
    layout.ensureLevel();
    layout.ensureLevel(2);
    layout.editSettings().levels[1].visible = false;
    const auto randomPose = [&] {
      return Pose{any(0, 60) * 12.5, any(-40, 20) * 12.5, any(0, 11) * 30.0};
    };
    for (int i = 0; i < 80; ++i) {
      const PieceDef& definition = *catalog.at(any(0, catalog.count() - 1));
      const Pose pose = randomPose();
      const SnapResult snap = FindSnap(definition, pose, layout.pieces());
      const EditResult placed = dropPiece(layout, definition.article, pose, snap, false);
      layout.editPiece(placed.placed.front())->level = any(1, 2);
    }
    std::vector<PlacedPiece> visible;
    for (const PlacedPiece& placed : layout.pieces())
      if (layout.levelVisible(placed.level))
        visible.push_back(placed);
    const SnapIndex index(layout);
    for (int i = 0; i < 200; ++i) {
      const PieceDef& carried = *catalog.at(any(0, catalog.count() - 1));
      const Pose pose = randomPose();
      const SnapResult plain = FindSnap(carried, pose, visible);
      ASSERT_EQ(index.findSnap(carried, pose), plain) << "round " << round << " query " << i;
      const auto contact = FindIncompatibleContact(carried, pose, layout.pieces());
      ASSERT_EQ(index.findIncompatibleContact(carried, pose), contact);
      snapped += plain.snapped ? 1 : 0;
      contacts += contact ? 1 : 0;
    }
  }
  EXPECT_GT(snapped, 1000);
  EXPECT_GT(contacts, 1000);
}

} // namespace
} // namespace trassix
