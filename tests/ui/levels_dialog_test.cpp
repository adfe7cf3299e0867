#include "dialog_test.h"

#include <wx/listctrl.h>

namespace trassix::test {
namespace {

class LevelsTest : public DialogTest {
 protected:
  static void clickRow(wxDialog& dialog, long row) {
    auto& list = dynamic_cast<wxListView&>(in(dialog, "levelList"));
    wxRect rect;
    waitUntil("the row is there", [&] { return list.GetItemRect(row, rect) && rect.width > 0; });
    // The rectangle counts from the control's corner, above its header.
    click({list, wxPoint(rect.x + 60, rect.y + rect.height / 2)});
    waitUntil("the row is selected", [&] { return list.GetFirstSelected() == row; });
  }
};

TEST_F(LevelsTest, LevelsAreAddedEditedAndDeletedInOneStep) {
  startLaidOut();
  placePiece();
  dialogs.drive("Levels", [&](wxDialog& dialog) {
    EXPECT_FALSE(enabled(dialog, wxID_DELETE));
    enter(dialog, "levelName", "Yard");
    click(*dialog.FindWindow(wxID_ADD));
    typeText("Upper deck"); // the name is selected, ready for typing
    pressKey(WXK_TAB);
    typeText("12 cm");
    takeScreenshot("levels");
    enter(dialog, "levelName", "Yard");
    EXPECT_EQ(problem(dialog), "Another level has this name.");
    enter(dialog, "levelName", "Upper deck");
    enter(dialog, "levelHeight", "tall");
    EXPECT_FALSE(enabled(dialog, wxID_OK));
    clickRow(dialog, 0); // the entry waits where it is
    EXPECT_EQ(problem(dialog), "Upper deck: A length is expected here, for example 188.3 mm.");
    takeScreenshot("levels-refused");
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

TEST_F(LevelsTest, CancelChangesNothingAndDeletingAsksWhatBecomesOfTheTrack) {
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
    pressKey('d', wxMOD_ALT);
    waitUntil("the level is gone", [&] { return !enabled(dialog, wxID_DELETE); });
    in(dialog, "levelList").SetFocus();
    pressKey(WXK_RETURN);
  });
  dialogs.drive("Delete Level", [&](wxDialog&) {
    takeScreenshot("levels-delete");
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

TEST_F(LevelsTest, AnOutlineIsDrawnOnThePlan) {
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

} // namespace
} // namespace trassix::test
