#include "document/plan_content.h"
#include "editing/elevation/end_heights.h"
#include "editing/helix/helix_edits.h"
#include "editing/supports/supports.h"
#include "editing/track/routes.h"
#include "support/plan.h"

#include <gmock/gmock.h>

#include <cmath>
#include <random>
#include <set>
#include <tuple>

namespace trassix {
namespace {

Layout raised(Layout layout, double height) {
  for (PlacedPiece& piece : layout.edit().pieces)
    piece.z = height;
  return layout;
}

/// Least distance in the plan from a support's middle to the centre line of a piece.
double distanceTo(const PlacedPiece& piece, const Support& support) {
  double nearest = 1e9;
  for (const Route& route : routesOf(*definitionOf(piece)))
    for (const RoutePoint& at : sampleRoute(route, 0.1, 5)) {
      const Point p = toWorld(poseOf(piece), at.position);
      nearest = std::min(nearest, std::hypot(p.x - support.pose.x, p.y - support.pose.y));
    }
  return nearest;
}

TEST(DeckPosts, CarryADeckWithoutStandingInTheWay) {
  Plan plan;
  plan.place("24188", {-400, 20, 0}).extend("24188", 8); // below the deck's front edge
  Layout layout = std::move(plan.layout);
  layout.ensureLevel(2);
  layout.editSettings().levels.back().height = 150;
  layout.editSettings().levels.back().outline = {{0, 0}, {1000, 0}, {1000, 800}, {0, 800}};
  const std::vector<DeckPost> posts = supportsOf(layout).posts;
  EXPECT_GE(posts.size(), 5U);
  const PierRoom room(layout);
  for (const DeckPost& post : posts) {
    EXPECT_EQ(room.obstacleAt({{post.at.x, post.at.y, 0}, post.size, post.size, 0, post.head}, {}),
              PierObstacle::None);
    EXPECT_TRUE(post.foot == 0 && post.head > 140 && post.head < 150) << post.head;
  }
}

std::size_t unexplained(const SupportPlan& plan, double longest) {
  return static_cast<std::size_t>(std::ranges::count_if(plan.spans, [&](const SupportSpan& span) {
    return span.length > longest + 1e-6 && span.reason == SupportSpan::Reason::None;
  }));
}

TEST(Supports, StandUnderTheJointsOfRaisedTrack) {
  Layout onHill = raised(Plan().place("24188").layout, 60);
  onHill.edit().shapes.push_back(
      {9, {{-50, -50}, {90, -50}, {90, 50}, {-50, 50}}, {}, 255, false, 1, 30, "", false});
  Layout onPlate = raised(Plan().place("24188").layout, 60);
  onPlate.editSettings().levels = {
      {2, "", true, 60, false, {}, {{-50, -50}, {90, -50}, {90, 50}, {-50, 50}}}};
  Layout offBoard = raised(Plan().place("24188").layout, 60);
  offBoard.editSettings().baseboard = {{-50, -50}, {90, -50}, {90, 50}, {-50, 50}};
  const Layout straight = Plan().place("24188").extend("24188", 2).layout;
  // Plan, piers, spans, the first pier's foot.
  const std::tuple<const char*, Layout, std::size_t, std::size_t, double> cases[] = {
      {"on the board", raised(straight, 3), 0, 0, 0},
      {"raised", raised(straight, 3.5), 4, 3, 0},
      {"under the board", raised(straight, -60), 0, 0, 0},
      {"on a hill at one end", onHill, 2, 1, 30},
      {"on a plate at one end", onPlate, 1, 1, 0},
      {"off the board at one end", offBoard, 1, 1, 0},
      {"bridge", raised(Plan().place("24188").extend("74636").extend("24188").layout, 90), 4, 3, 0},
      {"turnout", raised(Plan().place("24611").layout, 60), 3, 2, 0},
      {"longer than a span", raised(Plan().place("8505").layout, 30), 3, 2, 0},
  };
  for (const auto& [what, layout, piers, spans, foot] : cases) {
    SCOPED_TRACE(what);
    const SupportPlan plan = supportsOf(layout);
    ASSERT_EQ(plan.supports.size(), piers);
    EXPECT_EQ(plan.spans.size(), spans);
    EXPECT_EQ(unexplained(plan, 360), 0U);
    EXPECT_NEAR(piers == 0 ? 0 : plan.supports[0].foot, foot, 1e-9);
    for (const Support& support : plan.supports)
      EXPECT_NEAR(support.head, layout.findPiece(support.piece)->z, 1e-9);
  }
}

TEST(Supports, KeepOutOfTheWay) {
  // What passes below the middle joint of three straights at 100, and how far the pier there moves.
  const std::tuple<const char*, Pose, double> cases[] = {
      {"across the joint", {188.3, -94.15, 90}, 41.5},
      {"beside the joint", {235, -94.15, 90}, 0},
      {"along it", {94.15, 0, 0}, 135.65},
      {"above it", {188.3, -94.15, 90}, 0},
  };
  for (const auto& [what, pose, moved] : cases) {
    SCOPED_TRACE(what);
    Layout layout = raised(Plan().place("24188").extend("24188", 2).layout, 100);
    layout = [&] {
      Plan plan;
      plan.layout = layout;
      return plan.place("24188", pose).layout;
    }();
    layout.editPiece(4)->z = std::string(what) == "above it" ? 200 : 0;
    const SupportPlan plan = supportsOf(layout);
    double nearest = 1e9;
    for (const Support& support : plan.supports)
      if (support.head == 100)
        nearest = std::min(nearest, std::hypot(support.pose.x - 188.3, support.pose.y));
    EXPECT_GE(nearest, moved);
    EXPECT_LE(nearest, moved + 6);
    EXPECT_EQ(unexplained(plan, 360), 0U);
  }
}

TEST(Supports, TrackOverTrackAllTheWayIsListed) {
  Layout layout = Plan().place("24188").extend("24611").extend("24188").layout;
  std::vector<PlacedPiece>& pieces = layout.edit().pieces;
  for (const PlacedPiece& below : std::vector<PlacedPiece>(pieces)) {
    pieces.push_back(below);
    pieces.back().id += 3;
    pieces.back().z = 100;
    for (Joint& joint : pieces.back().joints)
      joint.target += joint.open() ? 0 : 3;
  }
  const SupportPlan plan = supportsOf(layout);
  std::set<std::int32_t> listed;
  for (const SupportSpan& span : plan.spans)
    if (span.reason == SupportSpan::Reason::Track)
      listed.insert(span.pieces.begin(), span.pieces.end());
  EXPECT_TRUE(plan.supports.empty());
  EXPECT_THAT(listed, testing::ElementsAre(4, 5, 6));
}

TEST(Supports, KeepOffRoads) {
  Layout layout = raised(Plan().place("24188").extend("24188", 2).layout, 100);
  SceneryItem road;
  road.id = 9;
  road.item = "road.main";
  road.x = 188.3;
  road.heading = 90;
  for (const double height : {0.0, 150.0}) { // the road below, and above
    layout.editSettings().levels[0].height = height;
    layout.edit().scenery = {road};
    double nearest = 1e9;
    for (const Support& support : supportsOf(layout).supports)
      nearest = std::min(nearest, std::abs(support.pose.x - 188.3));
    EXPECT_NEAR(nearest, height > 0 ? 0 : 75 / 2 + 35 / 2, height > 0 ? 1e-6 : 6);
  }
}

TEST(Supports, RandomPlansOnTwoLevels) {
  std::mt19937 random(18);
  const auto pick = [&](unsigned count) { return static_cast<int>(random() % count); };
  const std::size_t perLevel = 7;
  std::ptrdiff_t spans = 0;
  std::ptrdiff_t listed = 0;
  for (int i = 0; i < 2000; ++i) {
    Plan plan;
    for (int level = 0; level < 2; ++level) {
      plan.place("24188", {pick(900) * 1.0, pick(600) * 1.0, pick(360) * 1.0});
      for (std::size_t k = 1; k < perLevel; ++k)
        pick(2) == 0 ? plan.extend(pick(2) == 0 ? "24188" : "24130") : plan.extendLeft("24230");
    }
    std::vector<PlacedPiece>& pieces = plan.layout.edit().pieces;
    for (std::size_t k = perLevel; k < pieces.size(); ++k)
      pieces[k].z = 90;
    const SupportPlan supports = supportsOf(plan.layout);
    for (const Support& support : supports.supports)
      for (const Support& leg : standingParts(support))
        for (std::size_t k = 0; k < perLevel; ++k)
          ASSERT_GE(distanceTo(pieces[k], leg), 24 + leg.along / 2 - 0.1) << i;
    ASSERT_EQ(unexplained(supports, 360), 0U) << i;
    spans += std::ssize(supports.spans);
    listed += std::ranges::count_if(supports.spans, [](const SupportSpan& span) {
      return span.reason != SupportSpan::Reason::None;
    });
  }
  EXPECT_LT(20 * listed, spans) << listed;
}

TEST(Supports, HeadsMeetTheSlopeAboveThem) {
  Plan plan = Plan().place("24130").extend("24188", 6).extend("24130", 3);
  double height = 20;
  for (PlacedPiece& piece : plan.layout.edit().pieces) {
    lay(piece, layTowards(piece, *definitionOf(piece), 0, 1, height, 0.04));
    height = endHeight(piece, *definitionOf(piece), 1);
  }
  plan.place("24188", {400, -150, 60}); // drives piers aside
  const SupportPlan supports = supportsOf(plan.layout);
  EXPECT_GE(supports.supports.size(), 9U);
  for (const Support& support : supports.supports) {
    const PlacedPiece& piece = *plan.layout.findPiece(support.piece);
    const PieceDef& definition = *definitionOf(piece);
    const std::vector<RoutePoint> line = sampleRoute(routesOf(definition).front(), 0.01, 0.5);
    double nearest = 1e9;
    double along = 0;
    for (const RoutePoint& at : line) {
      const Point p = toWorld(poseOf(piece), at.position);
      const double d = std::hypot(p.x - support.pose.x, p.y - support.pose.y);
      if (d < nearest) {
        nearest = d;
        along = at.along;
      }
    }
    EXPECT_LT(nearest, 0.5);
    EXPECT_NEAR(support.head, endHeight(piece, definition, 0) + along * slopeOf(piece), 0.1);
  }
}

TEST(Supports, HelixHangsOnRods) {
  HelixPlan helix{findHelixKit(kDefaultHelixKit), HelixHand::Right, 90, {0, 0, 0}, 0};
  Layout layout;
  placeHelix(layout, helix, 1);
  const SupportPlan plan = supportsOf(layout);
  ASSERT_FALSE(plan.supports.empty());
  for (const Support& support : plan.supports) {
    EXPECT_EQ(support.kind, SupportKind::Rod);
    EXPECT_GT(support.head, helix.climb());
  }
  for (PlacedPiece& piece : layout.edit().pieces)
    piece.helix = -1; // as a file may say
  for (const Support& support : supportsOf(layout).supports)
    EXPECT_NE(support.kind, SupportKind::Rod);
}

} // namespace
} // namespace trassix
