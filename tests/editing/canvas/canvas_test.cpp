#include "document/block.h"
#include "document/record_kinds.h"
#include "editing/canvas/canvas_script.h"
#include "editing/canvas/plan_theme.h"
#include "editing/canvas/recording_surface.h"
#include "editing/placing/placing.h"
#include "support/plan.h"
#include "support/print_records.h"

#include <gmock/gmock.h>

#include <cmath>

namespace trassix::test {
namespace {

using testing::ElementsAre;

TEST(CanvasView, WheelZoomsAboutThePointerWithinLimits) {
  struct Case {
    double zoom;
    int direction;
    double expected;
  };
  for (const Case& c : {Case{0.4, 1, 0.46}, Case{0.46, -1, 0.4}, Case{19.0, 1, 20.0},
                        Case{0.32, -1, 0.3}, Case{0.1, -1, 0.3}}) {
    CanvasScript script;
    script.canvas.view() = ViewTransform::ofScale(c.zoom, {40, 50});
    const Point world = script.canvas.view().toWorld({500, 300});
    script.wheel(world, c.direction);
    EXPECT_NEAR(script.canvas.view().zoom(), c.expected, 1e-9);
    EXPECT_NEAR(script.canvas.view().toScreen(world).x, 500, 1e-6);
    EXPECT_NEAR(script.canvas.view().toScreen(world).y, 300, 1e-6);
  }
}

TEST(CanvasView, ATouchpadZoomsInProportionAndTurnsByWholeNotches) {
  CanvasScript script;
  for (int i = 0; i < 8; ++i)
    script.wheel({300, 300}, 0.25);
  EXPECT_NEAR(script.canvas.view().zoom(), 0.4 * 1.15 * 1.15, 1e-9);
  script.wheel({300, 300}, -0.5);
  EXPECT_NEAR(script.canvas.view().zoom(), 0.4 * std::pow(1.15, 1.5), 1e-9);
  script.wheel({300, 300}, 3);
  EXPECT_NEAR(script.canvas.view().zoom(), 0.4 * std::pow(1.15, 2.5), 1e-9) << "a fast wheel";

  script.carry("24188", {600, 300});
  for (const double notches : {0.1, 0.1, 0.1, 0.1, 0.1, 0.1, 0.1, 0.1, 0.1, 0.1, // one step
                               0.7, -0.6, -0.4, // back by one: what was begun is forgotten
                               -0.9, 1.0})      // a whole notch counts as one
    script.wheel({600, 300}, notches);
  script.release({600, 300});
  EXPECT_EQ(script.pieces().at(0).heading, 30);
}

TEST(CanvasView, FitCentresTheContentWithItsMargin) {
  ViewTransform view;
  view.fit({0, 0, 2000, 500}, 1160, 960);
  EXPECT_NEAR(view.zoom(), 0.5, 1e-12);
  EXPECT_NEAR(view.toScreen({0, 0}).x, 80, 1e-9);
  EXPECT_NEAR(view.toScreen({2000, 250}).x, 1080, 1e-9);
  EXPECT_NEAR(view.toScreen({0, 250}).y, 480, 1e-9);
  view.fit({5, 5, 5, 5}, 1160, 960);
  EXPECT_EQ(view.zoom(), 20.0);
  view.fit({0, 0, 1e6, 1}, 1160, 960);
  EXPECT_EQ(view.zoom(), 0.05);
  CanvasScript empty;
  empty.canvas.fit();
  EXPECT_EQ(empty.canvas.view().zoom(), 20.0);

  view = ViewTransform::ofScale(1, {0, 0});
  view.reveal({40, 100, 960, 700}, 1000, 800);
  EXPECT_EQ(view.origin(), (Point{0, 0})) << "it is in view";
  view.reveal({900, -100, 1100, 1000}, 1000, 800);
  EXPECT_EQ(view.origin(), (Point{-140, 0})) << "too high for the window";
}

TEST(CanvasView, ASmallPlanIsPannedOnlyWhereNothingOfItWouldShow) {
  struct Case {
    std::vector<Point> straights; ///< 110 by 12 mm; the window is 1600 by 1000 px
    std::vector<Point> area;
    Point origin;
  };
  for (const Case& c : {Case{{}, {}, {60, 60}},
                        {{{1539, 0}}, {}, {60, 60}},
                        {{{5000, 0}}, {}, {-3550, 60}},
                        {{{-2000, -900}}, {}, {2040, 946}},
                        {{{-9000, -9000}, {300, 2000}}, {}, {60, -1046}},
                        {{{5000, 0}}, {{-9e3, -9e3}, {9e3, -9e3}, {0, 9e3}}, {60, 60}},
                        {{{5000, 9e3}}, {{-9e3, 3e3}, {9e3, 3e3}, {0, 9e3}}, {60, -2040}}}) {
    CanvasScript script;
    for (const Point& at : c.straights)
      addPiece(script.host.plan, cataloguePiece("8500"), {at.x, at.y, 0}, 1, 0);
    addPiece(script.host.plan, cataloguePiece("8500"), {300, 300, 0}, 2, 0);
    script.host.plan.ensureLevel(2);
    script.host.plan.editSettings().levels.back().visible = false;
    script.host.plan.edit().shapes.emplace_back().points = c.area;
    script.canvas.resetViewForSmall();
    EXPECT_EQ(script.canvas.view().zoom(), 1.0);
    EXPECT_NEAR(script.canvas.view().origin().x, c.origin.x, 1e-9)
        << testing::PrintToString(c.origin);
    EXPECT_NEAR(script.canvas.view().origin().y, c.origin.y, 1e-9)
        << testing::PrintToString(c.origin);
  }
}

TEST(CanvasView, CtrlDragPansBeyondThreePixelsOnly) {
  for (const auto& [pixels, pans] : {std::pair{3.0, false}, std::pair{4.0, true}}) {
    CanvasScript script;
    const Point origin = script.canvas.view().origin();
    const auto input = [&](double x) {
      const Point px{x, 200};
      return PointerInput{px, script.canvas.view().toWorld(px), true, false, false};
    };
    script.canvas.press(Canvas::Button::Left, input(100));
    script.canvas.move(input(100 + pixels));
    EXPECT_EQ(script.canvas.cursor(), pans ? CursorShape::Hand : CursorShape::Arrow);
    script.canvas.release(Canvas::Button::Left, input(100 + pixels));
    EXPECT_EQ(script.canvas.view().origin().x, origin.x + (pans ? pixels : 0));
  }
}

TEST(CanvasView, SpaceAndTheMiddleButtonPanAndEscGoesBack) {
  for (const bool middle : {false, true}) {
    CanvasScript script;
    script.canvas.setSpace(!middle);
    const auto button = middle ? Canvas::Button::Middle : Canvas::Button::Left;
    script.canvas.press(button, script.at({0, 0}));
    const PointerInput to{{260, 160}, {}, false, false, false};
    script.canvas.move(to);
    EXPECT_EQ(script.canvas.view().origin(), (Point{260, 160}));
    script.key(Key::Escape);
    EXPECT_EQ(script.canvas.view().origin(), (Point{60, 60}));
    script.canvas.release(button, to);
    EXPECT_FALSE(script.canvas.wantsCapture());
    script.canvas.press(button, script.at({0, 0}));
    script.canvas.move(to);
    script.canvas.release(button, {{280, 160}, {}, false, false, false}); // its last move was lost
    EXPECT_EQ(script.canvas.view().origin(), (Point{280, 160}));
  }
}

TEST(CanvasView, ThePointersPlaceFollowsEveryChangeOfTheView) {
  CanvasScript script;
  Canvas& canvas = script.canvas;
  canvas.fit();
  EXPECT_EQ(script.host.seen.pointer, Point{}) << "it has not come yet";
  const auto at = [&](double x) {
    return PointerInput{{x, 300}, canvas.view().toWorld({x, 300}), false, false, false};
  };
  canvas.move(at(400));
  for (const int change : {1, 2, 3, 4, 5, 6, 7}) {
    change == 1   ? canvas.zoomStep(0.8)
    : change == 2 ? canvas.resetView()
    : change == 3 ? canvas.resetViewForSmall()
    : change == 4 ? canvas.fit()
    : change == 5 ? canvas.press(Canvas::Button::Middle, at(400))
    : change == 6 ? canvas.move(at(500))
                  : canvas.cancel();
    EXPECT_NEAR(canvas.view().toScreen(script.host.seen.pointer).x, change < 6 ? 400 : 500, 1e-6)
        << change;
  }
}

TEST(CarryPiece, TurnsByWheelAndKeyAndJoinsWhereItSnaps) {
  CanvasScript script(Plan().place("24188").layout);
  script.carry("24130", {600, 300});
  script.wheel({600, 300}, 1);
  script.wheel({600, 300}, -1, kShift);
  EXPECT_TRUE(script.key(Key::R));
  script.release({600, 300});
  ASSERT_EQ(script.pieces().size(), 2u);
  EXPECT_EQ(script.pieces()[1].heading, 45);
  EXPECT_EQ(script.selected(), std::vector<std::int32_t>{2});

  script.carry("24188", {195, 12});
  EXPECT_THAT(script.host.seen.hint, testing::StartsWith("Let go to join"));
  script.release({195, 12});
  EXPECT_EQ(script.pieces()[2].joint(0), (Joint{1, 1}));
  EXPECT_EQ(script.pieces()[2].x, 188.3);
  EXPECT_EQ(script.host.seen.changes, 2);

  script.carry("24188", {380, 700});
  for (const Key key : {Key::Right, Key::Down, Key::Enter})
    EXPECT_TRUE(script.key(key));
  EXPECT_EQ(script.pieces().at(3).x, 390);
  EXPECT_EQ(script.pieces()[3].y, 710);
  EXPECT_FALSE(script.canvas.carrying());
}

TEST(CarryPiece, DroppedOnAJointItGoesIntoTheTrack) {
  CanvasScript script(Plan().place("24188").extend("24188", 3).layout);
  // Its near end lies on the joint between the third and the fourth piece.
  script.carry("24094", {564.9 + 4, 3});
  EXPECT_THAT(script.host.seen.hint, testing::StartsWith("Let go to insert"));
  EXPECT_THAT(script.host.seen.hint, testing::Not(testing::HasSubstr("grade")));
  script.host.plan.editPiece(3)->grade = 1; // with a step of 3.3 mm down from its end
  script.carry("24094", {564.9 + 4, 3});
  EXPECT_THAT(script.host.seen.hint, testing::HasSubstr("It gets a grade of -3.5 %"));
  script.host.plan.editPiece(3)->grade = 0;
  script.carry("24094", {564.9 + 4, 3});
  script.release({564.9 + 4, 3});
  ASSERT_EQ(script.pieces().size(), 5u);
  EXPECT_EQ(openEnds(script.host.plan), 2);
  EXPECT_TRUE(script.host.plan.undo());
  EXPECT_EQ(script.pieces().size(), 4u);
}

TEST(CarryPiece, NothingIsPlacedWhenItIsGivenUp) {
  for (const std::string_view how :
       {"Esc", "lost capture", "right click", "let go beside", "refused"}) {
    SCOPED_TRACE(how);
    CanvasScript script(Plan().place("24188").layout);
    const PlanContent before = script.content();
    script.carry("2200", {195, 12}); // K-Track at an end of C-Track
    if (how == "Esc")
      script.key(Key::Escape);
    else if (how == "lost capture")
      script.canvas.cancel();
    else if (how == "right click")
      script.canvas.press(Canvas::Button::Right, script.at({195, 12}));
    else
      script.release({how == "refused" ? 195.0 : -3000.0, 12});
    const std::size_t notices = how == "refused" ? 1 : 0;
    EXPECT_FALSE(script.canvas.carrying());
    EXPECT_FALSE(script.canvas.wantsCapture());
    EXPECT_EQ(script.content(), before);
    EXPECT_EQ(script.host.notices.size(), notices);
    script.host.setSnap(false); // then nothing is refused, and nothing joined
    script.carry("2200", {195, 12});
    script.release({195, 12});
    EXPECT_EQ(openEnds(script.host.plan), 4);
    EXPECT_EQ(script.host.notices.size(), notices);
  }
}

TEST(CarryPiece, PickedUpByDoubleClickItWaitsForAClickOfItsOwn) {
  CanvasScript script;
  script.canvas.carry(CarriedPiece{"8500"}, script.at({600, 350}), false);
  script.release({600, 350}); // ends the double-click
  EXPECT_TRUE(script.canvas.carrying());
  script.click({3000, 100});
  ASSERT_EQ(script.pieces().size(), 1u);
  EXPECT_EQ(script.pieces()[0].x, 3000);
  EXPECT_EQ(script.canvas.view(), ViewTransform::ofScale(1, {-1550, 60}))
      << "the first small piece starts the view over, in view";
  EXPECT_NEAR(script.host.seen.pointer.x, 1550 + 60 + 0.4 * 3000, 1e-6) << "below the pointer";
  script.canvas.doubleClick(script.at({3000, 100}));
  EXPECT_EQ(script.pieces().size(), 1u) << "the click that dropped it is not half a double-click";
}

TEST(CarryPiece, ASecondCarryEndsTheFirst) {
  CanvasScript script;
  script.carry("24188", {100, 100});
  script.key(Key::R);
  script.carry("24172", {100, 900});
  script.release({100, 900});
  EXPECT_EQ(script.pieces().at(0).heading, 30) << "taken up in place of one that was turned";
  script.host.plan.undo();
  script.carry("24188", {100, 100});
  script.canvas.carry(CarriedScenery{"stn.small"}, script.at({300, 300}), true);
  script.release({300, 300});
  EXPECT_TRUE(script.pieces().empty());
  ASSERT_EQ(script.content().scenery.size(), 1u);
  EXPECT_EQ(script.content().scenery[0].item, "stn.small");
}

TEST(CarryTools, SayWhatLandsOutOfSightOrOnAnotherLevel) {
  CanvasScript script(Plan().place("24188").layout);
  std::vector<Level>& levels = script.host.plan.editSettings().levels;
  levels.push_back({2, "Upper", true, 90, false, {}, {}});
  levels.push_back({3, "Cellar", false, 0, false, {}, {}});
  const auto landing = [&script](std::string_view carried, Point at) {
    const auto block = std::make_shared<Block>();
    block->content.pieces = script.pieces();
    block->content.scenery = {{9, "", 0, 0, 0, 1, 1, 3}};
    if (carried == "block")
      script.canvas.carry(block, script.at(at), false);
    else if (carried == "scenery")
      script.canvas.carry(CarriedScenery{"stn.small"}, script.at(at), false);
    else
      script.canvas.carry(CarriedPiece{std::string(carried)}, script.at(at), false);
    const std::string hint = script.host.seen.hint;
    const std::size_t from = std::min(hint.find("    Lands"), hint.find("    Wheel"));
    return hint.substr(from, hint.find("    Wheel") - from);
  };
  EXPECT_EQ(landing("24188", {600, 500}), "    Lands on Upper (not the active level)");
  EXPECT_EQ(landing("24188", {195, 12}), "") << "it snaps to the active level";
  EXPECT_EQ(landing("scenery", {195, 12}), "    Lands on Upper (not the active level)");
  EXPECT_EQ(landing("block", {0, 500}), "    Lands on Cellar (hidden)");
  script.host.plan.editPiece(1)->level = 2;
  EXPECT_EQ(landing("24188", {195, 12}), "    Lands on Upper (not the active level)");
  script.host.plan.editPiece(1)->level = 7; // to be added with the block
  EXPECT_EQ(landing("block", {0, 500}),
            "    Lands on Cellar (hidden), Level 7 (not the active level)");
  levels[0].visible = levels[1].visible = false;
  EXPECT_EQ(landing("24188", {600, 500}), "    Lands on Level 1 (hidden)");
  script.key(Key::Escape);
  script.setMode(ToolMode::Polygon);
  EXPECT_TRUE(script.canvas.hint().ends_with("    Lands on Level 1 (hidden)"));
}

TEST(SelectTool, SaysThatAMoveEndsOnAnotherLevel) {
  CanvasScript script(Plan().place("24188").place("24188", {0, 300, 0}).layout);
  script.host.plan.ensureLevel(2);
  script.host.plan.editPiece(1)->level = 2;
  script.dragTo({94, 300}, {290, 5});
  EXPECT_EQ(script.canvas.hint(),
            "Let go to join    Lands on Level 2 (not the active level)    Esc: as it was");
}

TEST(CanvasWheel, CtrlTurnsTheSelectionAndZoomsWithoutOne) {
  CanvasScript script(Plan().place("24188").layout);
  script.host.plan.clearSelection();
  script.wheel({94, 0}, 1, kCtrl);
  EXPECT_NEAR(script.canvas.view().zoom(), 0.46, 1e-12);
  script.click({94, 0});
  script.wheel({94, 0}, 1, kCtrl);
  script.wheel({94, 0}, -1, kCtrl | kShift);
  const PlacedPiece& piece = script.pieces()[0];
  EXPECT_NEAR(piece.heading, 10, 1e-9);
  script.setMode(ToolMode::Measure);
  script.wheel({94, 0}, 1, kCtrl | kShift);
  EXPECT_NEAR(script.pieces()[0].heading, 15, 1e-9) << "with any tool";
  const Point middle = toWorld(poseOf(piece), {94.15, 0});
  EXPECT_NEAR(middle.x, 94.15, 1e-9) << "about the middle of its ends";
  EXPECT_NEAR(middle.y, 0, 1e-9);
}

TEST(MeasureTool, LaysATapeBetweenTwoClicksAndCatchesTrackEnds) {
  CanvasScript script(Plan().place("24188").layout);
  script.setMode(ToolMode::Measure);
  script.click({5, -4});
  script.move({60, 0});
  script.key(Key::Escape);
  script.click({5, -4});
  script.click({190, 5});
  ASSERT_EQ(script.content().measurements.size(), 1u);
  EXPECT_EQ(script.content().measurements[0].from, (Point{0, 0}));
  EXPECT_EQ(script.content().measurements[0].to, (Point{188.3, 0}));
  EXPECT_TRUE(script.host.plan.undo());
  EXPECT_TRUE(script.content().measurements.empty());
  script.drag({300, 0}, {302, 0});
  script.key(Key::Escape);
  script.drag({300, 0}, {300, 90});
  EXPECT_EQ(script.content().measurements.at(0).to, (Point{300, 90})) << "by one drag";
  script.key(Key::Escape);
  EXPECT_EQ(script.host.workspace.switches().mode, ToolMode::Select);
}

TEST(PolygonTool, ShowsAndRefusesWhatCrossesAndClosesAtItsFirstCorner) {
  CanvasScript script;
  script.setMode(ToolMode::Polygon);
  for (const Point corner : {Point{0, 0}, {900, 0}, {900, 500}})
    script.click(corner);
  const auto red = [&script] {
    RecordingSurface surface;
    script.canvas.paintOverlay(surface);
    return surface.linesIn(screenTheme().openEnd);
  };
  const std::size_t before = red();
  script.doubleClick({500, -200}); // neither a corner nor an end
  EXPECT_EQ(red(), before + 1);
  EXPECT_THAT(script.host.seen.hint, testing::HasSubstr("cross itself here"));
  for (const Point corner : {Point{300, 500}, {300, 900}, {1900, 200}})
    script.click(corner);
  EXPECT_EQ(red(), before);
  EXPECT_TRUE(script.key(Key::Enter));
  EXPECT_EQ(script.host.notices.size(), 1u);
  EXPECT_TRUE(script.content().shapes.empty());
  script.key(Key::Backspace);
  script.click({3, -4});
  ASSERT_EQ(script.content().shapes.size(), 1u);
  EXPECT_EQ(script.content().shapes[0].points.size(), 5u);
  EXPECT_EQ(script.host.notices.size(), 1u);
}

TEST(PolygonTool, DrawsTakesBackClosesAndCancels) {
  for (const bool byEnter : {true, false}) {
    CanvasScript script;
    script.setMode(ToolMode::Polygon);
    script.click({0, 0});
    script.click({100, 0});
    EXPECT_TRUE(script.key(Key::Enter));
    EXPECT_EQ(script.content().shapes.size(), 0u) << "two points are no area";
    script.click({500, 500});
    EXPECT_TRUE(script.key(Key::Backspace));
    script.click({100, 80});
    if (byEnter) {
      script.click({0, 80});
      script.key(Key::Enter);
    } else {
      script.doubleClick({0, 80});
    }
    ASSERT_EQ(script.content().shapes.size(), 1u);
    EXPECT_THAT(script.content().shapes[0].points,
                ElementsAre(Point{0, 0}, Point{100, 0}, Point{100, 80}, Point{0, 80}));
    script.click({300, 300});
    EXPECT_TRUE(script.key(Key::Escape));
    script.click({0, 0});
    script.key(Key::Enter);
    EXPECT_EQ(script.content().shapes.size(), 1u);
  }
}

} // namespace
} // namespace trassix::test
