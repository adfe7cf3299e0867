#include "catalog/plain_track.h"
#include "catalog/track_catalog.h"
#include "editing/autofill.h"
#include "editing/autofill_messages.h"
#include "editing/selection.h"
#include "editing/straight_fill.h"
#include "support/plain_straight_fills.h"
#include "support/plan.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>

namespace trassix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr TrackSystem kSystems[] = {TrackSystem::CTrack, TrackSystem::TrixCTrack,
                                    TrackSystem::ZTrack, TrackSystem::KTrack,
                                    TrackSystem::MTrack, TrackSystem::Gauge1};

std::vector<double> lengthsOf(TrackSystem system) {
  std::vector<double> lengths;
  for (const PlainStraight& straight : plainStraights(system))
    lengths.push_back(straight.length);
  return lengths;
}

/// Two 24188 on one line with `gap` mm between them; the second is `offset` mm off the line.
Layout straightGap(double gap, double offset = 0) {
  Plan plan;
  plan.place("24188").place("24188", {900, 0, 0});
  plan.layout.editPiece(2)->x = 188.3 + gap; // by hand, or near ends would join
  plan.layout.editPiece(2)->y = offset;
  return plan.layout;
}

Autofill solve(const Layout& layout) {
  return solveAutofill(layout, 1, 2).value();
}

TEST(StraightFill, AnswersLikeThePlainEnumeration) {
  int compared = 0;
  int full = 0;
  for (const TrackSystem system : kSystems) {
    const std::vector<double> lengths = lengthsOf(system);
    for (const double length : lengths) // sums are counted in tenths
      EXPECT_NEAR(length * 10, std::round(length * 10), 1e-9) << systemName(system);
    for (double gap = 1.1; gap < 4000; gap += gap < 700 ? 1.1 : 23.1) {
      const PlainFills plain = plainStraightFills(lengths, gap, 5000);
      if (!plain.finished)
        continue;
      ASSERT_EQ(straightFills(lengths, gap), plain.runs) << systemName(system) << " " << gap;
      ++compared;
      full += plain.runs.size() == 16 ? 1 : 0;
    }
  }
  EXPECT_GT(compared, 2500);
  EXPECT_GT(full, 400);
  const double lone[] = {100.0};
  for (const double gap : {98.4, 98.5, 101.5, 101.6, 3198.5, 3201.6, 1e9, 0.0, -5.0})
    EXPECT_EQ(straightFills(lone, gap).size(), gap > 98.45 && gap < 3201.55 && gap != 101.6 ? 1 : 0)
        << gap;
}

TEST(Autofill, StraightGapsOfferFewPiecesFirst) {
  const Layout layout = straightGap(360);
  const Autofill result = solve(layout);
  ASSERT_TRUE(result.success());
  EXPECT_EQ(result.gap->kind, GapKind::Straight);
  EXPECT_NEAR(result.gap->distance, 360, 1e-9);
  EXPECT_THAT(result.candidates[0].articles, ElementsAre("24360"));
  EXPECT_THAT(result.candidates[1].articles, ElementsAre("24188", "24172"));
  EXPECT_EQ(solve(straightGap(1000)).candidates.size(), 12u);
  for (std::size_t i = 1; i < result.candidates.size(); ++i)
    EXPECT_GE(result.candidates[i].articles.size(), result.candidates[i - 1].articles.size());
  EXPECT_EQ(autofillPrompt(*result.gap), "Gap: 360.0 mm. Select fill:");
  EXPECT_EQ(autofillRow(GapKind::Straight, result.candidates[1]),
            "24188 - 188.3mm + 24172 - 171.7mm  (360.0 mm)");
}

TEST(Autofill, TheGapLiesBetweenTheNearestOpenEnds) {
  const struct {
    const char* what;
    double gap, offset;
    bool found;
    GapKind kind;
    bool solved;
  } cases[] = {
      {"ends that meet", 1.0, 0, false, GapKind::Straight, false},
      {"just apart", 1.1, 0, true, GapKind::Straight, false},
      {"5 mm off the line", 360, 5, true, GapKind::Straight, true},
      {"6 mm off the line", 360, 6, true, GapKind::Arc, false},
      {"shorter than any piece", 30, 0, true, GapKind::Straight, false},
  };
  for (const auto& c : cases) {
    const Autofill result = solve(straightGap(c.gap, c.offset));
    EXPECT_EQ(result.gap.has_value(), c.found) << c.what;
    if (result.gap) {
      EXPECT_EQ(result.gap->kind, c.kind) << c.what;
    }
    EXPECT_EQ(result.success(), c.solved) << c.what;
  }
  // The outer ends of a chain look away from each other: nothing can close that.
  Plan chain;
  chain.place("24188").extend("24172");
  EXPECT_TRUE(solve(chain.layout).gap.has_value());
  EXPECT_FALSE(solve(chain.layout).success());
  EXPECT_FALSE(solveAutofill(chain.layout, 1, 1));
  EXPECT_FALSE(solveAutofill(chain.layout, 1, 9));
}

