#include "editing/elevation/grade_edits.h"
#include "editing/helix/helix_edits.h"
#include "host/command_ids.h"
#include "planning_test.h"

#include <wx/uiaction.h>

namespace trassix::test {
namespace {

TEST_F(PlanningTest, AHelixIsChosenSnappedMovedSavedEditedDeletedAndUndone) {
  startLaidOut();
  show(Plan().place("24188").extend("24188", 5));
  GradeTask climb{{1, 2, 3, 4, 5, 6}, {1, 0}, 1, 0.03};
  applyHeights(plan(), planGrade(plan(), climb));
  plan().clearSelection();
  frame().workspace().changed();
  const Point end{6 * 188.3, 0};
  const double height = endHeight(plan(), {6, 1});
  dialogs.drive("Helix", [](wxDialog&) {
    typeText("240");
    pressKey(WXK_RETURN);
  });
  doubleClick(inPalette("Helix R1"));
  waitUntil("it hangs on the pointer", [&] { return canvas().carrying(); });
  click(onPlan({end.x + 9, end.y + 9}));
  waitForPieces(6 + 36);
  const auto helix = [&] { return plan().content().helices.at(0); };
  const auto shape = [&] { return planOfHelix(plan(), helix()).value(); };
  EXPECT_EQ(plan().findPiece(6)->joint(1).target, helix().bottomR1);
  EXPECT_NEAR(shape().height, height, 1e-6);
  EXPECT_LT(std::abs(largestPlay(plan()).step), 1e-6);

  put(kZoomFit);
  settle();
  const double right = helix().cx + 360;
  const double middle = helix().cy;
  dialogs.answer("Move", wxID_YES); // away from the graded line
  drag(onPlan({right, middle}), {onPlan({right + 60, middle + 90}), onPlan({right, middle + 200})});
  waitUntil("it was moved whole", [&] { return helix().cy > middle + 150; });
  EXPECT_TRUE(plan().findPiece(6)->joint(1).open());
  pressKey('Z', wxMOD_CONTROL);
  waitUntil("it is back", [&] { return helix().cy == middle; });

  saveAs("Helix");
  const std::string key = helix().variant;
  put(wxID_NEW);
  waitForPieces(0);
  dialogs.drive("Open Layout", [](wxDialog&) {
    pressKey(WXK_DOWN);
    pressKey(WXK_RETURN);
  });
  put(wxID_OPEN);
  waitForPieces(6 + 36);
  EXPECT_EQ(helix().variant, key);
  put(kZoomFit);
  settle();
  dialogs.drive("Edit Helix", [](wxDialog&) {
    EXPECT_EQ(dynamic_cast<wxTextCtrl&>(*findNamed("helixClimb")).GetValue(), "240.0 mm");
    typeText("320");
    pressKey(WXK_RETURN);
  });
  doubleClick(onPlan({right, middle}));
  waitForPieces(6 + 48);
  EXPECT_NEAR(shape().climb(), 320, 1e-6);
  EXPECT_EQ(plan().findPiece(6)->joint(1).target, helix().bottomR1) << "still joined";

  frame().Bind(wxEVT_MENU_OPEN, [](wxMenuEvent& event) {
    event.Skip();
    for (const int row : {WXK_DOWN, WXK_DOWN, WXK_RETURN}) // "Delete Helix"
      wxUIActionSimulator().Char(row);
  });
  rightClick(onPlan({right, middle}));
  waitForPieces(6);
  EXPECT_TRUE(plan().content().helices.empty());
  put(kUndo);
  put(kUndo);
  EXPECT_EQ(pieces(), 42U);
  EXPECT_NEAR(shape().climb(), 240, 1e-3);
  finish();
}

} // namespace
} // namespace trassix::test
