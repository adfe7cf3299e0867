#include "editing/elevation/crossings.h"
#include "support/plan.h"

#include <gmock/gmock.h>

#include <tuple>

namespace trassix {
namespace {

TEST(Crossings, WhereTrackLeadsOverTrackWithoutBeingJoined) {
  // Track along x at height 0 and across it at `heading`, `z` and `grade`; then how many places,
  // and of the first one the clearance and whether it is too low.
  const std::tuple<const char*, const char*, Pose, double, std::size_t, double, bool> cases[] = {
      {"24188", "24188", {94.15, -94.15, 90}, 80, 1, 60, false},
      {"24188", "24188", {94.15, -94.15, 90}, 79, 1, 59, true},
      {"24188", "24188", {94.15, -94.15, 90}, 0, 1, -20, true},
      {"24188", "24188", {94.15, -94.15, 90}, -80, 1, 60, false},
      {"8500", "8500", {55, -55, 90}, 37, 1, 24, false},
      {"24188", "24188", {188.3, -94.15, 90}, 80, 1, 60, false}, // over the joint, told once
      {"24188", "24188", {0, 0, 1}, 80, 0, 0, false},            // along it
      {"24188", "24188", {0, 0, 0}, 80, 0, 0, false},
      {"24188", "24188", {94.15, 5, 90}, 80, 0, 0, false},
      {"24188", "24188", {-0.2, 0.3, 200}, 0, 0, 0, false}, // meets an open end
      {"24188", "24130", {-30, -30, 30}, 80, 1, 60, false},
      {"24611", "24188", {170, -94.15, 90}, 80, 2, 60, false}, // both routes
  };
  for (const auto& [below, above, pose, z, count, clearance, low] : cases) {
    SCOPED_TRACE(std::string(below) + " " + std::to_string(pose.heading) + " " + std::to_string(z));
    Plan plan = Plan().place(below).extend(above).place(above, pose);
    Layout& layout = plan.layout;
    layout.editPiece(3)->z = z;
    const std::vector<TrackCrossing> found = trackCrossings(layout);
    ASSERT_EQ(found.size(), count);
    if (count == 0)
      continue;
    EXPECT_NEAR(found[0].clearance, clearance, 1e-6);
    EXPECT_EQ(found[0].tooLow(), low);
    EXPECT_EQ(found[0].upper.piece, z < 0 ? 1 : 3);
  }
}

TEST(Crossings, AtJointsOfBothTracksAreToldOnce) {
  for (const double angle : {30, 90, 200}) {
    Plan plan = Plan().place("24188").extend("24188");
    const Point start = toWorld({188.3, 0, angle}, {-188.3, 0});
    plan.place("24188", {start.x, start.y, angle});
    EXPECT_EQ(trackCrossings(plan.layout).size(), 0U) << angle; // it only ends there
    plan.extend("24188");
    EXPECT_EQ(trackCrossings(plan.layout).size(), 1U) << angle;
  }
}

TEST(Crossings, HeightsOfSlopesAndOfTheLinesOfACrossing) {
  Layout layout = Plan().place("24188").place("24640", {94.15, 60, 280}).layout;
  layout.editPiece(1)->grade = toDegrees(0.05);
  layout.editPiece(2)->z = 100;
  const std::vector<TrackCrossing> found = trackCrossings(layout);
  ASSERT_FALSE(found.empty());
  const CrossedTrack& slope = found[0].lower;
  EXPECT_NEAR(slope.along, found[0].at.x, 1e-6);
  EXPECT_NEAR(slope.height, slope.along * std::sin(0.05), 1e-6);
  EXPECT_NEAR(found[0].upper.height - slope.height - 20, found[0].clearance, 1e-9);
}

} // namespace
} // namespace trassix
