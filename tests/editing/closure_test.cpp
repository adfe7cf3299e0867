// What closes on paper closes here: built by snapping alone, every end joined.
#include "catalog/plain_track.h"
#include "catalog/track_catalog.h"
#include "support/plan.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <map>
#include <string>

namespace trassix {
namespace {

constexpr TrackSystem kSystems[] = {TrackSystem::CTrack, TrackSystem::TrixCTrack,
                                    TrackSystem::ZTrack, TrackSystem::KTrack,
                                    TrackSystem::MTrack, TrackSystem::Gauge1};

/// Largest play met, printed for each system at the end.
class Closures : public testing::Test {
 protected:
  static void expectClosed(TrackSystem system, const Plan& plan, const std::string& what,
                           double tolerance) {
    EXPECT_EQ(openEnds(plan.layout), 0) << what;
    EXPECT_EQ(brokenRule(plan.layout), "") << what;
    note(system, plan, what, tolerance);
  }
  static void note(TrackSystem system, const Plan& plan, const std::string& what,
                   double tolerance) {
    const Play play = largestPlay(plan.layout);
    EXPECT_LE(play.distance, tolerance) << what;
    EXPECT_LE(play.heading, 1e-6) << what;
    auto& worst = worst_[system];
    if (play.distance >= worst.first)
      worst = {play.distance, what};
  }
  static void TearDownTestSuite() {
    for (const auto& [system, worst] : worst_)
      std::printf("largest residue, %s: %.2e mm (%s)\n", std::string(systemName(system)).c_str(),
                  worst.first, worst.second.c_str());
  }

 private:
  inline static std::map<TrackSystem, std::pair<double, std::string>> worst_;
};

TEST_F(Closures, CirclesAndOvalsOfEveryCurveFamily) {
  const TrackCatalog& catalog = TrackCatalog::instance();
  std::map<TrackSystem, int> circles;
  for (std::int32_t i = 0; i < catalog.count(); ++i) {
    const PieceDef& curve = *catalog.at(i);
    const double count = curve.kind == PieceKind::Curve ? 360 / curve.angle : 0.5;
    if (std::abs(count - std::round(count)) > 1e-9)
      continue;
    const int whole = static_cast<int>(std::lround(count));
    for (const bool left : {false, true}) {
      Plan circle;
      circle.place(curve.article);
      if (left)
        circle.at(circle.last(), 0).extendLeft(curve.article, whole - 1);
      else
        circle.extend(curve.article, whole - 1);
      expectClosed(curve.system, circle, "circle of " + curve.article, 1e-6);
    }
    ++circles[curve.system];
    if (whole % 2 != 0)
      continue;
    for (const PlainStraight& straight : plainStraights(curve.system)) {
      Plan oval;
      oval.place(straight.piece->article)
          .extend(curve.article, whole / 2)
          .extend(straight.piece->article)
          .extend(curve.article, whole / 2);
      expectClosed(curve.system, oval, "oval of " + curve.article, 1e-6);
    }
  }
  for (const TrackSystem system : kSystems)
    EXPECT_GE(circles[system], 3) << systemName(system);
}

TEST_F(Closures, ParallelOvalsKeepTheSpacing) {
  const struct {
    TrackSystem system;
    const char* straight;
    const char* inner;
    const char* outer;
    int half; // curves in half a circle
    double spacing;
  } cases[] = {
      {TrackSystem::CTrack, "24188", "24130", "24230", 6, 77.5},
      {TrackSystem::TrixCTrack, "62188", "62130", "62230", 6, 77.5},
      {TrackSystem::KTrack, "2200", "2221", "2231", 6, 64.6},
      {TrackSystem::MTrack, "5106", "5100", "5200", 6, 77.4},
      {TrackSystem::ZTrack, "8500", "8520", "8530", 4, 25},
      {TrackSystem::Gauge1, "59058", "59073", "59076", 8, 156},
  };
  for (const auto& c : cases) {
    Plan plan;
    for (const char* curve : {c.inner, c.outer}) {
      plan.place(c.straight, {0, curve == c.inner ? 0 : -c.spacing, 0})
          .extend(curve, c.half)
          .extend(c.straight)
          .extend(curve, c.half);
    }
    expectClosed(c.system, plan, "parallel ovals", 1e-6);
    // The far straights: parallel at the same spacing.
    const auto half = static_cast<std::size_t>(c.half);
    const PlacedPiece& near = plan.layout.pieces()[half + 1];
    const PlacedPiece& far = plan.layout.pieces()[3 * half + 3];
    EXPECT_NEAR(far.y - near.y, c.spacing, 1e-6) << c.inner;
    EXPECT_NEAR(far.heading, near.heading, 1e-9) << c.inner;
  }
}

TEST_F(Closures, TurnoutAndCompensationCurveGiveTheParallelTrack) {
  const struct {
    TrackSystem system;
    const char* turnout;
    const char* compensation;
    double spacing;
    double spacingPlay; // what the published figures leave
    double headingPlay;
  } cases[] = {
      {TrackSystem::CTrack, "24612", "24224", 77.5, 0.03, 1e-9},
      {TrackSystem::TrixCTrack, "62612", "62224", 77.5, 0.03, 1e-9},
      {TrackSystem::CTrack, "24712", "24912", 49.5, 0.05, 0.01},
      {TrackSystem::KTrack, "2263", "2232", 64.6, 0.05, 1e-9},
      {TrackSystem::KTrack, "22716", "2274", 57, 0.01, 1e-4},
      {TrackSystem::MTrack, "5204", "5206", 76.69, 0.01, 1e-9},
      {TrackSystem::MTrack, "5119", "5100", 96.46, 0.01, 1e-9},
      {TrackSystem::ZTrack, "8563", "8591", 25, 0.1, 0.03},
      {TrackSystem::Gauge1, "59083", "59078", 70.52, 0.01, 1e-9},
  };
  for (const auto& c : cases) {
    Plan plan;
    plan.place(c.turnout).at(1, 2).extendLeft(c.compensation);
    const WorldConnector end = plan.front();
    EXPECT_NEAR(end.y, c.spacing, c.spacingPlay) << c.turnout;
    EXPECT_LE(headingDifference(end.heading, 0), c.headingPlay) << c.turnout;
    note(c.system, plan, "compensation curve", 1e-6);
  }
}

TEST_F(Closures, CrossingsAndSlipsFormALadder) {
  const TrackCatalog& catalog = TrackCatalog::instance();
  int ladders = 0;
  for (std::int32_t i = 0; i < catalog.count(); ++i) {
    const PieceDef& definition = *catalog.at(i);
    if (definition.kind != PieceKind::Crossing && definition.kind != PieceKind::DoubleSlip)
      continue;
    // Two columns of three along the parallel tracks, each joined to the next on the diagonal.
    Plan plan;
    plan.place(definition.article);
    for (const std::int32_t step : {1, 2})
      plan.at(step, 3).extendBy(definition.article, 2, 3);
    // Where the published lines do not cross, the neighbours on the second line have already met.
    const bool crosses = plan.at(1, 1).front().free;
    for (const std::int32_t row : {1, 2, 3})
      if (crosses)
        plan.at(row, 1).extendBy(definition.article, 0, 1);
    EXPECT_EQ(openEnds(plan.layout), crosses ? 6 * 4 - 2 * 7 : 3 * 4 - 2 * 4) << definition.article;
    EXPECT_EQ(brokenRule(plan.layout), "");
    note(definition.system, plan, "ladder of " + definition.article, 1e-6);
    ++ladders;
  }
  EXPECT_EQ(ladders, 21);
}

} // namespace
} // namespace trassix
