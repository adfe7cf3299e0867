#include "editing/selection/selection.h"
#include "panels/elevation_form.h"
#include "support/plan.h"

#include <gmock/gmock.h>

namespace trassix {
namespace {

using Task = ElevationForm::Task;
using Field = ElevationForm::Field;
using Switch = ElevationForm::Switch;
using testing::HasSubstr;

/// Ten straights, of which the third to the eighth are selected.
Layout ramp() {
  Layout layout = Plan().place("24188").extend("24188", 9).layout;
  layout.clearSelection();
  for (std::int32_t id = 3; id <= 8; ++id)
    layout.select(RecordKind::Piece, id, true);
  return layout;
}

TEST(ElevationForm, EveryFieldRecomputesTheOthersAndTheLastTypedWins) {
  struct Case {
    Task task;
    Field field;
    const char* typed;
    const char *height, *rise, *percent;
    double end, last; ///< heights of piece 8's end and of the end of the plan
  };
  const double length = 6 * 188.3;
  const Case cases[] = {
      {Task::Climb, Field::Height, "30", "30", "30.0 mm", "2.66", 30, 30},
      {Task::Climb, Field::Rise, "-1,5 cm", "-15.0 mm", "-1,5 cm", "-1.33", -15, -15},
      {Task::Climb, Field::Percent, "2 %", "22.6 mm", "22.6 mm", "2 %", length * 0.02,
       length * 0.02},
      {Task::Grade, Field::Rise, "22.596", "22.6 mm", "22.596", "2", length * 0.02, length * 0.02},
      {Task::Grade, Field::Degrees, "-1", "-19.7 mm", "-19.7 mm", "-1.75",
       -length * std::sin(toRadians(1)), -length * std::sin(toRadians(1))},
      {Task::Raise, Field::Height, "12", "12", "12.0 mm", "0", 12, 12},
      {Task::EndHeight, Field::Rise, "7", "7.0 mm", "7", "0", 7, 7},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.typed);
    Layout layout = ramp();
    ElevationForm form(layout);
    form.setTask(c.task);
    form.set(Switch::Eased, false);
    form.enter(Field::Percent, "4"); // typed before, and so overruled
    form.enter(c.field, c.typed);
    EXPECT_EQ(form.problem(), "");
    EXPECT_EQ(form.text(Field::Height), c.height);
    EXPECT_EQ(form.text(Field::Rise), c.rise);
    EXPECT_TRUE(form.text(Field::Percent) == c.percent || !form.uses(Field::Percent));
    ASSERT_TRUE(applyHeights(layout, form.plan()));
    EXPECT_NEAR(endHeight(layout, {8, 1}), c.end, 0.01);
    EXPECT_NEAR(endHeight(layout, {10, 1}), c.last, 0.01);
  }
}

TEST(ElevationForm, RefusalsAreSaidInPlaceAndALoopMaySpread) {
  Layout layout = ramp();
  ElevationForm form(layout);
  EXPECT_FALSE(form.ready());
  const std::pair<Field, const char*> refused[] = {
      {Field::Height, "high"}, {Field::Height, "90"}, {Field::Limit, "6"}, {Field::Percent, "9"}};
  for (const auto& [field, text] : refused) {
    form.enter(Field::Limit, "5");
    form.enter(Field::Height, "30");
    EXPECT_TRUE(form.ready());
    form.enter(field, text);
    EXPECT_NE(form.problem(), "") << text;
    EXPECT_FALSE(form.ready());
  }
  form.enter(Field::Limit, "5");
  form.enter(Field::Height, "90");
  EXPECT_THAT(form.problem(), HasSubstr("longer"));
  form.setTask(Task::Grade);
  form.set(Switch::PieceAlone, true);
  form.enter(Field::Percent, "-2");
  ASSERT_TRUE(form.ready());
  EXPECT_NEAR(form.plan().pieces.front().grade, degreesOf(-0.02), 1e-9);
  EXPECT_EQ(form.plan().pieces.size(), 8u) << "this one, and the track beyond it is lifted";
  form.setTask(Task::Climb);
  form.enter(Field::Height, "90");
  form.turnRound(); // 90 is now the height of the other end
  EXPECT_EQ(form.text(Field::Height), "90");

  Layout oval = Plan()
                    .place("24188")
                    .extend("24188", 3)
                    .extend("24130", 6)
                    .extend("24188", 4)
                    .extend("24130", 6)
                    .layout;
  oval.clearSelection();
  for (std::int32_t id = 1; id <= 12; ++id)
    oval.select(RecordKind::Piece, id, true);
  ElevationForm loop(oval);
  loop.enter(Field::Rise, "20");
  EXPECT_EQ(loop.wayNow().stretches.size(), 12u)
      << "the way through what is selected, not the shorter one";
  EXPECT_TRUE(loop.uses(Switch::Spread) && !loop.ready());
  loop.set(Switch::Spread, true);
  ASSERT_TRUE(applyHeights(oval, loop.plan())) << loop.problem();
  EXPECT_LT(largestPlay(oval).step, 1e-6);
}

} // namespace
} // namespace trassix
