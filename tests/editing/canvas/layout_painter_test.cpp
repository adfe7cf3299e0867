#include "catalog/track_catalog.h"
#include "editing/canvas/grid_steps.h"
#include "editing/canvas/layout_painter.h"
#include "editing/canvas/occupancy.h"
#include "editing/canvas/plan_theme.h"
#include "editing/canvas/recording_surface.h"
#include "editing/elevation/crossings.h"
#include "editing/helix/helix_edits.h"
#include "support/loose_records.h"
#include "support/plan.h"

#include <gmock/gmock.h>

#include <cmath>

namespace trassix::test {
namespace {

using testing::Contains;
using testing::Not;

RecordingSurface drawn(const Layout& layout, double zoom, Point origin = {400, 300},
                       PaintOptions options = {}) {
  RecordingSurface surface;
  options.grid = false;
  const ViewTransform view = ViewTransform::ofScale(zoom, origin);
  LayoutPainter(surface, {1200, 800}, view, options).paint(layout, PlanIndex(layout));
  return surface;
}

Layout turnoutWithCurve() {
  Plan plan;
  plan.place("24611").extend("24130");
  plan.layout.clearSelection();
  return plan.layout;
}

TEST(LayoutPainter, EveryRouteHasItsRailsFromNearAndOneLineFromAfar) {
  const Layout plan = turnoutWithCurve(); // two routes, with blades and a frog close by, and one
  struct Case {
    double zoom;
    std::size_t rails, farLines;
    bool sleepers;
  };
  for (const Case& c : {Case{0.05, 0, 3, false}, Case{0.4, 6, 0, false}, Case{0.9, 6, 0, true},
                        Case{1.5, 12, 0, true}, Case{3, 12, 0, true}}) {
    const RecordingSurface picture = drawn(plan, c.zoom, {300, 300});
    EXPECT_EQ(picture.linesIn(screenTheme().rail), c.rails) << c.zoom;
    EXPECT_EQ(picture.linesIn(screenTheme().farTrack), c.farLines) << c.zoom;
    EXPECT_EQ(picture.linesIn(screenTheme().sleeper) > 0, c.sleepers) << c.zoom;
  }
}

TEST(LayoutPainter, RailsLieAGaugeApartWhereTheTrackIs) {
  Plan plan = Plan().place("24188", {10, 20, 90});
  plan.layout.clearSelection();
  const RecordingSurface picture = drawn(plan.layout, 2);
  std::vector<double> xs;
  for (const auto& line : picture.lines) {
    if (line.stroke.color != screenTheme().rail)
      continue;
    xs.push_back(line.points.front().x);
    EXPECT_NEAR(line.points.front().y, 300 + 20 * 2, 1e-6);
    EXPECT_NEAR(line.points.back().y, 300 + (20 + 188.3) * 2, 1e-6);
  }
  ASSERT_EQ(xs.size(), 2u);
  EXPECT_NEAR(std::abs(xs[0] - xs[1]), 16.5 * 2, 1e-6);
  EXPECT_NEAR((xs[0] + xs[1]) / 2, 400 + 10 * 2, 1e-6);
}

TEST(LayoutPainter, SwitchesLevelsAndTheWindowDecideWhatIsDrawn) {
  const Layout plan = turnoutWithCurve();
  PaintOptions plain;
  plain.labels = false;
  plain.rails = false;
  const RecordingSurface bare = drawn(plan, 1.5, {300, 300}, plain);
  EXPECT_THAT(bare.texts, Not(Contains("24611")));
  EXPECT_TRUE(bare.dots.empty());
  EXPECT_EQ(bare.linesIn(screenTheme().rail), 3u) << "a centre line for each route";

  Layout hidden = plan;
  hidden.edit().tunnels = {{9, -1, -1, 1, 1, {1}}};
  EXPECT_EQ(drawn(hidden, 1.5).areas.size(), 1u) << "the hill";
  hidden.editSettings().levels[0].visible = false;
  EXPECT_EQ(drawn(hidden, 1.5).lines.size(), drawn(Layout(), 1.5).lines.size());
  EXPECT_TRUE(drawn(hidden, 1.5).areas.empty());
  EXPECT_EQ(drawn(plan, 1.5, {-4000, 0}).lines.size(), drawn(Layout(), 1.5).lines.size());

  PaintOptions paper;
  Layout higher = plan;
  higher.ensureLevel(2);
  higher.editSettings().activeLevel = 2;
  for (const bool alike : {false, true}) {
    paper.levelsAlike = alike;
    EXPECT_EQ(drawn(higher, 1.5, {300, 300}, paper).linesIn(screenTheme().rail) > 0, alike);
  }

  Layout tunnelled = plan;
  tunnelled.edit().tunnels.push_back({9, -1, -1, -1, -1, {2}});
  const RecordingSurface covered = drawn(tunnelled, 1.5, {300, 300});
  EXPECT_EQ(std::count_if(covered.lines.begin(), covered.lines.end(),
                          [](const auto& line) {
                            return line.stroke.style == Stroke::Style::Dashed &&
                                   line.stroke.color == screenTheme().rail;
                          }),
            2)
      << "both rails of the covered curve";
}

TEST(LayoutPainter, WhatLiesBeneathADeckLooksDifferentAtEveryScale) {
  Plan plan = Plan().place("24188", {0, 0, 0}).place("24188", {0, 100, 0});
  plan.layout.clearSelection();
  plan.layout.editSettings().levels = {
      {1, "", true, 0, false, {}, {}},
      {2, "", true, 100, false, {}, {{-50, -50}, {300, -50}, {300, 150}, {-50, 150}}}};
  plan.layout.editPiece(2)->z = 100;
  plan.layout.editPiece(2)->level = 2;
  for (const std::int32_t active : {1, 2})
    for (const double zoom : {0.1, 0.4, 1.0, 4.0}) {
      plan.layout.editSettings().activeLevel = active;
      std::vector<Stroke> looks[2]; // of the track below and above
      for (const auto& line : drawn(plan.layout, zoom, {400, 300}).lines)
        if (line.points.front().x >= 400 - 1e-6 && line.points.front().y < 300 + 150 * zoom)
          looks[line.points.front().y > 300 + 50 * zoom].push_back(line.stroke);
      ASSERT_FALSE(looks[0].empty() || looks[1].empty());
      for (const Stroke& stroke : looks[0])
        EXPECT_THAT(looks[1], Not(Contains(stroke))) << active << " at " << zoom;
    }
}

TEST(LayoutPainter, AHelixIsARingWithItsTurnsHeightsAndWayUp) {
  Layout layout;
  const HelixKit& kit = *findHelixKit("helix_3_5_r1");
  placeHelix(layout, {&kit, HelixHand::Left, 80, {0, 0, 0}, 25}, 1);
  PaintOptions grades;
  grades.grades = true;
  for (const PaintOptions& options : {PaintOptions{}, grades}) {
    const RecordingSurface ring = drawn(layout, 0.8, {600, 400}, options);
    EXPECT_EQ(ring.linesIn(screenTheme().rail), 2u * 12);
    for (const char* text : {"Helix R1, 3.5 turns", "bottom 25 mm", "top 305 mm", "up"})
      EXPECT_THAT(ring.texts, Contains(text));
    EXPECT_THAT(ring.texts, Not(Contains("24130")));
  }
  EXPECT_THAT(drawn(layout, 0.12).texts, Contains("3.5 turns"));
  EXPECT_TRUE(drawn(layout, 0.02).texts.size() <= 1); // the scale bar's
  layout.edit().helices[0].variant = "other";
  EXPECT_EQ(drawn(layout, 0.8, {600, 400}).linesIn(screenTheme().rail), 2u * 42);
}

TEST(LayoutPainter, CurvesAreAsRoundAsThePictureCanShow) {
  constexpr double kRadius = 437.5;
  Plan plan = Plan().place("24230", {0, 0, 0});
  plan.layout.clearSelection();
  const PieceDef& curve = *TrackCatalog::instance().find("24230");
  const double side = curve.angle < 0 ? -1 : 1;
  for (const double zoom : {0.4, 1.0, 4.0}) {
    const RecordingSurface picture = drawn(plan.layout, zoom);
    std::size_t arcs = 0;
    for (const auto& line : picture.lines) {
      const bool edge = line.stroke.color == screenTheme().bedEdge && line.points.size() > 2;
      if (!edge && line.stroke.color != screenTheme().rail)
        continue;
      ++arcs;
      const Point centre{400, 300 + side * kRadius * zoom};
      const auto radius = [&](Point p) { return std::hypot(p.x - centre.x, p.y - centre.y); };
      const double first = radius(line.points.front());
      for (std::size_t i = 0; i + 1 < line.points.size(); ++i) {
        const Point a = line.points[i];
        const Point b = line.points[i + 1];
        EXPECT_NEAR(radius(a), first, 0.01);
        EXPECT_NEAR(radius({(a.x + b.x) / 2, (a.y + b.y) / 2}), first, 0.2) << zoom;
      }
    }
    EXPECT_EQ(arcs, 4u) << zoom;
  }
}

TEST(LayoutPainter, ARampShowsWhichWayIsUp) {
  for (const double grade : {-3.0, 0.0, 3.0}) {
    Plan plan = Plan().place("74618");
    plan.layout.edit().pieces[0].grade = grade;
    std::size_t arrows = 0;
    for (const auto& line : drawn(plan.layout, 2).lines)
      if (line.stroke.color == screenTheme().rail && line.points.size() == 3) {
        ++arrows;
        EXPECT_GT((line.points[1].x - line.points[0].x) * grade, 0);
        EXPECT_GT((line.points[1].x - (400 + 2 * 90)) * grade, 0) << "in the upper half";
      }
    EXPECT_EQ(arrows, grade == 0 ? 0U : 2U);
  }
}

TEST(LayoutPainter, APieceOfAnUnknownArticleIsShownWithItsNumber) {
  Layout plan;
  plan.edit().pieces = {loosePiece(1, "99999")};
  EXPECT_THAT(drawn(plan, 1).texts, Contains("99999"));
}

TEST(LayoutPainter, ArticlesKeepOffTheTrackAndOffOneAnother) {
  Occupancy taken({400, 400});
  taken.mark({{50, 100}, {350, 100}}, 20);
  const SizePx box{40, 12};
  EXPECT_FALSE(taken.isFree({200, 100}, box, 0));
  EXPECT_FALSE(taken.isFree({200, 118}, box, 0)) << "half on the track";
  EXPECT_TRUE(taken.isFree({200, 134}, box, 0));
  EXPECT_FALSE(taken.isFree({200, 134}, box, 90)) << "upright it reaches up to the track";
  taken.take({200, 134}, box, 0);
  EXPECT_FALSE(taken.isFree({230, 134}, box, 0));
  EXPECT_TRUE(taken.isFree({260, 134}, box, 0));
}

TEST(LayoutPainter, GradesHeightsAndClearancesAreShown) {
  Layout layout = Plan().place("24188").extend("24188", 3).place("24188", {40, -94.15, 90}).layout;
  const double slopes[] = {0.025, 0.035, 0.045, 0.06};
  for (std::int32_t id = 1; id <= 4; ++id)
    layout.editPiece(id)->grade = toDegrees(std::asin(slopes[id - 1]));
  layout.editPiece(5)->z = 70;
  const std::vector<TrackCrossing> crossings = trackCrossings(layout);
  PaintOptions options;
  options.grades = true;
  options.crossings = crossings;
  const RecordingSurface shown = drawn(layout, 1, {400, 300}, options);
  for (const char* text : {"2.5 %", "3.5 %", "4.5 %", "6.0 %", "49", "4.7"})
    EXPECT_THAT(shown.texts, Contains(text));
  for (const Rgba& color : screenTheme().gradeBands)
    EXPECT_EQ(shown.linesIn(color), 2u); // the track's and the legend's
  EXPECT_THAT(drawn(layout, 0.5).texts, Not(Contains("2.5 %")));
}

TEST(GridSteps, LinesStayApartInSensibleUnits) {
  for (const std::int32_t units : {0, 1, 2}) {
    for (double zoom = 0.05; zoom < 20; zoom *= 1.3) {
      const GridSteps steps = gridSteps(zoom, units, 9);
      EXPECT_GE(steps.fine * zoom, 9) << units << " at " << zoom;
      EXPECT_LE(scaleLength(zoom, units, 160).mm * zoom, 160 + 1e-9);
      EXPECT_GE(scaleLength(zoom, units, 160).mm * zoom, 60);
    }
  }
  EXPECT_EQ(scaleLength(0.1, 0, 160).text, "1 m");
  EXPECT_EQ(scaleLength(1, 1, 160).text, "10 cm");
  EXPECT_EQ(scaleLength(1, 2, 160).text, "5 in");
}

} // namespace
} // namespace trassix::test
