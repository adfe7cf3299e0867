#include "catalog/plain_track.h"
#include "editing/autofill.h"
#include "editing/autofill_messages.h"
#include "editing/selection.h"
#include "editing/straight_fill.h"
#include "support/plain_straight_fills.h"
#include "support/plan.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <tuple>

namespace trassix {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

/// Two 24188 on one line with `gap` mm between them; the second is `offset` mm off the line.
Layout straightGap(double gap, double offset = 0) {
  Plan plan = Plan().place("24188").place("24188", {900, 0, 0});
  plan.layout.editPiece(2)->x = 188.3 + gap; // by hand, or near ends would join
  plan.layout.editPiece(2)->y = offset;
  return plan.layout;
}

Autofill solve(const Layout& layout) {
  return solveAutofill(layout, 1, 2).value();
}

Notice notice(const Layout& layout) {
  return autofillNotice(layout, 1, 2, solve(layout)).value_or(Notice{});
}

TEST(StraightFill, AnswersLikeThePlainEnumeration) {
  int compared = 0;
  int full = 0;
  for (const TrackSystem system :
       {TrackSystem::CTrack, TrackSystem::TrixCTrack, TrackSystem::ZTrack, TrackSystem::KTrack,
        TrackSystem::MTrack, TrackSystem::Gauge1}) {
    std::vector<double> lengths;
    for (const PlainStraight& straight : plainStraights(system)) {
      lengths.push_back(straight.length);
      EXPECT_NEAR(straight.length * 10, std::round(straight.length * 10), 1e-9);
    }
    for (double gap = 1.1; gap < 10000; gap += gap < 700 ? 1.1 : 53.1) {
      const PlainFills plain = plainStraightFills(lengths, gap, 5000);
      if (!plain.finished)
        continue;
      ASSERT_EQ(straightFills(lengths, gap), plain.runs) << systemName(system) << " " << gap;
      ++compared;
      full += plain.runs.size() == 16 ? 1 : 0;
    }
  }
  EXPECT_TRUE(compared > 4000 && full > 1000) << compared << " " << full;
  const double lone[] = {100.0}; // at most 32 of them
  for (const double gap : {98.5, 101.5, 3201.5, 98.4, 101.6, 3301.6, 1e9, 0.0, -5.0})
    EXPECT_EQ(straightFills(lone, gap).size(), gap == 98.5 || gap == 101.5 || gap == 3201.5) << gap;
}

TEST(Autofill, TheGapLiesBetweenTheNearestOpenEnds) {
  // Gap, offset, the first article offered or the start of the notice, number offered.
  const std::tuple<double, double, const char*, std::size_t> cases[] = {
      {1.0, 0, "No combination of catalog track fills the gap between these two pieces.\n\n", 0},
      {1.1, 0, "Gap is 1.1mm. No combination of catalog straights fills it", 0},
      {360, 0, "24360", 8},
      {360, 5, "24360", 8},
      {360, 6, "Gap is 360.0mm. No single arc of catalog curves fills it", 0},
      {1000, 0, "24236", 12}, // there are 16
  };
  for (const auto& [gap, offset, first, offered] : cases) {
    const Layout layout = straightGap(gap, offset);
    const Autofill result = solve(layout);
    EXPECT_EQ(result.candidates.size(), offered) << first;
    EXPECT_THAT(result.success() ? result.candidates[0].articles[0] : notice(layout).text,
                StartsWith(first));
    EXPECT_TRUE(std::ranges::is_sorted(result.candidates, {}, [](const FillCandidate& candidate) {
      return candidate.articles.size();
    }));
  }
  EXPECT_THAT(notice(straightGap(360, 6)).text,
              testing::HasSubstr("within tolerance.\\n\\nAutofill can bridge a gap with one arc "));
  Plan mixed = Plan().place("24188").place("2200", {500, 0, 0});
  EXPECT_EQ(notice(mixed.layout),
            (Notice{"Autofill - Mixed Track Systems",
                    "Autofill can only run on pieces of the same track series.\n\nSelected "
                    "pieces:\n  - 24188 (Marklin C-Track)\n  - 2200 (Marklin K-Track)"}));
  // The outer ends of a chain look away from each other: nothing can close that.
  Plan chain = Plan().place("24188").extend("24172");
  EXPECT_FALSE(solve(chain.layout).success());
}

TEST(Autofill, PlacesAndJoinsAsOneStep) {
  Layout layout = straightGap(360.4);
  layout.editPiece(1)->z = layout.editPiece(2)->z = 44;
  const PlanContent before = layout.content();
  const Autofill result = solve(layout);
  EXPECT_THAT(result.candidates[1].articles, ElementsAre("24188", "24172"));
  EXPECT_EQ(autofillPrompt(*result.gap), "Gap: 360.4 mm. Select fill:");
  EXPECT_EQ(autofillRow(GapKind::Straight, result.candidates[1]),
            "24188 - 188.3mm + 24172 - 171.7mm  (360.0 mm)");
  placeFill(layout, *result.gap, result.candidates[1]);
  EXPECT_EQ(openEnds(layout), 2);
  EXPECT_NEAR(largestPlay(layout).distance, 0.4, 1e-6);
  EXPECT_EQ(layout.findPiece(4)->z, 44);
  EXPECT_EQ(selectedPieces(layout), std::vector<std::int32_t>{3});
  EXPECT_FALSE(placeFill(layout, *result.gap, result.candidates[0]).changed()); // filled by now
  layout.undo();
  EXPECT_EQ(placeFill(layout, *result.gap, {{"24188", "24977"}, 0, false}).refusal,
            (Notice{"Autofill", "Internal error: a fill piece is missing or has too few "
                                "connectors. Autofill aborted."}));
  EXPECT_EQ(layout.content(), before);
  Layout loose = straightGap(361.3); // found, but too far off to be joined
  const Autofill fills = solve(loose);
  placeFill(loose, *fills.gap, fills.candidates[0]);
  EXPECT_EQ(openEnds(loose), 4);
}

/// Circles with a part of them missing, both ways round.
TEST(Autofill, ArcsCloseAnyCornerSemicircleOrRestOfACircle) {
  int closed = 0;
  for (const PieceDef& curve : wholeCatalogue()) {
    const double whole = curve.kind == PieceKind::Curve ? 360 / curve.angle : 0;
    if (whole != std::round(whole) || whole > 64 || curve.bridge || hasOwnFunction(curve))
      continue;
    for (int present = 2; present < static_cast<int>(whole); ++present) {
      const auto missing = static_cast<std::size_t>(whole - present);
      for (const bool left : {false, true}) {
        SCOPED_TRACE(curve.article + " present " + std::to_string(present));
        Plan plan = Plan().place(curve.article).at(1, left ? 0 : 1);
        left ? plan.extendLeft(curve.article, present - 1)
             : plan.extend(curve.article, present - 1);
        const auto result = solveAutofill(plan.layout, 1, present);
        const auto same = std::ranges::find(result->candidates, std::vector(missing, curve.article),
                                            &FillCandidate::articles);
        if (static_cast<double>(missing) * curve.angle < 10)
          continue; // as good as straight
        ASSERT_NE(same, result->candidates.end());
        placeFill(plan.layout, *result->gap, *same);
        EXPECT_EQ(openEnds(plan.layout), 0);
        EXPECT_LT(largestPlay(plan.layout).distance, 1e-6);
        ++closed;
      }
    }
  }
  EXPECT_GT(closed, 500);
  Plan corner = Plan().place("24188").place("24188", {188.3 + 437.5, -437.5 - 188.3, 90});
  EXPECT_EQ(autofillRow(GapKind::Arc, solve(corner.layout).candidates.at(0)),
            "3 x 24230 (30°) R2 - 437.5mm (17-1/4)  (90.0 deg)");
}

} // namespace
} // namespace trassix
