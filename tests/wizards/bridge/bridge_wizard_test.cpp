#include "bridge_tasks.h"
#include "document/plan_content.h"
#include "editing/elevation/end_heights.h"
#include "support/plan.h"
#include "wizards/bridge/bridge_plan.h"

#include <gmock/gmock.h>

#include <tuple>

namespace trassix {
namespace {

using testing::HasSubstr;

/// A line of straights from far left to far right, and what it crosses at the origin.
Plan lineOver(const char* straight, int half, const char* crossed, double angle, double length) {
  Plan plan;
  plan.place(straight, {-half * length, 0, 0}).extend(straight, 2 * half - 1);
  const Point start = toWorld({0, 0, angle}, {-2.5 * length, 0});
  plan.place(crossed, {start.x, start.y, angle}).extend(crossed, 4);
  return plan;
}

BridgeTask liftOver(std::vector<std::int32_t> pieces, double limit = 0.04) {
  BridgeTask task;
  task.pieces = std::move(pieces);
  task.limit = limit;
  return task;
}

std::string problemOf(const BridgePlan& plan) {
  return plan.refusal ? plan.refusal->text : std::string();
}

TEST(BridgeWizard, ChoosesTheSpanByWhatItLeadsOver) {
  // System's straight, its length, angle, kind asked for: spans and frames that come of it.
  const std::tuple<const char*, double, double, SpanKind, const char*, std::size_t> cases[] = {
      {"24188", 188.3, 90, SpanKind::Auto, "74620", 0}, // the joint is right over the track
      {"24188", 188.3, 90, SpanKind::Deck, "", 0},
      {"24188", 188.3, 20, SpanKind::Auto, "", 1}, // 381 mm are more than an arch has
      {"62188", 188.3, 60, SpanKind::Arch, "74636T", 0},
      {"2200", 180, 80, SpanKind::Auto, "7262", 0},
      {"2200", 180, 20, SpanKind::Arch, "7263", 1},
      {"5106", 180, 70, SpanKind::Arch, "7263M", 0},
      {"8500", 110, 75, SpanKind::Auto, "89759", 0},
      {"59058", 300, 75, SpanKind::Auto, "", 0}};
  for (const auto& [straight, length, angle, kind, article, frames] : cases) {
    SCOPED_TRACE(std::string(straight) + " at " + std::to_string(angle));
    Plan plan = lineOver(straight, 24, straight, angle, length);
    BridgeTask task = liftOver({24, 25});
    task.span = kind;
    const BridgePlan bridge = planBridge(plan.layout, task);
    ASSERT_EQ(problemOf(bridge), "");
    std::string built;
    for (const BridgeSpan& span : bridge.spans)
      if (!span.article.empty())
        built = span.article;
    EXPECT_EQ(built, article);
    EXPECT_EQ(bridge.portals(), frames);
  }
}

TEST(BridgeWizard, RefusesWithReasonAndRemedy) {
  Plan curved;
  curved.place("24188", {-3000, 0, 0})
      .extend("24188", 14)
      .extendLeft("24230", 3)
      .extend("24188", 15);
  const auto middle = worldEnd(curved.layout.pieces()[15], 1);
  curved.place("24188", {middle.x, middle.y - 400, 90}).extend("24188", 3);

  Plan turnout;
  turnout.place("24188", {-3012.8, 0, 0}).extend("24188", 15).extend("24611").extend("24188", 15);
  turnout.place("24188", {94, -400, 90}).extend("24188", 3);

  Plan mixed;
  mixed.place("24188", {-94, 0, 0}).extend("24922").extend("2200");
  mixed.place("24188", {0, -400, 90}).extend("24188", 3);

  Plan ring; // too small for both ramps
  ring.place("24188", {0, 0, 0}).extend("24188", 3).extend("24230", 6).extend("24188", 4);
  ring.extend("24230", 6);
  ring.place("24188", {300, -300, 90}).extend("24188", 2);

  BridgeTask truss = liftOver({16});
  truss.span = SpanKind::Truss;
  BridgeTask low = liftOver({24, 25});
  low.deckHeight = 60;
  BridgeTask girder = liftOver({24, 25});
  girder.span = SpanKind::Girder;
  BridgeTask series = liftOver({24, 25}, 0.03);
  series.piers = PierHeights::SeriesOnly;
  BridgeTask end;
  end.way = BridgeWay::FromEnd;
  end.end = {24, 1};
  BridgeTask lies = liftOver({24, 25});
  lies.way = BridgeWay::AsItLies;
  Layout line = lineOver("24188", 24, "24188", 90, 188.3).layout;
  Layout raised = line;
  for (std::size_t i = 0; i < 48; ++i)
    raised.edit().pieces[i].z = 50;
  const std::tuple<const char*, Layout, BridgeTask, const char*> cases[] = {
      {"nothing chosen", line, liftOver({}), "Select the track"},
      {"crosses nothing", line, liftOver({3}), "crosses nothing"},
      {"curve", curved.layout, truss, "24230 is a curve"},
      {"turnout", turnout.layout, liftOver({17}), "no turnout can be"},
      {"mixed", mixed.layout, liftOver({1, 2, 3}), "different systems"},
      {"short", ring.layout, liftOver({2}), "mm are missing at 4.0 %"},
      {"too low", line, low, "has to lie at 80.0 mm"},
      {"no such span", line, girder, "no bridge of this kind"},
      {"series too steep", line, series, "Allow up to 5.0 %"},
      {"end is joined", line, end, "open end"},
      {"too low as it lies", raised, lies, "lift the track by 30.0 mm"}};
  for (const auto& [what, layout, task, text] : cases) {
    Layout plan = layout;
    const EditResult result = applyBridge(plan, task);
    ASSERT_TRUE(result.refusal) << what;
    EXPECT_THAT(result.refusal->text, HasSubstr(text)) << what;
    EXPECT_TRUE(plan.content() == layout.content()) << what;
  }
}

TEST(BridgeWizard, ReplacesCrossingsByStraightsWhereTheyFit) {
  // Crossing, the straight before and behind it: what becomes of the line that is chosen.
  const std::tuple<const char*, const char*, const char*> cases[] = {
      {"24640", "24188", ""},       {"24740", "24188", ""}, {"24649", "24188", "are missing"},
      {"2259", "2200", ""},         {"5215", "5106", ""},   {"8559", "8500", ""},
      {"24624", "24188", "turnout"}};
  for (const auto& [crossing, straight, problem] : cases) {
    SCOPED_TRACE(crossing);
    Plan plan;
    plan.place(straight).extend(straight, 29).extend(crossing).extend(straight, 30);
    plan.at(31, 2).extend(straight, 3).at(31, 3).extend(straight, 3);
    const int open = openEnds(plan.layout);
    Layout layout = plan.layout;
    const EditResult result = applyBridge(layout, liftOver({30, 31, 32}));
    EXPECT_THAT(result.refusal ? result.refusal->text : "", HasSubstr(problem));
    EXPECT_EQ(result.refusal.has_value(), *problem != '\0');
    if (result.refusal)
      continue;
    EXPECT_EQ(layout.findPiece(31), nullptr);
    EXPECT_EQ(openEnds(layout), open);
    EXPECT_LT(largestPlay(layout).step, 0.01);
    EXPECT_EQ(brokenRule(layout), "");
    layout.undo();
    EXPECT_TRUE(layout.content() == plan.layout.content());
  }
}

TEST(BridgeWizard, LiftsOneLoopOfAFigureEightOverTheOther) {
  // Both lines lead through the middle at right angles, between loops of three quarters of a
  // circle.
  Plan plan;
  plan.place("24360").extend("24360").extend("24130", 9).extend("24360", 2).extendLeft("24130", 9);
  BridgeCase eight;
  eight.layout = std::move(plan.layout);
  ASSERT_EQ(openEnds(eight.layout), 0);
  eight.task = liftOver({1, 2});
  const BridgePlan flat = planBridge(eight.layout, eight.task);
  EXPECT_THAT(problemOf(flat), HasSubstr("would do"));
  eight.task.limit = 0.05;
  for (const std::vector<std::int32_t>& chosen :
       {std::vector{1, 2}, std::vector{12, 13}, std::vector{2}}) {
    eight.task.pieces = chosen;
    const BridgePlan bridge = planBridge(eight.layout, eight.task);
    ASSERT_EQ(problemOf(bridge), "");
    EXPECT_EQ(bridge.crossed.size(), 1U);
    Layout built = eight.layout;
    const EditResult result = applyBridge(built, eight.task);
    EXPECT_EQ(faultIn(eight, built, bridge), "");
    built.undo();
    EXPECT_TRUE(built.content() == eight.layout.content());
  }
}

TEST(BridgeWizard, LiftsOverRoadsAndWater) {
  Plan plan;
  plan.place("24188", {-4707.5, 0, 0}).extend("24188", 49);
  SceneryItem road;
  road.id = 900;
  road.item = "road.main";
  road.heading = 90;
  plan.layout.edit().scenery.push_back(road);
  const BridgePlan bridge = planBridge(plan.layout, liftOver({25, 26}));
  ASSERT_EQ(problemOf(bridge), "");
  ASSERT_EQ(bridge.crossed.size(), 1U);
  EXPECT_EQ(bridge.crossed[0].kind, CrossedThing::Kind::Road);
  EXPECT_NEAR(bridge.deckHeight, 72, 1e-6); // the next pier

  plan.layout.edit().scenery.clear();
  plan.layout.edit().shapes.push_back({901,
                                       {{-80, -200}, {80, -200}, {80, 200}, {-80, 200}},
                                       {40, 90, 220},
                                       255,
                                       false,
                                       1,
                                       0,
                                       "",
                                       false});
  const BridgePlan over = planBridge(plan.layout, liftOver({25, 26}));
  ASSERT_EQ(problemOf(over), "");
  EXPECT_EQ(over.crossed[0].kind, CrossedThing::Kind::Water);
  EXPECT_NEAR(over.deckHeight, 30, 1e-6);

  for (PlacedPiece& piece : plan.layout.edit().pieces)
    piece.z = 120;
  EXPECT_GE(planBridge(plan.layout, liftOver({25, 26})).deckHeight, 120) << "never down";
}

TEST(BridgeWizard, FollowsThePierSeriesWhenThatIsChosen) {
  Plan plan = lineOver("2200", 30, "2200", 90, 180);
  BridgeTask task = liftOver({30, 31}, 0.05);
  task.piers = PierHeights::SeriesOnly;
  task.deckHeight = 105;
  const BridgePlan bridge = planBridge(plan.layout, task);
  ASSERT_EQ(problemOf(bridge), "");
  EXPECT_TRUE(bridge.seriesFits);
  for (const BridgePier& pier : bridge.piers)
    EXPECT_EQ(pier.stack.shim, 0) << pier.height();
  EXPECT_EQ(bridge.ramps[0].pieces, 16U);
  EXPECT_EQ(bridge.ramps[1].pieces, 16U);
}

TEST(BridgeWizard, TakesRampPiecesOnlyWhereTheyFit) {
  // Straight, its length: articles that come in place of it in both ramps.
  const std::tuple<const char*, double, const char*> cases[] = {
      {"2200", 180, "7268"}, {"24188", 188.3, ""}, {"8500", 110, "8976"}};
  for (const auto& [straight, length, ramp] : cases) {
    Plan plan = lineOver(straight, 30, straight, 90, length);
    BridgeTask task = liftOver({30, 31});
    task.rampPieces = true;
    const BridgePlan bridge = planBridge(plan.layout, task);
    ASSERT_EQ(problemOf(bridge), "");
    std::int32_t ramps = 0;
    for (const ArticleChange& change : bridge.articles)
      ramps += change.article == ramp ? change.count : 0;
    EXPECT_EQ(ramps > 10, *ramp != '\0');
    EXPECT_EQ(ramps % 2, 0);
  }
}

} // namespace
} // namespace trassix
