#include "document/block.h"
#include "document/record_kinds.h"
#include "editing/canvas/canvas_script.h"
#include "editing/canvas/plan_theme.h"
#include "editing/canvas/recording_surface.h"
#include "editing/canvas/selection_commands.h"
#include "editing/helix/helix_edits.h"
#include "editing/placing/placing.h"
#include "editing/scenery/annotations.h"
#include "editing/selection/finding.h"
#include "editing/selection/property_edits.h"
#include "host/plan_preview.h"
#include "support/plan.h"
#include "support/print_records.h"

#include <gmock/gmock.h>

#include <functional>

namespace trassix::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

/// Three joined straights along x from the origin, ids 1 to 3, ends at 188.3 and 376.6.
Layout row() {
  Plan plan = Plan().place("24188").extend("24188", 2);
  plan.layout.clearSelection();
  Layout fresh; // without the history of its building
  fresh.edit() = plan.layout.content();
  fresh.setNextPieceId(plan.layout.nextPieceId());
  return fresh;
}

constexpr Point kOnFirst{90, 5};
constexpr Point kOnSecond{280, -5};
constexpr Point kOnThird{470, 0};

TEST(SelectTool, ClicksSelectToggleAndClear) {
  CanvasScript script(row());
  script.click(kOnSecond);
  EXPECT_THAT(script.selected(), ElementsAre(2));
  script.click(kOnThird, kCtrl);
  EXPECT_THAT(script.selected(), ElementsAre(2, 3));
  script.click(kOnSecond, kCtrl);
  EXPECT_THAT(script.selected(), ElementsAre(3));
  script.click({90, 400});
  EXPECT_THAT(script.selected(), IsEmpty());
  EXPECT_EQ(script.host.seen.changes, 0) << "selecting is no change of the document";
}

TEST(SelectTool, RepeatedClicksGoThroughTheStack) {
  Plan plan = Plan().place("24188").place("24188", {0, 3, 0}).place("24188", {0, 6, 0});
  CanvasScript script(plan.layout);
  script.host.plan.clearSelection();
  for (const std::int32_t expected : {3, 2, 1, 3}) {
    script.click({90, 3});
    EXPECT_THAT(script.selected(), ElementsAre(expected));
  }
}

TEST(SelectTool, RubberBandEnclosesToTheRightAndTouchesToTheLeft) {
  struct Case {
    Point from, to;
    unsigned mods;
    std::vector<std::int32_t> selected;
  };
  for (const Case& c :
       {Case{{-30, -60}, {300, 60}, kNone, {1}}, Case{{300, 60}, {-30, -60}, kNone, {1, 2}},
        Case{{-30, -60}, {600, 60}, kNone, {1, 2, 3}}, Case{{160, 60}, {100, 30}, kNone, {}},
        Case{{700, 60}, {560, -60}, kShift, {1, 3}}}) {
    CanvasScript script(row());
    if (c.mods & kShift)
      selectOnly(script.host.plan, 1);
    script.drag(c.from, c.to, c.mods);
    EXPECT_EQ(script.selected(), c.selected) << c.from.x << " to " << c.to.x;
  }
}

TEST(SelectTool, MovingOpensTheJointAndBringingItBackJoinsAgain) {
  CanvasScript script(row());
  const PlanContent before = script.content();
  script.dragTo(kOnThird, {600, 200});
  script.canvas.press(Canvas::Button::Middle, script.at({600, 200}));
  script.canvas.release(Canvas::Button::Middle, script.at({600, 200}));
  script.move({700, 300});
  script.release({700, 300});
  EXPECT_TRUE(script.pieces()[1].joint(1).open()) << "another button does not disturb";
  EXPECT_NEAR(script.pieces()[2].y, 300, 1e-6);
  EXPECT_EQ(script.host.seen.changes, 1);

  // Let go 20 mm beside its old place it snaps home.
  script.drag({700, 300}, {480, 15});
  EXPECT_EQ(script.pieces()[1].joint(1), (Joint{3, 0}));
  EXPECT_NEAR(script.pieces()[2].x, 376.6, 1e-9);
  EXPECT_NEAR(script.pieces()[2].y, 0, 1e-9);

  script.host.plan.undo();
  script.host.plan.undo();
  EXPECT_EQ(script.content().pieces[1], before.pieces[1]) << "each drag is one step";
  EXPECT_FALSE(script.host.plan.canUndo());
}

