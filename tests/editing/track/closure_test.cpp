// What closes on paper closes here: built by snapping alone, every end joined.
#include "catalog/plain_track.h"
#include "support/plan.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <tuple>

namespace trassix {
namespace {

void expectSound(const std::string& article, const Plan& plan, int open) {
  SCOPED_TRACE(article);
  const Play play = largestPlay(plan.layout);
  EXPECT_EQ(openEnds(plan.layout), open);
  EXPECT_EQ(brokenRule(plan.layout), "");
  EXPECT_LT(play.distance, 1e-6);
  EXPECT_LT(play.heading, 1e-6);
}

TEST(Closures, CirclesAndOvalsOfEveryCurveFamily) {
  int families = 0;
  for (const PieceDef& curve : wholeCatalogue()) {
    const double count = curve.kind == PieceKind::Curve ? 360 / curve.angle : 0.5;
    if (std::abs(count - std::round(count)) > 1e-9)
      continue;
    ++families;
    const int whole = static_cast<int>(std::lround(count));
    expectSound(curve.article, Plan().place(curve.article).extend(curve.article, whole - 1), 0);
    expectSound(curve.article,
                Plan().place(curve.article).at(1, 0).extendLeft(curve.article, whole - 1), 0);
    for (const PlainStraight& straight : plainStraights(curve.system)) {
      Plan oval = Plan().place(straight.piece->article).extend(curve.article, whole / 2);
      oval.extend(straight.piece->article).extend(curve.article, whole / 2);
      if (whole % 2 == 0)
        expectSound(curve.article, oval, 0);
    }
  }
  EXPECT_EQ(families, 62);
}

TEST(Closures, ParallelOvalsKeepTheSpacing) {
  const std::tuple<const char*, const char*, const char*, int, double> cases[] = {
      {"24188", "24130", "24230", 6, 77.5}, {"62188", "62130", "62230", 6, 77.5},
      {"2200", "2221", "2231", 6, 64.6},    {"5106", "5100", "5200", 6, 77.4},
      {"8500", "8520", "8530", 4, 25},      {"59058", "59073", "59076", 8, 156},
  };
  for (const auto& [straight, inner, outer, count, spacing] : cases) {
    Plan plan;
    for (const char* curve : {inner, outer}) {
      plan.place(straight, {0, curve == inner ? 0 : -spacing, 0}).extend(curve, count);
      plan.extend(straight).extend(curve, count);
    }
    expectSound(inner, plan, 0);
    const auto half = static_cast<std::size_t>(count);
    const PlacedPiece& near = plan.layout.pieces()[half + 1];
    const PlacedPiece& far = plan.layout.pieces()[half * 3 + 3];
    EXPECT_NEAR(far.y - near.y, spacing, 1e-6) << inner;
    EXPECT_NEAR(far.heading, near.heading, 1e-9) << inner;
  }
}

TEST(Closures, TurnoutAndCompensationCurveGiveTheParallelTrack) {
  // Spacing, and what the published figures leave in it and in the heading.
  const std::tuple<const char*, const char*, double, double, double> cases[] = {
      {"24612", "24224", 77.5, 0.03, 1e-9},  {"62612", "62224", 77.5, 0.03, 1e-9},
      {"24712", "24912", 49.5, 0.05, 0.01},  {"2263", "2232", 64.6, 0.05, 1e-9},
      {"22716", "2274", 57, 0.01, 1e-4},     {"5204", "5206", 76.69, 0.01, 1e-9},
      {"5119", "5100", 96.46, 0.01, 1e-9},   {"8563", "8591", 25, 0.1, 0.03},
      {"59083", "59078", 70.52, 0.01, 1e-9},
  };
  for (const auto& [turnout, curve, spacing, spacingPlay, headingPlay] : cases) {
    Plan plan = Plan().place(turnout).at(1, 2).extendLeft(curve);
    EXPECT_NEAR(plan.front().y, spacing, spacingPlay) << turnout;
    EXPECT_LE(headingDifference(plan.front().heading, 0), headingPlay) << turnout;
    expectSound(turnout, plan, 3);
  }
}

TEST(Closures, CrossingsAndSlipsFormALadder) {
  for (const PieceDef& piece : wholeCatalogue()) {
    if (piece.kind != PieceKind::Crossing && piece.kind != PieceKind::DoubleSlip)
      continue;
    // Three on the diagonal, each with a second one along its track: those meet one another. Where
    // the published lines do not cross, the three have met along their tracks already.
    Plan plan = Plan().place(piece.article);
    for (const std::int32_t step : {1, 2})
      plan.at(step, 3).extendBy(piece.article, 2, 3);
    const bool crosses = plan.at(1, 1).front().free;
    for (const std::int32_t row : {1, 2, 3})
      if (crosses)
        plan.at(row, 1).extendBy(piece.article, 0, 1);
    expectSound(piece.article, plan, crosses ? 6 * 4 - 2 * 7 : 3 * 4 - 2 * 4);
  }
}

} // namespace
} // namespace trassix
