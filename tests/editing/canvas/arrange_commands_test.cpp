#include "editing/canvas/arrange_commands.h"
#include "editing/canvas/canvas_script.h"
#include "editing/scenery/annotations.h"
#include "host/plan_preview.h"
#include "support/plan.h"

#include <gmock/gmock.h>

namespace trassix {
namespace {

using test::CanvasScript;
using testing::HasSubstr;

TEST(ArrangeCommands, MirroringAsksBeforeItLeavesPiecesOut) {
  CanvasScript script(Plan().place("24612").place("59092", {0, 900, 0}).layout);
  selectAll(script.host.plan);
  const PlanContent before = script.content();
  script.host.answers = {false, true};
  script.takeFromMenu({90, 0}, "Mirror/Top to Bottom");
  EXPECT_EQ(script.content(), before);
  EXPECT_THAT(script.host.questions.at(0).text, HasSubstr("59092 Turnout End Piece"));
  script.takeFromMenu({90, 0}, "Mirror/Top to Bottom");
  EXPECT_EQ(script.pieces()[0].cat, "24611");
  EXPECT_EQ(script.selected(), std::vector<std::int32_t>{1});

  selectOnly(script.host.plan, 2); // nothing is left then, so there is nothing to ask
  script.takeFromMenu({50, 900}, "Mirror/Left");
  EXPECT_THAT(script.host.notices.at(0).text, HasSubstr("59092 Turnout End Piece"));
}

TEST(ArrangeCommands, AParallelIsShownThenLaidAndItsGapsAreTold) {
  CanvasScript script(Plan().place("24188").extend("24330", 3).extend("24188").layout);
  selectAll(script.host.plan);
  script.host.choice = 0; // the outer side at the system's spacing
  std::size_t shown = 0;
  script.host.whileChoosing = [&] {
    shown = script.host.workspace.preview()->records().pieces.size();
  };
  script.takeFromMenu({90, 0}, "Parallel Track");
  EXPECT_EQ(shown, 2U);
  EXPECT_EQ(script.pieces().size(), 5U + 2);
  EXPECT_THAT(script.host.notices.at(0).text, HasSubstr("515.0 mm"));
  script.host.plan.undo();

  bool again = false; // "Another Distance...", then the same side
  script.host.choice = script.host.offered.size() - 1;
  script.host.typed = "64,3";
  script.host.whileChoosing = [&] {
    script.host.choice = std::exchange(again, true) ? 0 : script.host.choice;
  };
  script.takeFromMenu({90, 0}, "Parallel Track");
  EXPECT_EQ(script.pieces().size(), 5U + 5);
  EXPECT_EQ(script.host.notices.size(), 1U);
}

TEST(ArrangeCommands, ShapesAreCopiedAndPasted) {
  CanvasScript script;
  addShape(script.host.plan, {{0, 0}, {400, 0}, {400, 400}});
  for (const bool otherProgram : {false, true}) {
    script.key(Key::Copy);
    if (otherProgram)
      script.host.clipboardText += " ";
    script.key(Key::Paste);
    script.click({900, 900});
  }
  EXPECT_EQ(script.content().shapes.size(), 3U);
  EXPECT_EQ(script.content().shapes[2].points[1].x - script.content().shapes[2].points[0].x, 400);
}

} // namespace
} // namespace trassix
