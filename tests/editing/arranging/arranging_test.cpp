#include "document/reselecting.h"
#include "editing/arranging/aligning.h"
#include "editing/arranging/mirroring.h"
#include "editing/arranging/parallel_track.h"
#include "editing/joining/joining.h"
#include "editing/selection/selection.h"
#include "editing/track/mirror_twin.h"
#include "editing/track/routes.h"
#include "geometry/polygons.h"
#include "support/plan.h"

#include <gmock/gmock.h>

#include <cmath>
#include <set>

namespace trassix {
namespace {

using testing::HasSubstr;

struct EndAt {
  Point at;
  double heading = 0;
  double height = 0;
};

std::vector<EndAt> endsAt(const PlacedPiece& piece) {
  std::vector<EndAt> ends;
  const PieceDef& definition = *definitionOf(piece);
  for (const WorldConnector& end : WorldConnectorsOf(piece, definition))
    ends.push_back({{end.x, end.y}, end.heading, endHeight(piece, definition, end.index)});
  return ends;
}

TEST(Mirroring, EveryArticleBecomesItsTwinOrIsRefusedByName) {
  const std::set<std::string> lonely{"5137", "8560", "59092", "59093", "59094"};
  for (const PieceDef& definition : wholeCatalogue()) {
    SCOPED_TRACE(definition.name);
    Plan plan = Plan().place(definition.article, {100, 50, 33});
    selectOnly(plan.layout, 1);
    PlacedPiece& piece = *plan.layout.editPiece(1);
    piece.z = 30;
    piece.grade = definition.kind == PieceKind::Turntable ? 0 : 2;
    const PlacedPiece before = piece;
    const MirrorLine line{{10, 20}, 90};
    const ChangeResult done = mirrorSelection(plan.layout, line);
    ASSERT_EQ(done.refusal.has_value(), lonely.contains(definition.article));
    if (done.refusal) {
      EXPECT_THAT(done.refusal->text, HasSubstr(definition.name));
      EXPECT_EQ(plan.layout.pieces()[0], before);
      continue;
    }
    const std::vector<EndAt> after = endsAt(plan.layout.pieces()[0]);
    for (const EndAt& end : endsAt(before))
      EXPECT_TRUE(std::ranges::any_of(after, [&end](const EndAt& now) {
        return std::hypot(20 - end.at.x - now.at.x, end.at.y - now.at.y) <= kTwinPlay &&
               headingDifference(180 - end.heading, now.heading) < 0.1 &&
               std::abs(end.height - now.height) < 0.005;
      }));
    mirrorSelection(plan.layout, line);
    EXPECT_EQ(definitionOf(plan.layout.pieces()[0])->kind, definition.kind);
  }
}

TEST(Mirroring, ASidingStaysJoinedAndLeavesOutWhatHasNoTwin) {
  Plan plan = Plan().place("24188").extend("24611").extend("24188").at(2, 2).extend("24224");
  plan.extend("24064").place("59092", {0, 900, 0});
  Layout& layout = plan.layout;
  Label label;
  label.x = 400, label.y = -80, label.id = layout.takeId();
  layout.edit().labels.push_back(label);
  layout.reselect([](const auto& record) { return record.id >= 2; });
  const PlanContent before = layout.content();
  const MirrorLine line = mirrorLine(layout, MirrorWay::AcrossTrack).value();
  EXPECT_TRUE(mirrorSelection(layout, line).refusal);
  EXPECT_EQ(layout.content(), before);
  EXPECT_TRUE(mirrorSelection(layout, line, true));
  EXPECT_EQ(layout.findPiece(2)->cat, "24612");
  EXPECT_EQ(openEnds(layout), 3 + 4);
  EXPECT_LT(largestPlay(layout).distance, 0.05);
  EXPECT_DOUBLE_EQ(layout.content().labels[0].y, 80);
  EXPECT_EQ(layout.pieces().back(), [&] {
    PlacedPiece left = before.pieces.back();
    left.sel = false;
    return left;
  }());
  layout.undo();
  EXPECT_EQ(layout.content(), before);

  layout.editPiece(2)->helix = 7;
  EXPECT_TRUE(mirrorSelection(layout, line, true).refusal);
  layout.editPiece(2)->helix = -1;
  EXPECT_TRUE(mirrorSelection(layout, {{2e6, 0}, 90}, true).refusal); // beyond the plan
}

double awayFrom(const std::vector<PlacedPiece>& track, Point at) {
  double nearest = 1e9;
  for (const PlacedPiece& piece : track)
    for (const Route& route : routesOf(*definitionOf(piece))) {
      const std::vector<RoutePoint> points = sampleRoute(route, 0.001);
      for (std::size_t i = 1; i < points.size() && route.to < 2; ++i)
        nearest =
            std::min(nearest, distanceToEdge(at, toWorld(poseOf(piece), points[i - 1].position),
                                             toWorld(poseOf(piece), points[i].position)));
    }
  return nearest;
}

TEST(ParallelTrack, LiesWithinAMillimetreAndNamesWhatDoesNot) {
  const auto oval = [](const char* straight, const char* curve, int ofHalf) {
    Plan plan = Plan().place(straight);
    for (int half = 0; half < 2; ++half)
      plan.extend(straight, 1 + half).extend(curve, half == 0 ? ofHalf : ofHalf - 1);
    plan.extend(curve);
    return plan.layout;
  };
  const struct {
    const char* name;
    Layout plan;
    double distance;
    std::size_t pieces;
    std::size_t gaps;
    int openEnds; ///< of the new track
    const char* words = "";
  } kRows[] = {
      {"outside of R1", oval("24188", "24130", 6), -77.5, 16, 0, 0},
      {"inside of R2", oval("24188", "24230", 6), 77.5, 16, 0, 0},
      {"inside of R1: no radius", oval("24188", "24130", 6), 77.5, 4, 6, 4, "360.0 mm"},
      {"outside of R3", oval("24188", "24330", 6), -77.5, 4, 6, 4, "13.2 mm off"},
      {"outside of R3 as R4 is", oval("24188", "24330", 6), -64.3, 16, 0, 0},
      {"K", oval("2200", "2221", 6), -64.6, 16, 0, 0},
      {"Z", oval("8500", "8520", 4), -25, 12, 0, 0},
      {"M", oval("5106", "5100", 6), -77.4, 16, 0, 0},
      {"gauge 1", oval("59058", "59035", 8), -156, 20, 0, 0},
      {"parts of a curve", Plan().place("24188").extend("24224").extend("24206").layout, -77.5, 2,
       0, 2},
      {"an S", Plan().place("24230").extendLeft("24130").layout, 77.5, 2, 0, 2},
      {"an S the other way", Plan().place("24230").extendLeft("24130").layout, -77.5, 1, 2, 2},
      {"uncoupler and adapter", Plan().place("24188").extend("24997").extend("24951").layout, 77.5,
       4, 0, 2},
      {"turnout", Plan().place("24188").extend("24611").extend("24188").layout, 77.5, 3, 0, 2},
      {"turnout to this side", Plan().place("24188").extend("24612").extend("24188").layout, 77.5,
       2, 3, 4, "24612"},
      {"buffer stop", Plan().place("24188").extend("24977").layout, 40, 1, 0, 2},
      {"its sum of straights", Plan().place("2206").extend("2200").layout, 64.6, 2, 0, 2},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.name);
    Layout layout = row.plan;
    selectAll(layout);
    const std::vector<PlacedPiece> source = layout.pieces();
    const ParallelResult result = layParallel(layout, row.distance);
    EXPECT_EQ(result.edit.placed.size(), row.pieces);
    EXPECT_EQ(result.gaps.size(), row.gaps);
    std::string words;
    for (const ParallelGap& gap : result.gaps)
      words += gapText(layout, gap) + "\n";
    EXPECT_THAT(words, HasSubstr(row.words));
    EXPECT_EQ(openEnds(layout) - openEnds(row.plan), row.openEnds);
    EXPECT_EQ(brokenRule(layout), "");
    for (const std::int32_t id : result.edit.placed)
      for (const EndAt& end : endsAt(*layout.findPiece(id)))
        EXPECT_NEAR(awayFrom(source, end.at), std::abs(row.distance), kParallelPlay);
    EXPECT_EQ(layout.undo(), !result.edit.placed.empty());
    EXPECT_EQ(layout.pieces(), source);
  }
}

TEST(ParallelTrack, ClimbsAsItsNeighbourAndRefusesWhatIsNoChain) {
  Plan plan = Plan().place("24188").extendLeft("24130", 2);
  Layout& layout = plan.layout;
  double height = 0;
  for (PlacedPiece& piece : layout.edit().pieces) { // two of three run the other way round
    const bool turned = piece.id > 1;
    const double rise = routeLength(routesOf(*definitionOf(piece))[0]) * std::sin(toRadians(2));
    piece.grade = 2;
    piece.rev = turned;
    piece.z = turned ? height + rise : height;
    height += rise;
  }
  selectAll(layout);
  const ParallelResult result = layParallel(layout, 77.5);
  ASSERT_EQ(result.edit.placed.size(), 3U);
  EXPECT_LT(largestPlay(layout).step, 0.001);
  EXPECT_NEAR(endsAt(*layout.findPiece(result.edit.placed[2]))[0].height, height, 1e-6);

  const struct {
    Layout plan;
    const char* words;
  } kRefused[] = {{Plan().layout, "Select"},
                  {Plan().place("24188").place("24188", {0, 300, 0}).layout, "not one chain"},
                  {Plan().place("24611").extend("24188").at(1, 2).extend("24188").layout, "24611"},
                  {Plan().place("24977").layout, "no track"}};
  for (const auto& row : kRefused) {
    Layout refused = row.plan;
    selectAll(refused);
    std::string problem;
    EXPECT_TRUE(parallelOffers(refused, problem).empty());
    EXPECT_THAT(problem, HasSubstr(row.words));
    EXPECT_EQ(layParallel(refused, 77.5).edit.refusal->text, problem);
    EXPECT_FALSE(refused.canUndo() && refused.pieces().size() != row.plan.pieces().size());
  }
}

TEST(Aligning, MovesBodiesToEdgesAndEvensGaps) {
  const auto shape = [](std::int32_t id, Box box) {
    Shape made;
    made.id = id;
    made.sel = true;
    made.points = {
        {box.minX, box.minY}, {box.maxX, box.minY}, {box.maxX, box.maxY}, {box.minX, box.maxY}};
    return made;
  };
  Layout start;
  start.edit().shapes = {shape(1, {0, 0, 10, 10}), shape(2, {100, 50, 140, 60})};
  start.edit().labels = {{3, "yard", 20, 100, true}};
  const struct {
    const char* name;
    ChangeResult (*edit)(Layout&);
    Point first, second, label; ///< top left corners
  } kRows[] = {
      {"left",
       [](Layout& l) { return alignSelection(l, AlignTo::Left); },
       {0, 0},
       {0, 50},
       {0, 100}},
      {"centre",
       [](Layout& l) { return alignSelection(l, AlignTo::Centre); },
       {65, 0},
       {50, 50},
       {70, 100}},
      {"right",
       [](Layout& l) { return alignSelection(l, AlignTo::Right); },
       {130, 0},
       {100, 50},
       {140, 100}},
      {"top", [](Layout& l) { return alignSelection(l, AlignTo::Top); }, {0, 0}, {100, 0}, {20, 0}},
      {"middle",
       [](Layout& l) { return alignSelection(l, AlignTo::Middle); },
       {0, 45},
       {100, 45},
       {20, 50}},
      {"bottom",
       [](Layout& l) { return alignSelection(l, AlignTo::Bottom); },
       {0, 90},
       {100, 90},
       {20, 100}},
      {"across",
       [](Layout& l) { return distributeSelection(l, Axis::Across); },
       {0, 0},
       {100, 50},
       {55, 100}},
      {"down",
       [](Layout& l) { return distributeSelection(l, Axis::Down); },
       {0, 0},
       {100, 50},
       {20, 100}},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.name);
    Layout plan = start;
    const bool changes = row.name != std::string_view("down");
    EXPECT_EQ(row.edit(plan).changed, changes); // those gaps are even already
    EXPECT_EQ(plan.content().shapes[0].points[0], row.first);
    EXPECT_EQ(plan.content().shapes[1].points[0], row.second);
    EXPECT_EQ((Point{plan.content().labels[0].x, plan.content().labels[0].y}), row.label);
    EXPECT_FALSE(row.edit(plan).changed); // in line already
  }
}

} // namespace
} // namespace trassix
