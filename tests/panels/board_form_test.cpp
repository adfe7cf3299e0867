#include "document/record_kinds.h"
#include "editing/canvas/canvas_script.h"
#include "geometry/polygons.h"
#include "panels/board_form.h"
#include "panels/shape_form.h"
#include "support/loose_records.h"
#include "support/print_records.h"

#include <gmock/gmock.h>

#include <cmath>

namespace trassix {
namespace {

using Choice = BoardForm::Choice;
using testing::ElementsAre;
using testing::HasSubstr;

double areaOf(const std::vector<Point>& outline) {
  double twice = 0;
  for (std::size_t i = 0; i < outline.size(); ++i) {
    const Point& a = outline[i];
    const Point& b = outline[(i + 1) % outline.size()];
    twice += a.x * b.y - b.x * a.y;
  }
  return twice / 2; // positive when clockwise on the screen
}

Layout planWith(const LastShape& shape, std::int32_t units = 0) {
  Layout layout;
  layout.ensureLevel();
  layout.editSettings().lastShape = shape;
  layout.editSettings().units = units;
  return layout;
}

TEST(Baseboard, kindsHaveTheirMeasures) {
  struct Case {
    Choice kind;
    std::size_t corners;
    double area;
    std::vector<const char*> dimensions; ///< beside the whole width and depth
  };
  const Case cases[] = {
      {Choice::Rectangle, 4, 2000 * 1000, {}},
      {Choice::L, 6, 980000, {"Width of the arm 300.0 mm", "Depth of the foot 400.0 mm"}},
      {Choice::U, 8, 1160000, {"Width of each arm 300.0 mm", "Depth of the middle 400.0 mm"}},
      {Choice::T, 8, 980000, {"Width of the stem 300.0 mm", "Depth of the bar 400.0 mm"}},
  };
  for (const Case& c : cases) {
    const LastShape shape{static_cast<std::int32_t>(c.kind), 2000, 1000, 300, 400};
    const std::vector<Point> outline = boardOutline(shape);
    EXPECT_EQ(outline.size(), c.corners);
    EXPECT_EQ(areaOf(outline), c.area);
    std::vector<std::string> texts;
    for (const BoardDimension& dimension : boardDimensions(shape, 0)) {
      texts.push_back(dimension.text);
      const double length =
          std::hypot(dimension.to.x - dimension.from.x, dimension.to.y - dimension.from.y);
      std::string number = std::to_string(static_cast<int>(length));
      number += '.';
      EXPECT_THAT(dimension.text, HasSubstr(number));
    }
    std::vector<const char*> named = c.dimensions;
    named.insert(named.end(), {"Depth 1000.0 mm", "Width 2000.0 mm"});
    EXPECT_THAT(texts, testing::UnorderedElementsAreArray(named));

    Layout layout = planWith(shape); // saved, placed, found again
    EXPECT_TRUE(BoardForm(layout).apply(layout));
    EXPECT_EQ(layout.settings().baseboard, outline);
    for (Point& p : layout.editSettings().baseboard)
      p = {p.x - 70.00004, p.y + 30};
    BoardForm again(layout);
    EXPECT_EQ(again.choice(), c.kind);
    EXPECT_FALSE(again.apply(layout));
    EXPECT_TRUE(layout.undo());
    EXPECT_FALSE(layout.undo());
  }
}

TEST(Baseboard, impossibleMeasuresAreRefusedWithTheReason) {
  struct Case {
    Choice kind;
    std::size_t measure;
    const char* text;
    const char* problem;
  };
  const Case cases[] = {
      {Choice::Rectangle, 0, "wide", "Width: A length is expected"},
      {Choice::Rectangle, 1, "", "Depth: A length is expected"},
      {Choice::Rectangle, 0, "-5", "Width: at least 1.969 in is needed."},
      {Choice::Rectangle, 1, "1.968", "Depth: at least"},
      {Choice::Rectangle, 1, "101 stone", "Depth: The unit can be"},
      {Choice::Rectangle, 0, "100001mm", "Width: at most 3937.008 in"},
      {Choice::L, 2, "2000 mm", "Width of the arm must be less than the whole width."},
      {Choice::L, 3, "1000 mm", "Depth of the foot must be less than the whole depth."},
      {Choice::U, 2, "1000 mm", "Two arms of this width leave no room between them."},
      {Choice::T, 2, "3000 mm", "Width of the stem must be less"},
      {Choice::T, 3, "0", "Depth of the bar: at least"},
      {Choice::L, 2, "1001 m", "Width of the arm: At most"},
      {Choice::Rectangle, 2, "0", ""}, // a rectangle has no arm
      {Choice::None, 0, "wide", ""},
      {Choice::Free, 0, "", "Draw the outline"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.text);
    Layout layout = planWith({1, 2000, 1000, 300, 400}, 2);
    BoardForm form(layout);
    form.choose(c.kind);
    form.enter(c.measure, c.text);
    EXPECT_THAT(form.problem(), testing::StartsWith(c.problem));
    EXPECT_EQ(form.problem().empty(), *c.problem == '\0');
    if (*c.problem != '\0') {
      EXPECT_FALSE(form.apply(layout));
      EXPECT_TRUE(layout.settings().baseboard.empty());
      EXPECT_TRUE(form.outline().empty());
    }
  }
  for (const LastShape& shape : {LastShape{}, {7, 2000, 1000, 300, 400}, {1, 2000, 1000, 0, 0}}) {
    Layout layout = planWith(shape); // nothing good to begin with
    for (const Choice kind : {Choice::Rectangle, Choice::L, Choice::U, Choice::T}) {
      BoardForm form(layout);
      form.choose(kind);
      EXPECT_EQ(form.problem(), "");
    }
  }
}

TEST(Baseboard, goesWhereTheOldOneWasOrUnderTheTrack) {
  Layout layout = planWith({0, 400, 200, 0, 0});
  layout.edit().shapes.push_back(test::shapeOf(1, {{1000, 1000}, {1100, 1000}, {1100, 1100}}));
  EXPECT_EQ(BoardForm(layout).outline()[0], (Point{850, 950}));
  layout.editSettings().baseboard = {{7, 50}, {30, 9}, {40, 80}};
  BoardForm form(layout);
  EXPECT_EQ(form.choice(), Choice::Free); // OK alone does not replace it
  EXPECT_FALSE(form.apply(layout));
  form.choose(Choice::Rectangle);
  EXPECT_EQ(form.outline()[0], (Point{7, 9}));
  form.choose(Choice::None);
  EXPECT_TRUE(form.apply(layout));
  EXPECT_TRUE(layout.settings().baseboard.empty());
  EXPECT_EQ(layout.settings().lastShape.w, 400);
  layout.edit().shapes = {test::shapeOf(1, {{1e6, 0}, {1e6, 9}, {999'999, 9}})};
  EXPECT_THAT(BoardForm(layout).problem(), HasSubstr("beyond the plan"));
}

TEST(Baseboard, aShapeOrADrawnPolygonBecomesIt) {
  test::CanvasScript script;
  Layout& layout = script.host.plan;
  script.host.workspace.setToolMode(ToolMode::Polygon);
  script.canvas.modeChanged();
  for (const Point corner : {Point{0, 0}, {500, 0}, {500, 300}})
    script.click(corner);
  script.key(Key::Enter);
  ASSERT_EQ(layout.content().shapes.size(), 1u);
  const std::vector<Point> drawn = layout.content().shapes[0].points;
  BoardForm form(layout);
  form.choose(Choice::Free);
  form.takeShape();
  EXPECT_EQ(form.outline(), drawn);
  EXPECT_TRUE(form.apply(layout));
  EXPECT_EQ(layout.settings().baseboard, drawn);
  EXPECT_TRUE(layout.content().shapes.empty());
  layout.undo();
  EXPECT_EQ(layout.content().shapes.size(), 1u);
  layout.undo();

  script.host.workspace.setToolMode(ToolMode::Polygon, {PolygonUse::Kind::Baseboard, -1});
  for (const Point corner : {Point{0, 0}, {900, 0}, {900, 300}})
    script.click(corner);
  EXPECT_THAT(script.host.seen.hint, HasSubstr("Baseboard")) << script.canvas.hint();
  script.key(Key::Enter);
  EXPECT_EQ(layout.settings().baseboard[1].x, 900);
  EXPECT_TRUE(layout.content().shapes.empty());
  EXPECT_EQ(script.host.workspace.switches().mode, ToolMode::Select);
}

TEST(ShapeForms, showWithoutChanging) {
  Layout layout = planWith({}, 2);
  for (int opacity = 0; opacity < 256; ++opacity) {
    Shape shape = test::shapeOf(1, {}, 9, 1.23456); // on a lost level
    shape.a = static_cast<std::uint8_t>(opacity);
    ShapeForm form(layout, shape);
    form.setOpacity(form.opacityPercent());
    form.enterHeight(form.height().text());
    form.setLevel(form.level());
    EXPECT_EQ(form.shape, shape);
  }
}

TEST(ShapeForms, aRectangleIsExactAndSelected) {
  Layout layout = planWith({});
  layout.ensureLevel(2);
  layout.editSettings().levels[0].visible = false; // the active one
  RectangleForm form(layout, {100.4, 200});
  for (const char* bad : {"", "0", "0.9", "100000.1", "-3", "nan"}) {
    form.enterWidth(bad);
    EXPECT_FALSE(form.place(layout)) << bad;
  }
  EXPECT_NE(RectangleForm(layout, {0, 999'900}).problem(), ""); // beyond the plan
  EXPECT_THAT(form.problem(), testing::StartsWith("Width: "));
  form.enterWidth("10 in");
  form.enterDepth("100");
  EXPECT_TRUE(form.place(layout));
  const Shape& placed = layout.content().shapes.at(0);
  EXPECT_THAT(placed.points,
              ElementsAre(Point{-27, 150}, Point{227, 150}, Point{227, 250}, Point{-27, 250}));
  EXPECT_TRUE(placed.sel);
  EXPECT_EQ(placed.level, 2);
  EXPECT_TRUE(layout.undo());
  EXPECT_FALSE(layout.canUndo());
}

TEST(Baseboard, isTurnedOverAndRoundAndKnownAgain) {
  const LastShape shape{static_cast<std::int32_t>(Choice::L), 2000, 1000, 300, 400};
  struct Case {
    std::vector<void (BoardForm::*)()> clicks;
    Point arm; ///< a place in it
  };
  const auto mirror = &BoardForm::mirror;
  const auto turn = &BoardForm::turn;
  const Case cases[] = {{{}, {100, 100}},
                        {{mirror}, {1900, 100}},
                        {{turn}, {900, 100}},
                        {{turn, mirror}, {100, 100}},
                        {{turn, turn, mirror}, {100, 900}},
                        {{mirror, turn}, {900, 1900}}};
  for (const Case& c : cases) {
    Layout layout = planWith(shape);
    BoardForm form(layout);
    form.choose(Choice::L);
    for (const auto click : c.clicks)
      (form.*click)();
    const std::vector<Point> outline = form.drawnOutline();
    EXPECT_TRUE(inside(outline, c.arm));
    EXPECT_NEAR(std::abs(areaOf(outline)), 980000, 1e-6);
    for (const BoardDimension& dimension : form.dimensions())
      EXPECT_TRUE(nearOutline(outline, dimension.from, 0.01) &&
                  nearOutline(outline, dimension.to, 0.01) &&
                  !inside(outline, {dimension.from.x + dimension.outward.x * 5,
                                    dimension.from.y + dimension.outward.y * 5}));
    EXPECT_TRUE(form.apply(layout));
    const BoardForm again(layout);
    EXPECT_EQ(again.choice(), Choice::L);
    EXPECT_EQ(again.drawnOutline(), outline);
    EXPECT_FALSE(again.apply(layout));
  }

  Layout layout = planWith({});
  layout.editSettings().baseboard = {{10, 20}, {110, 20}, {110, 70}};
  BoardForm form(layout);
  form.mirror();
  EXPECT_THAT(form.outline(), ElementsAre(Point{110, 20}, Point{10, 20}, Point{10, 70}));
  form.turn();
  EXPECT_THAT(form.outline(), ElementsAre(Point{60, 120}, Point{60, 20}, Point{10, 20}));
}

} // namespace
} // namespace trassix
