#include "editing/joining/joining.h"
#include "editing/placing/runs.h"
#include "editing/selection/selection.h"
#include "support/plan.h"

#include <gmock/gmock.h>

#include <tuple>

namespace trassix {
namespace {

using Ids = std::vector<std::int32_t>;

TEST(Dropping, WithoutSnapLandsOnTheHighestVisibleLevel) {
  Layout layout;
  dropPiece(layout, "24188", {10, 20, 30}, {}, true);
  EXPECT_EQ(layout.settings().levels.size(), 1u); // the default level came with it
  for (const std::int32_t id : {2, 3, 4})
    layout.ensureLevel(id);
  for (Level& level : layout.editSettings().levels)
    level.height = level.id == 1 ? 0 : level.id == 4 ? 200 : 80;
  layout.editSettings().levels[3].visible = false;
  dropPiece(layout, "24188", {0, 500, 0}, {}, true);
  EXPECT_TRUE(layout.pieces()[1].level == 2 && layout.pieces()[1].z == 80); // the first of two
  for (Level& level : layout.editSettings().levels)
    level.visible = false;
  layout.editSettings().activeLevel = 4;
  dropScenery(layout, "72886", {});
  dropPiece(layout, "24188", {0, 900, 0}, {}, true);
  EXPECT_EQ(layout.pieces()[2].z, 200);
  EXPECT_EQ(layout.content().scenery[0].level, 4);
}

TEST(Dropping, SnappedTakesTheTargetsLevelAndHeight) {
  Plan plan = Plan().place("24188");
  plan.layout.editPiece(1)->level = 7;
  plan.layout.editPiece(1)->z = 33;
  plan.extend("24130");
  EXPECT_TRUE(plan.layout.pieces()[1].level == 7 && plan.layout.pieces()[1].z == 33);
  EXPECT_EQ(selectedPieces(plan.layout), Ids{2});
  dropPiece(plan.layout, "24188", {}, {true, 99, 0, 0, {5, 500, 0}, 1}, true); // the target is gone
  EXPECT_TRUE(plan.layout.pieces()[2].level == 1 && plan.layout.pieces()[2].y == 500);
  Plan small;
  EXPECT_TRUE(wantsSmallTrackView(small.place("8500").layout));
  EXPECT_FALSE(wantsSmallTrackView(small.place("8500", {0, 90, 0}).layout));
}

TEST(Dropping, IncompatibleSystemsAreRefusedOnlyWithSnapping) {
  const std::tuple<const char*, const char*, double, bool> cases[] = {
      {"2200", "24188", 185, true},  {"2200", "24188", 205.1, false}, {"24922", "24188", 190, true},
      {"24922", "2200", 190, false}, {"24922", "24188", -190, false}, {"8500", "59051", 115, true},
  };
  for (const auto& [present, dropped, x, refused] : cases) {
    Plan plan = Plan().place(present);
    plan.layout.editSettings().levels[0].visible = false; // hidden track counts
    const std::uint64_t revision = plan.layout.revision();
    const EditResult result = dropPiece(plan.layout, dropped, {x, 0, 0}, {}, true);
    EXPECT_EQ(result.refusal.has_value(), refused) << dropped << " at " << x;
    EXPECT_EQ(plan.layout.revision() == revision, refused);
    EXPECT_TRUE(dropPiece(plan.layout, dropped, {x, 300, 0}, {}, false).changed());
  }
  Plan plan = Plan().place("2200");
  EXPECT_EQ(dropPiece(plan.layout, "24188", {185, 0, 0}, {}, true).refusal,
            (Notice{"Incompatible Track Systems",
                    "Marklin C-Track cannot connect to Marklin K-Track.\n\nThese track systems are "
                    "not compatible.\nUse adapter track 24922 to connect C-Track to K-Track.",
                    Notice::Icon::Warning}));
}

TEST(Dropping, SomeArticlesBringOthers) {
  Layout layout;
  dropPiece(layout, "74861", {}, {}, true);
  ASSERT_EQ(layout.pieces().size(), 6u);
  const std::int32_t ends[] = {29, 1, 14, 15, 16};
  for (std::size_t i = 0; i < std::size(ends); ++i) {
    const PlacedPiece& track = layout.pieces()[i + 1];
    EXPECT_TRUE(track.free && track.joints[0] == (Joint{1, ends[i]}));
    EXPECT_NEAR(headingDifference(track.heading, ends[i] * 12.0), 0, 1e-9);
  }
  EXPECT_EQ(selectedPieces(layout), Ids{1});
  Plan snapped; // the end it is snapped on by has no room for a track of its own
  EXPECT_EQ(snapped.place("24188").extendBy("74861", 14, 0).layout.pieces().size(), 6u);

  Plan pair = Plan().place("74618", {0, 0, 45});
  ASSERT_EQ(pair.layout.pieces().size(), 2u);
  EXPECT_EQ(pair.layout.pieces()[1].joints[0], (Joint{1, 1}));
  Plan taken; // by its connector 1: no second one there
  EXPECT_EQ(taken.place("24188").extendBy("74618", 1, 0).layout.pieces().size(), 2u);
}

TEST(Dropping, EndsThatMeetCloseAtOneHeightOnly) {
  const std::tuple<double, double, int> cases[] = {
      {0, 0, 0}, {0.9, 0, 2}, {0.9, 0.002, 0}, {1.1, 0.002, 2}};
  for (const auto& [height, grade, open] : cases) {
    Plan plan = Plan().place("24130").extend("24130", 10);
    plan.layout.editPiece(1)->z = height;
    for (const std::int32_t id : {1, 11}) // only grades may leave a little step
      plan.layout.editPiece(id)->grade = grade;
    EXPECT_EQ(openEnds(plan.extend("24130").layout), open) << height;
  }
}

TEST(Dropping, TheRoundhouseSeatsItselfAtATurntable) {
  // Drop, a turntable of track and one of scenery, the heading and centre that are taken.
  const double none = 5000;
  const std::tuple<Pose, Pose, Point, double, Point> cases[] = {
      {{699.9, 0, 50}, {none}, {0, 0}, 48, {0, 0}},
      {{0, 100, 54}, {none}, {0, 0}, 60, {0, 0}},
      {{0, -300, 355}, {none}, {0, 0}, 0, {0, 0}},
      {{700, 0, 50}, {700 + 700}, {0, 0}, 50, {}},
      {{699.9, 0, 50}, {0, 0, 5}, {none, 0}, 53, {0, 0}},
      {{0, 10, 358}, {0, 0, 200}, {none, 0}, 356, {0, 0}},
      {{650, 0, 50}, {600, 0, 5}, {0, 0}, 48, {0, 0}}, // scenery wins, though farther
      {{650, 0, 50}, {600, 0, 5}, {-51, 0}, 53, {600, 0}},
  };
  for (const auto& [drop, track, scenery, heading, centre] : cases) {
    Layout layout;
    dropScenery(layout, "74861", {none, none, 0});
    dropScenery(layout, "74861", {scenery.x, scenery.y, 0});
    dropPiece(layout, "74861", {none, none, 0}, {}, false);
    dropPiece(layout, "74861", track, {}, false);
    dropScenery(layout, "72886", drop);
    const SceneryItem& house = layout.content().scenery.back();
    const Point door = toWorld({centre.x, centre.y, heading}, {0, 346.0 / 2 + 349.6});
    const bool seated = drop.x != 700;
    EXPECT_TRUE(house.sel && !layout.content().scenery[1].sel);
    EXPECT_NEAR(house.heading, heading, 1e-9);
    EXPECT_NEAR(house.x, seated ? door.x : drop.x, 1e-9);
    EXPECT_NEAR(house.y, seated ? door.y : drop.y, 1e-9);
  }
}

TEST(Extending, ClonesAtTheOpenEnd) {
  Plan plan = Plan().place("24612");
  EXPECT_EQ(cloneAndExtend(plan.layout, 1).placed, Ids{2}); // at connector 1
  EXPECT_EQ(plan.layout.findPiece(2)->joints[0], (Joint{1, 1}));
  EXPECT_EQ(cloneAndExtend(plan.layout, 1).placed, Ids{3}); // then at 0, by its own 1
  EXPECT_EQ(plan.layout.findPiece(3)->joints[1], (Joint{1, 0}));
  EXPECT_FALSE(cloneAndExtend(plan.layout, 1).changed()); // the branch is not extended

  Plan oneSided = Plan().place("24188").place("24188", {0, 400, 0});
  oneSided.layout.editPiece(2)->joints[0] = {1, 1}; // only one of the two says so
  EXPECT_EQ(cloneAndExtend(oneSided.layout, 1).placed, Ids{3});
  EXPECT_EQ(oneSided.layout.findPiece(3)->joints[1], (Joint{1, 0}));
  oneSided.layout.editPiece(2)->helix = 5;
  EXPECT_FALSE(cloneAndExtend(oneSided.layout, 2).changed());
}

TEST(Extending, GoesOnBehindAPairThatLeavesNoEndOpen) {
  for (const bool clone : {false, true}) {
    Plan plan = Plan().place("24188").extend("74618"); // 2 and 3, of which 2 is selected
    const EditResult result =
        clone ? cloneAndExtend(plan.layout, 2) : extendSelected(plan.layout, "24172");
    EXPECT_EQ(result.placed, Ids{4});
    EXPECT_EQ(plan.layout.findPiece(3)->joint(1), (Joint{4, 0}));
    selectOnly(plan.layout, 2);
    EXPECT_FALSE(clone ? cloneAndExtend(plan.layout, 2).changed()
                       : extendSelected(plan.layout, "24172").changed());
  }
}

TEST(Extending, FromThePaletteGoesOnAtTheNewestSelectedPiece) {
  Plan plan;
  EXPECT_FALSE(extendSelected(plan.layout, "24188").changed()); // nothing selected
  plan.place("24188", {0, 300, 0}).place("24612");
  for (const std::int32_t expected : {1, 0, 2}) {
    plan.layout.clearSelection();
    plan.layout.editPiece(1)->sel = plan.layout.editPiece(2)->sel = true;
    const EditResult result = extendSelected(plan.layout, "24172");
    EXPECT_EQ(plan.layout.findPiece(result.placed.at(0))->joints[expected == 0 ? 1 : 0],
              (Joint{2, expected}));
  }
  selectOnly(plan.layout, 2);
  EXPECT_FALSE(extendSelected(plan.layout, "24172").changed());

  Plan adapters = Plan().place("2200");
  EXPECT_TRUE(extendSelected(adapters.layout, "24188").refusal.has_value());
  selectOnly(plan.layout, 1);
  const auto run = [&plan](const char* article, int count) {
    return placeRun(plan.layout, article, count, {},
                    [&] { return extendSelected(plan.layout, article); });
  };
  const std::size_t before = plan.layout.pieces().size();
  EXPECT_EQ(run("24130", 6).count, 6);
  EXPECT_TRUE(plan.layout.undo() && plan.layout.pieces().size() == before) << "one step";
  plan.layout.redo();
  EXPECT_EQ(run("24188", 1).count + run("24130", 9).count, 7) << "the oval closes";
  EXPECT_EQ(run("24130", 2).count, 0);

  extendSelected(adapters.layout, "24922"); // turned round, because its K end is connector 1
  EXPECT_EQ(adapters.layout.findPiece(2)->joints[1], (Joint{1, 1}));
}

} // namespace
} // namespace trassix
