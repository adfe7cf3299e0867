#include "dialog_test.h"
#include "editing/canvas/selection_commands.h"

#include <wx/radiobut.h>
#include <wx/spinctrl.h>

namespace trassix::test {
namespace {

using ShapesTest = DialogTest;

TEST_F(ShapesTest, TheBaseboardIsChosenRememberedAndRefused) {
  startLaidOut();
  dialogs.drive("Baseboard Shape", [&](wxDialog& dialog) {
    pressKey('u', wxMOD_ALT);
    waitUntil("it is a U", [&] { return in(dialog, "boardArm").IsShown(); });
    enter(dialog, "boardWidth", "300 cm");
    enter(dialog, "boardArm", "1500");
    EXPECT_EQ(problem(dialog), "Two arms of this width leave no room between them.");
    EXPECT_FALSE(enabled(dialog, wxID_OK));
    takeScreenshot("baseboard-refused");
    pressKey(WXK_RETURN); // in vain
    enter(dialog, "boardArm", "650");
    takeScreenshot("baseboard");
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
    takeScreenshot("baseboard-none");
    pressKey(WXK_ESCAPE);
  });
  put(kLayoutShape);
  EXPECT_EQ(plan().revision(), before);

  dialogs.drive("Baseboard Shape", [&](wxDialog& dialog) {
    click(in(dialog, "boardFree"));
    waitUntil("there is something to press", [&] { return in(dialog, "boardDraw").IsShown(); });
    takeScreenshot("baseboard-free");
    click(in(dialog, "boardDraw"));
  });
  put(kLayoutShape);
  for (const Point corner : {Point{100, 500}, {600, 500}, {600, 900}})
    click(onPlan(corner));
  pressKey(WXK_RETURN);
  EXPECT_EQ(plan().settings().baseboard.size(), 3u);
}

TEST_F(ShapesTest, ARectangleIsPlacedMovedAndBecomesTheBaseboard) {
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
    takeScreenshot("rectangle");
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
    takeScreenshot("shape");
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
  editShape(frame().canvasPanel().canvas().site(), plan().content().shapes[0].id);
  EXPECT_EQ(plan().revision(), before);
  dialogs.drive("Shape", [&](wxDialog&) { pressKey('b', wxMOD_ALT); });
  editShape(frame().canvasPanel().canvas().site(), plan().content().shapes[0].id);
  EXPECT_EQ(plan().settings().baseboard.size(), 4u);
  EXPECT_TRUE(plan().content().shapes.empty());
}

} // namespace
} // namespace trassix::test