TEST(SelectTool, EscapeInADragRestoresEverything) {
  for (const unsigned mods : {kNone, kAlt}) {
    CanvasScript script(row());
    script.click(kOnThird);
    const PlanContent before = script.content();
    script.dragTo(kOnThird, {500, 200}, mods);
    EXPECT_TRUE(script.key(Key::Escape));
    script.release({500, 200}, mods);
    EXPECT_EQ(script.content(), before);
    EXPECT_FALSE(script.host.plan.canUndo());
    EXPECT_FALSE(script.canvas.wantsCapture());
  }
}

TEST(SelectTool, AltDragTurnsAboutTheOneJoint) {
  CanvasScript script(row());
  script.click(kOnThird);
  // From straight ahead of the joint at x = 376.6 to square below it: a quarter turn to the right.
  script.drag({476.6, 0}, {376.6, 100}, kAlt);
  const PlacedPiece& turned = script.pieces()[2];
  EXPECT_NEAR(turned.heading, 90, 1e-6);
  EXPECT_NEAR(turned.x, 376.6, 1e-6);
  EXPECT_NEAR(turned.y, 0, 1e-6);
}

TEST(SelectTool, NudgesAreOneUndoStep) {
  CanvasScript script(row());
  script.click(kOnThird);
  for (int i = 0; i < 3; ++i)
    EXPECT_TRUE(script.key(Key::Down));
  EXPECT_TRUE(script.key(Key::Right, true));
  EXPECT_NEAR(script.pieces()[2].y, 30, 1e-9);
  EXPECT_NEAR(script.pieces()[2].x, 377.6, 1e-9);
  EXPECT_TRUE(script.host.plan.undo());
  EXPECT_FALSE(script.host.plan.canUndo());
}

TEST(SelectTool, GradedNeighboursAreAskedForAndNoLeavesThemJoined) {
  Layout plan = row();
  plan.edit().pieces[1].grade = 1.5;
  void (*const moves[])(CanvasScript&) = {
      [](CanvasScript& s) {
        s.drag(kOnThird, {700, 300});
      },
      [](CanvasScript& s) {
        s.drag({476.6, 0}, {376.6, 100}, kAlt);
      },
      [](CanvasScript& s) { s.key(Key::Down); },
      [](CanvasScript& s) { s.wheel(kOnThird, -1, kCtrl); },
      [](CanvasScript& s) { s.takeFromMenu(kOnThird, "Turn Left"); },
  };
  for (const auto& move : moves) {
    for (const bool yes : {false, true}) {
      CanvasScript script(plan);
      script.click(kOnThird);
      script.host.answers = {yes};
      move(script);
      EXPECT_EQ(script.host.questions.size(), 1u);
      EXPECT_EQ(script.pieces()[2].joint(0).open(), yes);
      EXPECT_EQ(script.host.seen.changes, yes ? 1 : 0);
    }
  }
}

TEST(SelectTool, HelixTrackIsLockedAgainstMovingAndTurning) {
  CanvasScript script(row());
  script.host.plan.edit().pieces[2].helix = 7;
  const std::vector<PlacedPiece> before = script.pieces();
  script.drag(kOnThird, {700, 300});
  script.wheel(kOnThird, 1, kCtrl);
  ASSERT_EQ(script.host.notices.size(), 2u);
  EXPECT_EQ(script.host.notices[0].text, "Selection includes track that is part of a helix. Helix "
                                         "track cannot be moveed individually.");
  EXPECT_NEAR(script.pieces()[2].x, before[2].x, 1e-9);
}

TEST(SelectTool, AHelixIsOneThing) {
  const HelixKit& kit = *findHelixKit("helix_2_0_r1");
  CanvasScript script;
  placeHelix(script.host.plan, {&kit, HelixHand::Right, 80, {600, 400, 0}, 0}, 1);
  script.host.plan.clearSelection();
  const Point on{600, 40};
  const auto selected = [&] { return selectedPieces(script.host.plan).size(); };
  script.drag({700, -60}, {500, 100}); // in the box is a part of it
  EXPECT_EQ(selected(), 24u);
  for (const std::size_t count : {0u, 24u}) {
    script.click(on, kCtrl);
    EXPECT_EQ(selected(), count);
  }
  script.host.plan.clearSelection();
  script.click(on);
  EXPECT_EQ(selected(), 24u);
  script.drag(on, {650, 60});
  EXPECT_NEAR(script.host.plan.content().helices[0].cx, 650, 1e-6);
  EXPECT_TRUE(script.host.notices.empty());
  deleteSelected(script.canvas.site());
  ASSERT_EQ(script.host.notices.size(), 1u);
  EXPECT_THAT(script.host.seen.hint, testing::HasSubstr("Delete Helix"));
  EXPECT_EQ(script.pieces().size(), 24u);
  script.takeFromMenu(on, "Delete Helix");
  EXPECT_TRUE(script.pieces().empty());
}