TEST(Autofill, PlacesAndJoinsAsOneStep) {
  Layout layout = straightGap(360.4);
  layout.ensureLevel(3);
  layout.editPiece(1)->level = 3;
  layout.editPiece(1)->z = 44;
  layout.editPiece(2)->z = 44;
  const PlanContent before = layout.content();
  const Autofill result = solve(layout);
  const EditResult placed = placeFill(layout, *result.gap, result.candidates[1]);
  EXPECT_EQ(placed.placed.size(), 2u);
  EXPECT_EQ(openEnds(layout), 2);
  EXPECT_NEAR(largestPlay(layout).distance, 0.4, 1e-6);
  EXPECT_EQ(brokenRule(layout), "");
  EXPECT_EQ(layout.findPiece(placed.placed[1])->level, 3);
  EXPECT_EQ(layout.findPiece(placed.placed[1])->z, 44);
  EXPECT_EQ(selectedPieces(layout), std::vector<std::int32_t>{placed.placed[0]});
  EXPECT_FALSE(placeFill(layout, *result.gap, result.candidates[0]).changed()); // filled by now
  layout.undo();
  EXPECT_EQ(layout.content(), before);

  FillCandidate broken{{"24188", "24977"}, 0, false};
  EXPECT_EQ(placeFill(layout, *result.gap, broken).refusal,
            (Notice{"Autofill", "Internal error: a fill piece is missing or has too few "
                                "connectors. Autofill aborted."}));
  EXPECT_EQ(layout.content(), before);
  // Within the tolerance of the search, but too far off to be joined.
  Layout loose = straightGap(361.3);
  const Autofill fills = solve(loose);
  placeFill(loose, *fills.gap, fills.candidates[0]);
  EXPECT_EQ(openEnds(loose), 4);
}

/// Circles with a part of them missing, both ways round.
TEST(Autofill, ArcsCloseAnyCornerSemicircleOrRestOfACircle) {
  const TrackCatalog& catalog = TrackCatalog::instance();
  int closed = 0;
  for (std::int32_t i = 0; i < catalog.count(); ++i) {
    const PieceDef& curve = *catalog.at(i);
    const double whole = curve.kind == PieceKind::Curve ? 360 / curve.angle : 0;
    if (whole != std::round(whole) || whole > 64 || curve.bridge || hasOwnFunction(curve) ||
        whole < 3)
      continue;
    for (int present = 2; present < static_cast<int>(whole); ++present) {
      if ((whole - present) * curve.angle < 10)
        continue; // as good as straight
      for (const bool left : {false, true}) {
        Plan plan;
        plan.place(curve.article);
        if (left)
          plan.at(1, 0).extendLeft(curve.article, present - 1);
        else
          plan.extend(curve.article, present - 1);
        SCOPED_TRACE(curve.article + " present " + std::to_string(present));
        const auto result =
            solveAutofill(plan.layout, left ? plan.last() : 1, left ? 1 : plan.last());
        ASSERT_TRUE(result && result->success());
        const auto missing =
            static_cast<std::size_t>(std::lround(whole)) - static_cast<std::size_t>(present);
        const auto same = std::ranges::find_if(
            result->candidates, [&](const FillCandidate& c) { // of several with one shape
              return c.articles == std::vector(missing, curve.article);
            });
        ASSERT_NE(same, result->candidates.end());
        EXPECT_NEAR(same->total, static_cast<double>(missing) * curve.angle, 1e-9);
        placeFill(plan.layout, *result->gap, *same);
        EXPECT_EQ(openEnds(plan.layout), 0);
        EXPECT_LT(largestPlay(plan.layout).distance, 1e-6);
        ++closed;
      }
    }
  }
  EXPECT_GT(closed, 500);
}

TEST(Autofill, ACornerToTheLeftIsFilledByReversedCurves) {
  Plan plan;
  plan.place("24188").place("24188", {188.3 + 437.5, -437.5 - 188.3, 90});
  const Autofill result = solve(plan.layout);
  ASSERT_TRUE(result.success());
  EXPECT_THAT(result.candidates[0].articles, ElementsAre("24230", "24230", "24230"));
  EXPECT_TRUE(result.candidates[0].reversed);
  EXPECT_EQ(autofillRow(GapKind::Arc, result.candidates[0]),
            "3 x 24230 (30°) R2 - 437.5mm (17-1/4)  (90.0 deg)");
  placeFill(plan.layout, *result.gap, result.candidates[0]);
  EXPECT_EQ(openEnds(plan.layout), 2);
}

TEST(Autofill, SaysWhyNothingFits) {
  Plan mixed;
  mixed.place("24188").place("2200", {500, 0, 0});
  const auto notice = [](const Layout& layout) {
    return autofillNotice(layout, 1, 2, solve(layout)).value_or(Notice{});
  };
  EXPECT_EQ(notice(mixed.layout),
            (Notice{"Autofill - Mixed Track Systems",
                    "Autofill can only run on pieces of the same track series.\n\nSelected "
                    "pieces:\n  - 24188 (Marklin C-Track)\n  - 2200 (Marklin K-Track)"}));
  EXPECT_EQ(notice(straightGap(0.5)).title, "Autofill - No Solution");
  EXPECT_THAT(notice(straightGap(0.5)).text,
              testing::StartsWith("No combination of catalog track fills the gap between these "
                                  "two pieces.\n\nAutofill can bridge a straight gap, or"));
  EXPECT_EQ(notice(straightGap(30.25)).text,
            "Gap is 30.2mm. No combination of catalog straights fills it within tolerance.");
  EXPECT_EQ(notice(straightGap(360, 6)).text,
            "Gap is 360.0mm. No single arc of catalog curves fills it within "
            "tolerance.\\n\\nAutofill can bridge a gap with one arc (a corner, a semicircle, or "
            "the rest of a circle). Gaps needing an S-curve, or a mix of curves and straights, "
            "are not supported.");
  EXPECT_FALSE(autofillNotice(straightGap(360), 1, 2, solve(straightGap(360))));
}

} // namespace
} // namespace trassix
