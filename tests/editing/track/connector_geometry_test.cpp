#include "editing/track/connector_geometry.h"
#include "support/plan.h"

#include <gtest/gtest.h>

#include <limits>

namespace trassix {
namespace {

TEST(ConnectorGeometry, HeadingsAreFolded) {
  const double cases[][2] = {
      {0, 0},      {360, 0},       {-360, 0},
      {725, 5},    {-30, 330},     {-1e-20, 0},
      {3.6e17, 0}, {359.5, 359.5}, {std::numeric_limits<double>::infinity(), 0}};
  for (const auto& [given, expected] : cases)
    EXPECT_DOUBLE_EQ(normaliseHeading(given), expected) << given;
  EXPECT_DOUBLE_EQ(headingDifference(350, 10), 20);
}

TEST(ConnectorGeometry, EndsFollowThePose) {
  PlacedPiece placed;
  placed.x = 100;
  placed.heading = 90;
  placed.joints = {{7, 1}};
  const auto ends = WorldConnectorsOf(placed, cataloguePiece("24188"));
  EXPECT_NEAR(ends[1].y, 188.3, 1e-9); // downwards: +90 turns from +x to +y
  EXPECT_EQ(ends[0].heading, 270);
  EXPECT_TRUE(!ends[0].free && ends[1].free); // the second lies beyond the joint table
  EXPECT_EQ(ConnectorToWorld(placed, cataloguePiece("24188"), 2), WorldConnector{});
  EXPECT_EQ(AttachPose(cataloguePiece("24188"), -1, ends[1]), Pose{});
}

TEST(ConnectorGeometry, CentrelinesAreAnArcOrALineAndTheBranchChord) {
  PlacedPiece placed;
  const auto curve =
      CentrelinePaths(placed, cataloguePiece("59035")); // 22.5 degrees: at least 6 steps
  ASSERT_EQ(curve[0].size(), 7u);
  EXPECT_NEAR(curve[0].back().y, ConnectorToWorld(placed, cataloguePiece("59035"), 1).y, 1e-9);
  const auto left = CentrelinePaths(placed, cataloguePiece("24611"));
  EXPECT_LT(left.at(0).back().y, 0); // a negative angle bends to the left
  EXPECT_NEAR(left.at(1).back().y, -38.76, 1e-9);
}

} // namespace
} // namespace trassix