TEST(SelectTool, TunnelsComeAndGoByTheMenu) {
  Plan plan = Plan().place("24188").extend("24611").extend("24188");
  plan.at(2, 2).extend("24188");
  CanvasScript script(plan.layout);
  script.host.answers = {false, true};
  for (const std::size_t made : {0u, 1u}) { // asked first: track leaves at the turnout
    for (const std::int32_t id : {1, 2, 3, 4})
      script.host.plan.select(RecordKind::Piece, id, id < 4);
    script.takeFromMenu(kOnFirst, "Tunnel");
    EXPECT_EQ(script.host.plan.content().tunnels.size(), made);
  }
  script.host.plan.clearSelection();
  for (const Point& part : {kOnFirst, Point{2, -40}}) { // track, a portal
    script.click(part);
    RecordingSurface picture;
    script.canvas.paintSelection(picture, {0, 0, 1600, 1000});
    const bool marked = std::ranges::any_of(picture.areas, [](const auto& area) {
      return area.points.size() > 4 && area.stroke.color == screenTheme().selected;
    });
    EXPECT_TRUE(marked) << "the hill over it";
    EXPECT_THAT(script.host.seen.hint, testing::HasSubstr("Remove Tunnel"));
  }
  script.takeFromMenu(kOnFirst, "Remove Tunnel");
  EXPECT_TRUE(script.host.plan.content().tunnels.empty());
}

TEST(SelectTool, WhatIsHiddenInATunnelIsOutOfReach) {
  CanvasScript script(row());
  Layout& plan = script.host.plan;
  plan.edit().tunnels = {{9, -1, -1, 2, 3, {2, 3}}};
  plan.select(RecordKind::Piece, 3, true);
  const std::uint64_t shown = script.canvas.contentStamp();
  EditorSwitches switches = script.host.workspace.switches();
  switches.hidden = false;
  script.host.workspace.setSwitches(switches);
  EXPECT_NE(script.canvas.contentStamp(), shown);
  EXPECT_THAT(script.selected(), IsEmpty());
  script.click(kOnSecond);
  EXPECT_THAT(script.selected(), IsEmpty());
  for (const auto& reach : std::vector<std::function<void()>>{
           [&] {
             script.drag({-50, -90}, {900, 90});
           },
           [&] { selectAll(plan); }, [&] { script.doubleClick(kOnFirst, kAlt); },
           [&] { script.key(Key::Tab); }, [&] { script.key(Key::Tab); }}) {
    reach();
    EXPECT_THAT(script.selected(), ElementsAre(1));
  }
  const WorldConnector far = worldEnd(plan.pieces()[2], 1);
  EXPECT_FALSE(script.canvas.site()
                   .snapIndex()
                   .findSnap(*definitionOf(plan.pieces()[0]), {far.x + 3, far.y, 0})
                   .snapped);
  RecordingSurface picture;
  script.canvas.paintPlan(picture, {0, 0, 1600, 1000});
  EXPECT_THAT(picture.texts, testing::Contains("24188"));
  EXPECT_EQ(picture.linesIn(screenTheme().rail), 2u);

  selectThese(plan, piecesOfArticle(plan, "24188")); // as the tally does
  script.host.workspace.showSelected();
  EXPECT_TRUE(script.host.workspace.switches().hidden);
  EXPECT_THAT(script.selected(), ElementsAre(1, 2, 3));
}

TEST(SelectTool, DoubleClicksExtendOrSelectTheChain) {
  CanvasScript script(row());
  script.doubleClick(kOnThird);
  ASSERT_EQ(script.pieces().size(), 4u);
  EXPECT_EQ(script.pieces()[3].joint(0), (Joint{3, 1}));
  EXPECT_THAT(script.selected(), ElementsAre(4));

  dropPiece(script.host.plan, "24188", {0, 500, 0}, {}, false);
  script.doubleClick(kOnFirst, kAlt);
  EXPECT_THAT(script.selected(), UnorderedElementsAre(1, 2, 3, 4));
}

