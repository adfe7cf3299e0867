// The dialogs on levels, baseboard and shapes, by real clicks and keys.
#include "document/record_kinds.h"
#include "editing/canvas/selection_commands.h"
#include "frame_test.h"
#include "host/command_ids.h"

#include <wx/listctrl.h>
#include <wx/radiobut.h>

#include <stdexcept>

namespace trassix::test {
namespace {

class DialogTest : public FrameTest {
 protected:
  static wxWindow& in(wxDialog& dialog, const std::string& name) {
    wxWindow* window = wxWindow::FindWindowByName(name, &dialog);
    if (window == nullptr)
      throw std::runtime_error("there is no " + name);
    return *window;
  }
  /// Replaces what stands in a text field.
  static void enter(wxDialog& dialog, const std::string& name, const std::string& text) {
    auto& field = dynamic_cast<wxTextCtrl&>(in(dialog, name));
    click(field);
    waitUntil(name + " has the focus", [&] { return field.HasFocus(); });
    pressKey('A', wxMOD_CONTROL);
    if (text.empty())
      pressKey(WXK_DELETE);
    else
      typeText(text);
    waitUntil(text + " is in " + name, [&] { return field.GetValue() == text; });
  }
  static std::string problem(wxDialog& dialog) {
    wxString text = in(dialog, "problem").GetLabel();
    text.Replace("\n", " ");
    return text.utf8_string();
  }
  static bool enabled(wxDialog& dialog, int button) {
    return dialog.FindWindow(button)->IsEnabled();
  }
  static void clickRow(wxDialog& dialog, long row) {
    auto& list = dynamic_cast<wxListView&>(in(dialog, "levelList"));
    wxRect rect;
    waitUntil("the row is there", [&] { return list.GetItemRect(row, rect) && rect.width > 0; });
    // The rectangle counts from the control's corner, above its header.
    click({list, wxPoint(rect.x + 60, rect.y + rect.height / 2)});
    waitUntil("the row is selected", [&] { return list.GetFirstSelected() == row; });
  }
};

TEST_F(DialogTest, LevelsAreAddedEditedAndDeletedInOneStep) {
  startLaidOut();
  placePiece();
  dialogs.drive("Levels", [&](wxDialog& dialog) {
    EXPECT_FALSE(enabled(dialog, wxID_DELETE));
    enter(dialog, "levelName", "Yard");
    click(*dialog.FindWindow(wxID_ADD));
    typeText("Upper deck"); // the name is selected, ready for typing
    pressKey(WXK_TAB);
    typeText("12 cm");
    enter(dialog, "levelName", "Yard");
    EXPECT_EQ(problem(dialog), "Another level has this name.");
    enter(dialog, "levelName", "Upper deck");
    enter(dialog, "levelHeight", "tall");
    EXPECT_FALSE(enabled(dialog, wxID_OK));
    clickRow(dialog, 0); // the entry waits where it is
    EXPECT_EQ(problem(dialog), "Upper deck: A length is expected here, for example 188.3 mm.");
    clickRow(dialog, 1);
    auto& list = dynamic_cast<wxListView&>(in(dialog, "levelList"));
    click({list, wxPoint(60, list.GetClientSize().y - 20)}); // below the rows
    waitUntil("a level is selected", [&] { return list.GetFirstSelected() == 1; });
    enter(dialog, "levelHeight", "120");
    EXPECT_EQ(problem(dialog), "");
    click(in(dialog, "levelActive"));
    pressKey(WXK_RETURN); // the button is off now, so that the dialog takes the key
  });
  put(kLevels);
  ASSERT_EQ(plan().settings().levels.size(), 2u);
  EXPECT_EQ(plan().settings().levels[0].name, "Yard");
  EXPECT_EQ(plan().settings().levels[1].name, "Upper deck");
  EXPECT_EQ(plan().settings().levels[1].height, 120);
  EXPECT_EQ(plan().settings().activeLevel, 2);
  EXPECT_TRUE(frame().dirty());
}

TEST_F(DialogTest, CancelChangesNothingAndDeletingAsksWhatBecomesOfTheTrack) {
  startLaidOut();
  placePiece();
  plan().ensureLevel(2);
  plan().editSettings().levels[1].height = 80;
  const std::uint64_t before = plan().revision();
  dialogs.drive("Levels", [&](wxDialog& dialog) {
    click(in(dialog, "levelVisible"));
    enter(dialog, "levelHeight", "30");
    pressKey(WXK_ESCAPE);
  });
  put(kLevels);
  EXPECT_EQ(plan().revision(), before);

  dialogs.drive("Levels", [&](wxDialog& dialog) {
    in(dialog, "levelList").SetFocus();
    pressKey(WXK_NUMPAD_DELETE);
    waitUntil("the level is gone", [&] { return !enabled(dialog, wxID_DELETE); });
    in(dialog, "levelList").SetFocus();
    pressKey(WXK_RETURN);
  });
  dialogs.drive("Delete Level", [&](wxDialog&) {
    pressKey(WXK_RETURN); // the first answer keeps the track
  });
  put(kLevels);
  ASSERT_EQ(plan().settings().levels.size(), 1u);
  EXPECT_EQ(plan().pieces()[0].level, 2);
  EXPECT_EQ(plan().pieces()[0].z, 80);
  put(kUndo);
  EXPECT_EQ(plan().pieces()[0].level, 1);
  EXPECT_EQ(plan().settings().levels.size(), 1u); // levels are no part of the history
}

TEST_F(DialogTest, AnOutlineIsDrawnOnThePlan) {
  startLaidOut();
  dialogs.drive("Levels", [&](wxDialog& dialog) { click(in(dialog, "outlineDraw")); });
  put(kLevels);
  ASSERT_EQ(frame().workspace().switches().mode, ToolMode::Polygon);
  for (const Point corner : {Point{100, 500}, {600, 500}, {600, 900}})
    click(onPlan(corner));
  pressKey(WXK_RETURN);
  EXPECT_EQ(plan().settings().levels[0].outline.size(), 3u);
  EXPECT_TRUE(plan().content().shapes.empty());
  EXPECT_EQ(frame().workspace().switches().mode, ToolMode::Select);
  EXPECT_TRUE(frame().dirty());
}

TEST_F(DialogTest, TheBaseboardIsChosenRememberedAndRefused) {
  startLaidOut();
  dialogs.drive("Baseboard Shape", [&](wxDialog& dialog) {
    pressKey('u', wxMOD_ALT);
    waitUntil("it is a U", [&] { return in(dialog, "boardArm").IsShown(); });
    enter(dialog, "boardWidth", "300 cm");
    enter(dialog, "boardArm", "1500");
    EXPECT_EQ(problem(dialog), "Two arms of this width leave no room between them.");
    EXPECT_FALSE(enabled(dialog, wxID_OK));
    pressKey(WXK_RETURN); // in vain
    enter(dialog, "boardArm", "650");
    pressKey(WXK_RETURN);
  });
  put(kLayoutShape);
  EXPECT_EQ(plan().settings().lastShape, (LastShape{2, 3000, 1600, 650, 700}));
  EXPECT_EQ(plan().settings().baseboard.size(), 8u);
  EXPECT_TRUE(frame().dirty());

  const std::uint64_t before = plan().revision();
  dialogs.drive("Baseboard Shape", [&](wxDialog& dialog) {
    EXPECT_TRUE(dynamic_cast<wxRadioButton&>(in(dialog, "boardU")).GetValue());
    click(in(dialog, "boardNone"));
    pressKey(WXK_ESCAPE);
  });
  put(kLayoutShape);
  EXPECT_EQ(plan().revision(), before);

  dialogs.drive("Baseboard Shape", [&](wxDialog& dialog) {
    click(in(dialog, "boardFree"));
    waitUntil("there is something to press", [&] { return in(dialog, "boardDraw").IsShown(); });
    click(in(dialog, "boardDraw"));
  });
  put(kLayoutShape);
  for (const Point corner : {Point{100, 500}, {600, 500}, {600, 900}})
    click(onPlan(corner));
  pressKey(WXK_RETURN);
  EXPECT_EQ(plan().settings().baseboard.size(), 3u);
}

TEST_F(DialogTest, ARectangleIsPlacedMovedAndBecomesTheBaseboard) {
  startLaidOut();
  const std::uint64_t empty = plan().revision();
  dialogs.drive("Rectangle", [&](wxDialog& dialog) {
    typeText("700");
    enter(dialog, "shapeLabel", "Hatch");
    pressKey(WXK_ESCAPE);
  });
  put(kRectangle);
  EXPECT_EQ(plan().revision(), empty);
  EXPECT_FALSE(plan().canUndo() || frame().dirty());
  dialogs.drive("Rectangle", [&](wxDialog& dialog) {
    typeText("500");
    pressKey(WXK_TAB);
    typeText("wide");
    EXPECT_EQ(problem(dialog).substr(0, 7), "Depth: ");
    EXPECT_FALSE(enabled(dialog, wxID_OK));
    enter(dialog, "rectangleDepth", "200");
    enter(dialog, "shapeLabel", "Hatch");
    pressKey(WXK_RETURN);
  });
  put(kRectangle);
  ASSERT_EQ(plan().content().shapes.size(), 1u);
  const std::vector<Point> placed = plan().content().shapes[0].points;
  EXPECT_EQ(placed[2].x - placed[0].x, 500);
  EXPECT_EQ(placed[2].y - placed[0].y, 200);
  const Point inside{placed[0].x + 40, placed[0].y + 40};
  drag(onPlan(inside), {onPlan({inside.x + 100, inside.y}), onPlan({inside.x + 200, inside.y})});
  EXPECT_NEAR(plan().content().shapes[0].points[0].x, placed[0].x + 200, 5);

  dialogs.drive("Shape", [&](wxDialog& dialog) {
    enter(dialog, "shapeHeight", "high");
    EXPECT_FALSE(enabled(dialog, wxID_OK));
    enter(dialog, "shapeHeight", "40");
    click(in(dialog, "shapeOutline"));
    pressKey(WXK_RETURN);
  });
  doubleClick(onPlan({inside.x + 200, inside.y}));
  waitUntil("the shape is edited", [&] { return plan().content().shapes[0].height == 40; });
  EXPECT_TRUE(plan().content().shapes[0].outline);
  EXPECT_EQ(plan().content().shapes[0].label, "Hatch");

  const std::uint64_t before = plan().revision();
  dialogs.drive("Shape", [&](wxDialog& dialog) {
    enter(dialog, "shapeLabel", "Lake");
    pressKey(WXK_ESCAPE);
  });
  editShape(canvas().site(), plan().content().shapes[0].id);
  EXPECT_EQ(plan().revision(), before);
  dialogs.drive("Shape", [&](wxDialog&) { pressKey('b', wxMOD_ALT); });
  editShape(canvas().site(), plan().content().shapes[0].id);
  EXPECT_EQ(plan().settings().baseboard.size(), 4u);
  EXPECT_TRUE(plan().content().shapes.empty());
}

} // namespace
} // namespace trassix::test
