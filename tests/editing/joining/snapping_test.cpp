#include "catalog/track_catalog.h"
#include "editing/joining/snapping.h"
#include "editing/placing/placing.h"
#include "support/plan.h"

#include <gtest/gtest.h>

#include <random>
#include <tuple>

namespace trassix {
namespace {

TEST(Snapping, ReachFacingAndSystemDecide) {
  Plan plan;
  plan.place("24188"); // open ends at x 0 and x 188.3
  const std::tuple<const char*, const char*, Pose, bool> cases[] = {
      {"at the reach", "24188", {188.3 + 25.0, 0, 0}, true},
      {"just beyond the reach", "24188", {188.3 + 25.01, 0, 0}, false},
      {"just under 20 degrees off the same heading", "24977", {188.3, 0, 199.9}, false},
      {"20 degrees off the same heading", "24977", {188.3, 0, 200}, true},
      {"another system", "2200", {190, 0, 0}, false},
      {"an adapter by its end of this system", "24922", {190, 0, 0}, true},
      {"an adapter by its other end", "24922", {190 + 180, 0, 180}, false},
  };
  for (const auto& [what, article, pose, snaps] : cases)
    EXPECT_EQ(FindSnap(cataloguePiece(article), pose, plan.layout.pieces()).snapped, snaps) << what;
  const SnapResult snap = FindSnap(cataloguePiece("24130"), {190, 3, 17}, plan.layout.pieces());
  EXPECT_EQ(snap, (SnapResult{true, 1, 1, 0, {188.3, 0, 0}, std::hypot(190 - 188.3, 3)}));

  // Of equally near ends the first met wins: of the plan's in document order, then of one's own.
  plan.place("24188", {0, -20, 0});
  EXPECT_EQ(FindSnap(cataloguePiece("24188"), {200, -10, 0}, plan.layout.pieces()).target, 1);
  Plan small = Plan().place("8500");
  EXPECT_EQ(FindSnap(cataloguePiece("8502"), {110, -13.75, 90}, small.layout.pieces()).newConnector,
            0);
}

/// Random plans on a coarse lattice, so that equal distances and ends exactly at the reach are
/// common, with joined and hidden ends.
TEST(Snapping, IndexAndPlainLoopsAgree) {
  const TrackCatalog& catalog = TrackCatalog::instance();
  std::mt19937 random(20240611);
  const auto any = [&random](int from, int to) {
    return std::uniform_int_distribution<int>(from, to)(random);
  };
  int snapped = 0;
  int contacts = 0;
  for (int round = 0; round < 40; ++round) {
    Layout layout;
    layout.ensureLevel();
    layout.ensureLevel(2);
    layout.editSettings().levels[1].visible = false;
    const auto anyPose = [&] {
      return Pose{any(0, 60) * 12.5, any(-40, 20) * 12.5, any(0, 11) * 30.0};
    };
    for (int i = 0; i < 80; ++i) {
      const PieceDef& definition = *catalog.at(any(0, catalog.count() - 1));
      const Pose pose = anyPose();
      const SnapResult snap = FindSnap(definition, pose, layout.pieces());
      const EditResult placed = dropPiece(layout, definition.article, pose, snap, false);
      layout.editPiece(placed.placed.front())->level = any(1, 2);
    }
    std::vector<PlacedPiece> visible = layout.pieces();
    std::erase_if(visible, [](const PlacedPiece& placed) { return placed.level == 2; });
    const SnapIndex index(layout);
    for (int i = 0; i < 150; ++i) {
      const PieceDef& carried = *catalog.at(any(0, catalog.count() - 1));
      const Pose pose = anyPose();
      const SnapResult plain = FindSnap(carried, pose, visible);
      ASSERT_EQ(index.findSnap(carried, pose), plain) << "round " << round << " query " << i;
      const auto contact = FindIncompatibleContact(carried, pose, layout.pieces());
      ASSERT_EQ(index.findIncompatibleContact(carried, pose), contact);
      if (i % 15 == 0) {
        Layout tried = layout;
        ASSERT_EQ(dropPiece(tried, carried.article, pose, {}, true).refusal.has_value(), !!contact);
      }
      snapped += plain.snapped ? 1 : 0;
      contacts += contact ? 1 : 0;
    }
  }
  EXPECT_TRUE(snapped > 500 && contacts > 500) << snapped << " " << contacts;
}

} // namespace
} // namespace trassix
