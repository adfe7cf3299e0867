#include "document/record_kinds.h"
#include "editing/canvas/canvas_script.h"
#include "editing/scenery/annotations.h"

#include <gmock/gmock.h>

namespace trassix {
namespace {

using test::CanvasScript;
using testing::ElementsAre;

/// The same hand movements on a selected shape and, with their tool, on baseboard and level.
class Corners : public testing::TestWithParam<PolygonUse::Kind> {
 public:
  using Kind = PolygonUse::Kind;
  CanvasScript script;

  Corners() {
    const std::vector<Point> square{{0, 0}, {400, 0}, {400, 400}, {0, 400}};
    PlanSettings& settings = script.host.plan.editSettings();
    if (GetParam() == Kind::Shape) {
      addShape(script.host.plan, square);
      return;
    }
    (GetParam() == Kind::Baseboard ? settings.baseboard : settings.levels[0].outline) = square;
    script.host.workspace.setToolMode(ToolMode::BoardCorners, {GetParam(), settings.levels[0].id});
    script.canvas.modeChanged();
  }
  const std::vector<Point>& now() const {
    const PlanSettings& settings = script.host.plan.settings();
    return GetParam() == Kind::Shape       ? script.content().shapes.at(0).points
           : GetParam() == Kind::Baseboard ? settings.baseboard
                                           : settings.levels[0].outline;
  }
};

TEST_P(Corners, AreDraggedAddedRemovedAndMovedByNumbers) {
  script.drag({400, 400}, {500, 450});
  EXPECT_THAT(now(), ElementsAre(Point{0, 0}, Point{400, 0}, Point{500, 450}, Point{0, 400}));
  script.drag({200, 0}, {200, -100}); // out of an edge
  EXPECT_EQ(now()[1], (Point{200, -100}));
  script.click({200, -100});
  EXPECT_TRUE(script.key(Key::Backspace)); // as Del comes in
  EXPECT_EQ(now().size(), 4U);
  EXPECT_FALSE(script.key(Key::Backspace)); // none is chosen any more
  script.doubleClick({200, 0});
  EXPECT_EQ(now()[1], (Point{200, 0}));
  script.takeFromMenu({200, 0}, "Remove Corner");
  EXPECT_EQ(now().size(), 4U);
  script.takeFromMenu({100, 0}, "Add Corner Here");
  EXPECT_EQ(now()[1], (Point{100, 0}));
  script.host.typed = "120 mm; -30,5";
  script.takeFromMenu({100, 0}, "Corner Position");
  EXPECT_EQ(now()[1], (Point{120, -30.5}));

  const std::vector<Point> before = now();
  script.dragTo({0, 0}, {900, 900});
  EXPECT_EQ(script.host.seen.hint, "The outline crosses or touches itself.");
  script.canvas.cancel();
  script.drag({0, 0}, {900, 900});
  EXPECT_EQ(script.host.notices.size(), 1U);
  EXPECT_EQ(now(), before);
}

INSTANTIATE_TEST_SUITE_P(OfShapeBoardAndLevel, Corners,
                         testing::Values(PolygonUse::Kind::Shape, PolygonUse::Kind::Baseboard,
                                         PolygonUse::Kind::LevelOutline));

TEST(CornerHandles, AreThereForTheOnlySelectedShapeOnly) {
  CanvasScript script;
  const std::int32_t shape = addShape(script.host.plan, {{0, 0}, {400, 0}, {400, 400}, {0, 400}});
  addLabel(script.host.plan, {900, 900}, "yard");
  script.host.plan.select(RecordKind::Shape, shape, true);
  script.drag({400, 400}, {440, 400}); // both go as a whole
  EXPECT_EQ(script.content().shapes[0].points[0], (Point{40, 0}));
}

} // namespace
} // namespace trassix