TEST(SelectTool, LabelsArePlacedEditedMovedAndDeleted) {
  CanvasScript script(row());
  const std::vector<Label>& labels = script.content().labels;
  const auto addAt = [&script](Point at, const char* text) {
    script.host.typed = text;
    script.takeFromMenu(at, "Add Label Here...");
  };
  addAt({90, 300}, "  ");
  EXPECT_FALSE(script.host.plan.canUndo()) << "nothing to be seen is no label";
  addAt({90, 300}, "Yard");
  addAt(kOnFirst, "On track");
  ASSERT_EQ(labels.size(), 2u);
  EXPECT_EQ(labels[0], (Label{labels[0].id, "Yard", 90, 300, false}));

  script.host.typed = "G\u00fcterbahnhof";
  script.doubleClick({90, 300});
  EXPECT_EQ(labels[0].text, "G\u00fcterbahnhof");
  script.doubleClick(kOnFirst);
  EXPECT_EQ(labels[1].text, "On track");
  EXPECT_EQ(script.pieces().size(), 4u) << "the piece under the label was extended";

  script.drag({90, 300}, {150, 320});
  EXPECT_NEAR(labels[0].x, 150, 1e-6);
  EXPECT_NEAR(labels[0].y, 320, 1e-6);
  deleteSelected(script.canvas.site());
  ASSERT_EQ(labels.size(), 1u);
  EXPECT_EQ(labels[0].text, "On track");
  while (script.host.plan.undo())
    ;
  EXPECT_TRUE(labels.empty());
}

TEST(SelectTool, CopiesKeepHeightAndComeBackByPasteAndDuplicate) {
  CanvasScript script(row());
  script.host.plan.edit().pieces[0].z = 80;
  script.drag({-30, -60}, {400, 60});
  EXPECT_TRUE(script.key(Key::Copy));
  EXPECT_TRUE(script.key(Key::Paste));
  EXPECT_TRUE(script.canvas.carrying());
  script.click({300, 400});
  ASSERT_EQ(script.pieces().size(), 5u);
  EXPECT_EQ(script.pieces()[3].z, 80);
  EXPECT_EQ(script.pieces()[3].joint(1), (Joint{5, 0}));

  EXPECT_TRUE(script.key(Key::Duplicate));
  EXPECT_TRUE(script.key(Key::Escape));
  EXPECT_FALSE(script.canvas.carrying());
  EXPECT_EQ(script.pieces().size(), 5u);

  script.host.clipboardText = "shopping list";
  script.key(Key::Paste);
  EXPECT_FALSE(script.canvas.carrying());

  // From another window it comes as from a file: escaped, and standing on its levels.
  Block foreign = blockFromSelection(script.host.plan);
  foreign.content.pieces[0].level = 2;
  foreign.content.scenery = {{9, "a & b"}};
  script.host.clipboardText.clear();
  writeBlock(foreign, [&script](std::string_view part) { script.host.clipboardText += part; });
  script.host.plan.ensureLevel(2);
  script.host.plan.editSettings().levels.back().height = 60;
  script.key(Key::Paste);
  script.click({300, 800});
  EXPECT_EQ(script.content().scenery.at(0).item, "a & b");
  EXPECT_EQ(script.host.notices.at(0).title, "Place Block");

  CanvasScript pair(Plan().place("74618").layout);
  pair.click({40, 0});
  EXPECT_TRUE(pair.key(Key::Cut) && pair.key(Key::Paste));
  pair.click({300, 400});
  EXPECT_EQ(pair.pieces().size(), 2U) << "what is deleted along is copied along";
}

TEST(SelectTool, WhatIsCutComesBackWhateverItIs) {
  for (const bool elsewhere : {false, true}) {
    CanvasScript script(row());
    addLabel(script.host.plan, {300, 200}, "Yard & Co");
    addShape(script.host.plan, {{0, 200}, {200, 200}, {200, 400}});
    addMeasurement(script.host.plan, {0, 100}, {100, 100});
    selectAll(script.host.plan);
    script.key(Key::Cut);
    EXPECT_FALSE(anySelectable(script.content(), [](const auto&) { return true; }));
    // Another running program has only the text, and files hold no measurements.
    CanvasScript other;
    other.host.clipboardText = script.host.clipboardText;
    CanvasScript& target = elsewhere ? other : script;
    target.key(Key::Paste);
    target.move({500, 500});
    target.click({500, 500});
    EXPECT_EQ(target.content().pieces.size(), 3u);
    EXPECT_EQ(target.content().shapes.size(), 1u);
    ASSERT_EQ(target.content().labels.size(), 1u);
    EXPECT_EQ(target.content().labels[0].text, "Yard & Co");
    EXPECT_EQ(target.content().measurements.size(), elsewhere ? 0u : 1u);
  }
}

