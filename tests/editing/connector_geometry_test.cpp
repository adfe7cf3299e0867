#include "catalog/track_catalog.h"
#include "editing/connector_geometry.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace trassix {
namespace {

const PieceDef& piece(std::string_view article) {
  return *TrackCatalog::instance().find(article);
}

TEST(ConnectorGeometry, HeadingsAreFolded) {
  const double kNone = std::numeric_limits<double>::infinity();
  const struct {
    double given, expected;
  } cases[] = {{0, 0},         {360, 0},    {-360, 0},       {725, 5},  {-30, 330},
               {359.5, 359.5}, {-1e-20, 0}, {1e15 * 360, 0}, {kNone, 0}};
  for (const auto& c : cases)
    EXPECT_DOUBLE_EQ(normaliseHeading(c.given), c.expected) << c.given;
  EXPECT_DOUBLE_EQ(headingDifference(350, 10), 20);
  EXPECT_DOUBLE_EQ(headingDifference(10, 190), 180);
}

TEST(ConnectorGeometry, EndsFollowThePose) {
  PlacedPiece placed;
  placed.x = 100;
  placed.y = 50;
  placed.heading = 90;
  placed.joints = {{7, 1}};
  const auto ends = WorldConnectorsOf(placed, piece("24188"));
  ASSERT_EQ(ends.size(), 2u);
  EXPECT_NEAR(ends[1].x, 100, 1e-9);
  EXPECT_NEAR(ends[1].y, 238.3, 1e-9); // downwards: +90 turns from +x to +y
  EXPECT_EQ(ends[0].heading, 270);
  EXPECT_EQ(ends[1].heading, 90);
  EXPECT_FALSE(ends[0].free);
  EXPECT_TRUE(ends[1].free); // beyond the joint table
  EXPECT_EQ(ConnectorToWorld(placed, piece("24188"), 2), WorldConnector{});
  EXPECT_EQ(ConnectorToWorld(placed, piece("24188"), -1), WorldConnector{});
  EXPECT_EQ(AttachPose(piece("24188"), 2, ends[1]), Pose{});
}

TEST(ConnectorGeometry, AttachedEndsLieOnAndFaceTheirTarget) {
  const WorldConnector target{-312.7, 88.1, 217.3, true, 0};
  for (std::int32_t i = 0; i < TrackCatalog::instance().count(); ++i) {
    const PieceDef& definition = *TrackCatalog::instance().at(i);
    for (std::size_t k = 0; k < definition.connectors.size(); ++k) {
      const auto index = static_cast<std::int32_t>(k);
      const Pose pose = AttachPose(definition, index, target);
      PlacedPiece placed;
      placed.x = pose.x;
      placed.y = pose.y;
      placed.heading = pose.heading;
      const WorldConnector end = ConnectorToWorld(placed, definition, index);
      EXPECT_NEAR(end.x, target.x, 1e-9) << definition.article;
      EXPECT_NEAR(end.y, target.y, 1e-9) << definition.article;
      EXPECT_NEAR(headingDifference(end.heading, target.heading), 180, 1e-9) << definition.article;
    }
  }
}

TEST(ConnectorGeometry, CentrelinesAreAnArcOrALineAndTheBranchChord) {
  PlacedPiece placed;
  placed.heading = 90;
  const auto straight = CentrelinePaths(placed, piece("24188"));
  ASSERT_EQ(straight.size(), 1u);
  EXPECT_NEAR(straight[0].back().y, 188.3, 1e-9);
  const auto curve = CentrelinePaths(placed, piece("59035")); // 22.5 degrees: at least 6 steps
  ASSERT_EQ(curve[0].size(), 7u);
  const WorldConnector end = ConnectorToWorld(placed, piece("59035"), 1);
  EXPECT_NEAR(curve[0].back().x, end.x, 1e-9);
  EXPECT_NEAR(curve[0].back().y, end.y, 1e-9);
  placed.heading = 0;
  const auto left = CentrelinePaths(placed, piece("24611"));
  ASSERT_EQ(left.size(), 2u);
  EXPECT_LT(left[0].back().y, 0); // a negative angle bends to the left
  EXPECT_NEAR(left[1].back().x, 180.04, 1e-9);
  EXPECT_NEAR(left[1].back().y, -38.76, 1e-9);
}

} // namespace
} // namespace trassix
