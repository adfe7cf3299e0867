// Helices under the mouse: carried, snapped, edited.
#include "editing/canvas/canvas_script.h"
#include "editing/elevation/grade_edits.h"
#include "editing/helix/helix_edits.h"
#include "support/plan.h"

#include <gmock/gmock.h>

namespace trassix::test {
namespace {

using testing::HasSubstr;

/// A line that climbs from the origin to 80 mm, its upper end at x 1129.8.
Layout climbingLine() {
  Layout layout = Plan().place("24188").extend("24188", 5).layout;
  GradeTask task{{1, 2, 3, 4, 5, 6}, {1, 0}, 1, 80 / (6 * 188.3)};
  task.limit = 0.1;
  applyHeights(layout, planGrade(layout, task));
  layout.clearSelection();
  return layout;
}

TEST(CarriedHelix, SnapsByEachOfItsEndsAtTheHeightOfTheOther) {
  const HelixKit& kit = *findHelixKit("helix_1_5_r1r2");
  for (int presses = 0; presses < 5; ++presses) {
    SCOPED_TRACE(presses);
    CanvasScript script(climbingLine());
    script.canvas.carry(usualHelix(kit), script.at({300, 300}), true);
    for (int i = 0; i < presses; ++i)
      script.key(Key::F);
    script.move({1140, 9});
    const bool top = presses == 2 || presses == 3;
    EXPECT_THAT(script.host.seen.hint, HasSubstr(top ? "join the top" : "join the bottom"));
    script.release({1140, 9});
    const Helix& helix = script.content().helices.at(0);
    const std::array ends{helix.bottomR1, helix.bottomR2, helix.topR1, helix.topR2};
    EXPECT_EQ(script.pieces()[5].joint(1).target, ends.at(static_cast<std::size_t>(presses % 4)));
    EXPECT_EQ(brokenRule(script.host.plan), "");
    EXPECT_LE(largestPlay(script.host.plan).distance, 0.01);
    EXPECT_LE(std::abs(largestPlay(script.host.plan).step), 0.01);
    const HelixPlan plan = planOfHelix(script.host.plan, helix).value();
    EXPECT_NEAR(plan.height, top ? 80 - 120 : 80, 0.01);
    EXPECT_EQ(script.host.seen.changes, 1);
    script.host.plan.undo();
    EXPECT_EQ(script.content().pieces.size(), 6U);
  }
}

TEST(CarriedHelix, LandsFreeOrNotAtAll) {
  CanvasScript script(climbingLine());
  script.host.plan.editSettings().levels.front().height = 30;
  HelixWish wish = usualHelix(*findHelixKit("helix_2_0_r2"));
  wish.leadsDown = true;
  script.canvas.carry(wish, script.at({300, 500}), true);
  script.wheel({300, 500}, 1);
  script.release({300, 500});
  const Helix helix = script.content().helices.at(0);
  const HelixPlan plan = planOfHelix(script.host.plan, helix).value();
  EXPECT_NEAR(plan.height + plan.climb(), 30, 1e-6) << "its top lies on the level";
  EXPECT_NEAR(headingDifference(helix.heading, 30 + 180), 0, 1e-6);
  EXPECT_EQ(openEnds(script.host.plan), 4);
  script.canvas.carry(wish, script.at({300, 500}), false);
  script.key(Key::Escape);
  EXPECT_FALSE(script.canvas.carrying());
  EXPECT_EQ(script.content().helices.size(), 1U);
}

TEST(HelixOnThePlan, IsEditedByMouseAndGoneOnFrom) {
  CanvasScript script(climbingLine());
  script.canvas.carry(usualHelix(*findHelixKit("helix_2_0_r1")), script.at({300, 300}), true);
  script.move({1140, 9});
  script.release({1140, 9});
  const Point on{1129.8 + 360, 360};
  script.host.wishing = [](HelixWish wish) {
    wish.plan.kit = findHelixKit("helix_3_0_r2");
    wish.plan.pitch = 90;
    return wish;
  };
  script.doubleClick(on);
  const Helix helix = script.content().helices.at(0);
  EXPECT_EQ(helix.variant, "helix_3_0_r2");
  EXPECT_NEAR(helix.cy, 437.5, 0.01);
  EXPECT_EQ(script.pieces()[5].joint(1).target, helix.bottomR1) << "still joined";
  script.host.wishing = {};
  script.takeFromMenu({1129.8 + 437.5, 437.5}, "Edit Helix");
  EXPECT_EQ(script.content().helices[0], helix) << "cancelled";

  // Track goes on from its top, as high as that.
  script.click({1129.8, 0});
  ASSERT_TRUE(script.canvas.goOnWith(CarriedPiece{"24188"}));
  EXPECT_NEAR(script.pieces().back().z, 80 + 270, 0.01);
  EXPECT_EQ(script.pieces().back().helix, -1);

  script.host.plan.edit().helices[0].variant = "of another program";
  script.doubleClick({1129.8 + 437.5, 437.5});
  EXPECT_THAT(script.host.notices.back().text, HasSubstr("not known"));
}

} // namespace
} // namespace trassix::test