TEST(SelectTool, TheMenuSwapsAPieceForOneThatFitsAndEndsAGrade) {
  CanvasScript script(row());
  script.takeFromMenu(kOnSecond, "Swap...");
  EXPECT_EQ(script.pieces()[1].cat, "24188") << "cancelled";
  const auto bridge = std::ranges::find_if( // the truss bridge is as long
      script.host.offered, [](const std::string& row) { return row.starts_with("74620"); });
  ASSERT_NE(bridge, script.host.offered.end());
  script.host.choice = static_cast<std::size_t>(bridge - script.host.offered.begin());
  script.takeFromMenu(kOnSecond, "Swap...");
  EXPECT_EQ(script.pieces()[1].cat, "74620");
  EXPECT_EQ(openEnds(script.host.plan), 2);
  EXPECT_EQ(script.host.seen.changes, 1);
  script.host.plan.startGradeRun(2, 1, 2);
  script.takeFromMenu(kOnSecond, "End Grade Here");
  EXPECT_TRUE(script.content().gradeRuns.empty());
}

TEST(SelectTool, AutofillOffersItsRowsAndPlacesTheChosenOne) {
  CanvasScript script(Plan().place("24188").place("24188", {548.3, 0, 0}).layout);
  script.click({90, 0});
  script.click({640, 0}, kCtrl);
  script.takeFromMenu({90, 0}, "Autofill Gap...");
  EXPECT_EQ(script.pieces().size(), 2u) << "cancelled";
  ASSERT_FALSE(script.host.offered.empty());
  EXPECT_THAT(script.host.offered[0], testing::HasSubstr("24360"));
  EXPECT_EQ(script.host.notes.size(), script.host.offered.size());
  EXPECT_EQ(script.host.notes[0], "Joins both ends.");
  script.host.choice = 0;
  const auto drawn = [&script] {
    RecordingSurface surface;
    script.canvas.paintOverlay(surface);
    return surface.linesIn(screenTheme().snapped) > 0;
  };
  script.host.whileChoosing = [&] {
    EXPECT_TRUE(drawn());
    EXPECT_EQ(script.pieces().size(), 2u);
    throw std::runtime_error("a dialog that failed");
  };
  EXPECT_THROW(script.takeFromMenu({90, 0}, "Autofill Gap..."), std::runtime_error);
  EXPECT_FALSE(drawn());
  script.host.whileChoosing = {};
  script.takeFromMenu({90, 0}, "Autofill Gap...");
  EXPECT_EQ(script.pieces().size(), 3u);
  EXPECT_FALSE(drawn());
  EXPECT_EQ(openEnds(script.host.plan), 2);
  script.host.answers = {false, true}; // whether it may be too steep
  for (const int open : {4, 2}) {
    script.host.plan.undo();
    script.host.plan.editPiece(2)->z = 40;
    script.takeFromMenu({90, 0}, "Autofill Gap...");
    EXPECT_EQ(openEnds(script.host.plan), open);
  }
}

TEST(PlanPreview, ShowsWhatAnEditAddsOrMovesOfAnyKind) {
  CanvasScript script(row());
  script.host.plan.edit().helices.push_back({Layout::kLargestId}); // no larger id can follow
  PlanPreview preview(script.host.workspace);
  preview.showEdit([](Layout& plan) {
    addLabel(plan, {0, 100}, "Depot");
    plan.edit().helices.push_back({plan.takeId(), 600, 300});
    setPiecePose(plan, 1, {0, 400, 0}); // the piece that it was joined to stays
  });
  EXPECT_EQ(preview.records().pieces.size(), 1u);
  RecordingSurface surface;
  script.canvas.paintOverlay(surface);
  EXPECT_THAT(surface.texts, testing::Contains("Depot"));
  EXPECT_THAT(surface.dots, ElementsAre(script.canvas.view().toScreen(Point{600, 300})));
}

TEST(SelectTool, LikeTheOthersSaysWhatWouldLieBeyondThePlan) {
  constexpr Point kBeyond{1'000'200, 0};
  CanvasScript script(row());
  script.drag(kOnFirst, kBeyond);
  script.takeFromMenu(kBeyond, "Add Label");
  script.setMode(ToolMode::Measure);
  script.click({0, 900});
  script.click(kBeyond);
  script.setMode(ToolMode::Polygon);
  script.click(kBeyond);
  EXPECT_EQ(script.host.notices, std::vector<Notice>(4, beyondPlan()));
  EXPECT_EQ(script.host.seen.changes, 0);
}

} // namespace
} // namespace trassix::test
