#include "catalog/plain_track.h"
#include "editing/autofill/autofill.h"
#include "editing/autofill/autofill_messages.h"
#include "editing/autofill/straight_fill.h"
#include "editing/elevation/end_heights.h"
#include "editing/selection/selection.h"
#include "support/plan.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <numeric>
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

TEST(StraightFill, FindsAllRunsOfEachCountUntilThereAreSixteen) {
  constexpr std::size_t kLast = 12000; // all in tenths of a millimetre
  for (const TrackSystem system :
       {TrackSystem::CTrack, TrackSystem::TrixCTrack, TrackSystem::ZTrack, TrackSystem::KTrack,
        TrackSystem::MTrack, TrackSystem::Gauge1}) {
    std::vector<double> lengths;
    std::vector ways(33, std::vector<long>(kLast + 16)); // of so many pieces to make such a sum
    ways[0][0] = 1;
    for (const PlainStraight& straight : plainStraights(system)) {
      lengths.push_back(straight.length);
      const auto length = static_cast<std::size_t>(std::lround(straight.length * 10));
      EXPECT_NEAR(straight.length * 10, static_cast<double>(length), 1e-9);
      for (std::size_t count = 1; count < ways.size(); ++count)
        for (std::size_t sum = length; sum < ways[count].size(); ++sum)
          ways[count][sum] += ways[count - 1][sum - length];
    }
    for (std::size_t gap = 15; gap < kLast; gap += 13) {
      const double mm = static_cast<double>(gap) / 10;
      const auto runs = straightFills(lengths, mm);
      std::vector<long> found(ways.size());
      for (const std::vector<std::size_t>& run : runs) {
        double sum = 0;
        for (const std::size_t i : run)
          sum += lengths[i];
        EXPECT_TRUE(std::ranges::is_sorted(run) && std::abs(sum - mm) < 1.5001);
        ++found[run.size()];
      }
      const auto inOrder = [](const auto& a, const auto& b) {
        return std::pair(a.size(), a) < std::pair(b.size(), b);
      };
      EXPECT_EQ(std::ranges::adjacent_find(runs, std::not_fn(inOrder)), runs.end());
      long wanted = 16;
      for (std::size_t count = 1; count < ways.size(); ++count) {
        const auto from = ways[count].begin() + static_cast<std::ptrdiff_t>(gap) - 15;
        const long expected = std::min(wanted, std::accumulate(from, from + 31, 0L));
        ASSERT_EQ(found[count], expected) << systemName(system) << " " << gap << " " << count;
        wanted -= expected;
      }
    }
  }
  const double lone[] = {100.0}; // at most 32 of them
  for (const double gap : {98.5, 101.5, 3201.5, 98.4, 101.6, 3301.6, 1e9, 0.0, -5.0})
    EXPECT_EQ(straightFills(lone, gap).size(), gap == 98.5 || gap == 101.5 || gap == 3201.5) << gap;
  EXPECT_EQ(straightFills(lone, 101.5 + 1e-9).size(), 1U) << "as good as 101.5";
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
}

TEST(Autofill, JoinsTheFarEndWhereItComesNearEnough) {
  // Gap, height of the end, grades of start and end, what the line under the rows says.
  const std::tuple<double, double, double, double, const char*> cases[] = {
      {360, 0, 0, 0, "Joins both ends."},
      {360.9, 0, 0, 0, "Joins both ends, 0.9 mm apart."},
      {361.3, 0, 0, 0, "Leaves the far end open, 1.3 mm apart."},
      {360, 0.5, 0, 0, "Joins both ends, climbing 0.1 %."},
      {360.9, -18, 0, 2, "Joins both ends, falling 5.0 %, 0.9 mm apart."},
      {360, 18.1, 0, 2, "Leaves the far end open, 18.1 mm apart in height."},
      {361, -100, 0, 0, "Leaves the far end open, 1.0 mm apart, 100.0 mm apart in height."},
      {360, 188.3 / 2, 30, 0, "Joins both ends."}, // so high is the end where the fill starts
  };
  for (const auto& [gap, height, grade, endGrade, line] : cases) {
    Layout layout = straightGap(gap);
    layout.editPiece(1)->grade = grade;
    layout.editPiece(2)->grade = endGrade;
    layout.editPiece(2)->z = height;
    const Autofill fills = solve(layout);
    EXPECT_EQ(autofillRest(restOf(*fills.gap, fills.candidates[0])), line);
    placeFill(layout, *fills.gap, fills.candidates[0]);
    EXPECT_EQ(openEnds(layout), line[0] == 'J' ? 2 : 4) << line;
    EXPECT_NEAR(endHeight(layout, {3, 0}), grade == 0 ? 0 : height, 1e-9);
    EXPECT_LT(largestPlay(layout).step, 1e-9);
  }
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
  // The far piece is turned or moved a little.
  for (const auto& [count, off] :
       {std::pair{1, Pose{0, 0, 0.3}}, {2, {0, 0, -0.4}}, {5, {0, 0, 0.3}}, {5, {1.1, -1.1, 0}}}) {
    Pose pose = AttachPose(cataloguePiece("24188"), 0,
                           Plan().place("24188").extend("24330", count).front());
    pose = {pose.x + off.x, pose.y + off.y, pose.heading + off.heading};
    const Plan near = Plan().place("24188").place("24188", pose);
    EXPECT_THAT(solve(near.layout).candidates,
                testing::Contains(testing::Field(&FillCandidate::articles, testing::SizeIs(count))))
        << off.heading;
  }
  Plan corner = Plan().place("24188").place("24188", {188.3 + 437.5, -437.5 - 188.3, 90});
  EXPECT_EQ(autofillRow(GapKind::Arc, solve(corner.layout).candidates.at(0)),
            "3 x 24230 (30°) R2 - 437.5mm (17-1/4)  (90.0 deg)");
}

TEST(Autofill, GapsShapedLikeAnSGetRowsAfterAllOthers) {
  for (const auto& [curve, between] :
       {std::pair{"24115", "24188"}, {"24224", "24360"}, {"24107", "24094"}, {"24206", "24172"}})
    for (const bool left : {false, true}) {
      Plan whole = Plan().place("24188");
      (left ? whole.extendLeft(curve) : whole.extend(curve)).extend(between);
      (left ? whole.extend(curve) : whole.extendLeft(curve)).extend("24188");
      Layout layout = whole.layout;
      std::erase_if(layout.edit().pieces,
                    [](const PlacedPiece& piece) { return piece.id > 1 && piece.id < 5; });
      layout.editPiece(1)->joints = {{}, {}};
      layout.editPiece(5)->joints = {{}, {}};
      const auto fills = solveAutofill(layout, 1, 5);
      const std::vector<std::string> wanted{curve, between, curve};
      const auto row = std::ranges::find(fills->candidates, wanted, &FillCandidate::articles);
      ASSERT_NE(row, fills->candidates.end()) << curve << left;
      EXPECT_TRUE(std::ranges::is_sorted(fills->candidates, {}, &FillCandidate::isS));
      EXPECT_THAT(autofillRow(fills->gap->kind, *row), testing::HasSubstr(" + "));
      placeFill(layout, *fills->gap, *row);
      EXPECT_EQ(openEnds(layout), 2);
      EXPECT_LT(largestPlay(layout).distance, 1e-6);
    }
  // Off by more than the last end may be, nothing is offered.
  Plan apart = Plan().place("24188").place("24188", {700, 60, 3});
  EXPECT_THAT(solve(apart.layout).candidates,
              testing::Not(testing::Contains(testing::Property(&FillCandidate::isS, true))));
}

} // namespace
} // namespace trassix
