#include "editing/joining.h"
#include "editing/placing.h"
#include "editing/selection.h"
#include "support/plan.h"

#include <gmock/gmock.h>

#include <cmath>

namespace trassix {
namespace {

using testing::ElementsAre;

const PlacedPiece& pieceAt(const Layout& layout, std::size_t position) {
  return layout.pieces().at(position);
}

TEST(Dropping, WithoutSnapLandsOnTheHighestVisibleLevel) {
  Layout layout;
  dropPiece(layout, "24188", {10, 20, 30}, {}, true);
  EXPECT_EQ(layout.settings().levels.size(), 1u); // the default level came with it
  EXPECT_EQ(pieceAt(layout, 0).level, 1);
  EXPECT_THAT(pieceAt(layout, 0).joints, ElementsAre(Joint{}, Joint{}));

  Level upper{.id = 2, .name = "Upper", .visible = true, .height = 80, .outline = {}};
  Level twin{.id = 3, .name = "Twin", .visible = true, .height = 80, .outline = {}};
  Level hidden{.id = 4, .name = "Hidden", .visible = false, .height = 200, .outline = {}};
  auto& levels = layout.editSettings().levels;
  levels.insert(levels.end(), {upper, twin, hidden});
  dropPiece(layout, "24188", {0, 500, 0}, {}, true);
  EXPECT_EQ(pieceAt(layout, 1).level, 2);
  EXPECT_EQ(pieceAt(layout, 1).z, 80);

  for (Level& level : layout.editSettings().levels)
    level.visible = false;
  layout.editSettings().activeLevel = 4;
  dropPiece(layout, "24188", {0, 900, 0}, {}, true);
  EXPECT_EQ(pieceAt(layout, 2).level, 4);
  EXPECT_EQ(pieceAt(layout, 2).z, 200);
}

TEST(Dropping, SnappedTakesTheTargetsLevelAndHeightAndIsOneUndoStep) {
  Plan plan;
  plan.place("24188");
  const std::int32_t target = plan.last();
  plan.layout.editPiece(target)->level = 7;
  plan.layout.editPiece(target)->z = 33;
  const PlanContent before = plan.layout.content();
  plan.extend("24130");
  const PlacedPiece& added = pieceAt(plan.layout, 1);
  EXPECT_EQ(added.level, 7);
  EXPECT_EQ(added.z, 33);
  EXPECT_TRUE(added.sel);
  EXPECT_FALSE(pieceAt(plan.layout, 0).sel);
  EXPECT_EQ(added.joints[0], (Joint{target, 1}));
  EXPECT_EQ(pieceAt(plan.layout, 0).joints[1], (Joint{added.id, 0}));
  EXPECT_TRUE(plan.layout.undo());
  EXPECT_EQ(plan.layout.content(), before);

  SnapResult lost{true, 99, 0, 0, {5, 5, 0}, 1};
  dropPiece(plan.layout, "24188", {}, lost, true);
  EXPECT_EQ(plan.layout.pieces().back().level, 1); // the active level
  EXPECT_EQ(plan.layout.pieces().back().x, 5);
  EXPECT_EQ(brokenRule(plan.layout), "");
}

TEST(Dropping, IncompatibleSystemsAreRefusedOnlyWithSnapping) {
  const struct {
    const char* present;
    const char* dropped;
    double x; // of the dropped piece's connector 0
    bool refused;
  } cases[] = {
      {"2200", "24188", 185, true},  {"2200", "24188", 205.1, false}, {"24922", "24188", 190, true},
      {"24922", "2200", 190, false}, {"24922", "24188", -190, false}, {"8500", "59051", 115, true},
  };
  for (const auto& c : cases) {
    Plan plan;
    plan.place(c.present);
    const Layout before = plan.layout;
    const EditResult result = dropPiece(plan.layout, c.dropped, {c.x, 0, 0}, {}, true);
    EXPECT_EQ(result.refusal.has_value(), c.refused) << c.dropped << " at " << c.x;
    EXPECT_EQ(result.changed(), !c.refused);
    if (c.refused) {
      EXPECT_EQ(plan.layout.revision(), before.revision());
      EXPECT_TRUE(dropPiece(plan.layout, c.dropped, {c.x, 0, 0}, {}, false).changed());
    }
  }
  Plan plan;
  plan.place("2200");
  const EditResult result = dropPiece(plan.layout, "24188", {185, 0, 0}, {}, true);
  EXPECT_EQ(*result.refusal,
            (Notice{"Incompatible Track Systems",
                    "Marklin C-Track cannot connect to Marklin K-Track.\n\nThese track systems are "
                    "not compatible.\nUse adapter track 24922 to connect C-Track to K-Track.",
                    Notice::Icon::Warning}));
  EXPECT_FALSE(dropPiece(plan.layout, "no such article", {}, {}, true).changed());
}

TEST(Dropping, TheTurntableBringsItsTracks) {
  Layout layout;
  dropPiece(layout, "74861", {}, {}, true);
  ASSERT_EQ(layout.pieces().size(), 6u);
  const PlacedPiece& turntable = pieceAt(layout, 0);
  const std::vector<std::int32_t> ends{29, 1, 14, 15, 16};
  for (std::size_t i = 0; i < ends.size(); ++i) {
    const PlacedPiece& track = pieceAt(layout, i + 1);
    EXPECT_TRUE(track.free && !track.sel);
    EXPECT_EQ(track.joints[0], (Joint{turntable.id, ends[i]}));
    EXPECT_NEAR(headingDifference(track.heading, ends[i] * 12.0), 0, 1e-9);
  }
  EXPECT_EQ(selectedPieces(layout), std::vector<std::int32_t>{turntable.id});
  EXPECT_EQ(brokenRule(layout), "");
  layout.undo();
  EXPECT_TRUE(layout.pieces().empty());

  Plan plan; // snapped on by end 14, which then has no room for a track of its own
  plan.place("24188").extendBy("74861", 14, 0);
  EXPECT_EQ(plan.layout.pieces().size(), 6u);
  EXPECT_EQ(brokenRule(plan.layout), "");
}

TEST(Dropping, PairsComeJoined) {
  Plan plan;
  plan.place("74618", {0, 0, 45});
  ASSERT_EQ(plan.layout.pieces().size(), 2u);
  EXPECT_EQ(pieceAt(plan.layout, 1).joints[0], (Joint{plan.last(), 1}));
  EXPECT_TRUE(pieceAt(plan.layout, 0).sel && !pieceAt(plan.layout, 1).sel);
  EXPECT_NEAR(largestPlay(plan.layout).distance, 0, 1e-9);
  deleteSelection(plan.layout); // the other one of the pair goes too
  EXPECT_TRUE(plan.layout.pieces().empty());

  Plan snapped; // by its connector 1: that end is taken, so no second one
  snapped.place("24188").extendBy("74618", 1, 0);
  EXPECT_EQ(snapped.layout.pieces().size(), 2u);
}

TEST(Dropping, TheLastPieceOfACircleClosesIt) {
  Plan plan;
  plan.place("24130").extend("24130", 11);
  EXPECT_EQ(openEnds(plan.layout), 0);
  // Ends that meet at another height stay open.
  Plan ramp;
  ramp.place("24130").extend("24130", 10);
  ramp.layout.editPiece(pieceAt(ramp.layout, 0).id)->z = 1.1;
  ramp.extend("24130");
  EXPECT_EQ(openEnds(ramp.layout), 2);
}

TEST(Dropping, TheRoundhouseSeatsItselfAtATurntable) {
  const struct {
    Pose drop;
    bool seated;
    double heading;
  } cases[] = {
      {{699.9, 0, 50}, true, 48},
      {{0, 100, 54}, true, 60},
      {{0, -300, 355}, true, 0},
      {{700, 0, 50}, false, 50},
  };
  for (const auto& c : cases) {
    Layout layout;
    dropScenery(layout, "74861", {5000, 0, 0});
    dropScenery(layout, "74861", {0, 0, 0});
    const EditResult result = dropScenery(layout, "72886", c.drop);
    const SceneryItem& house = layout.content().scenery.back();
    EXPECT_EQ(result.placed, std::vector<std::int32_t>{house.id});
    EXPECT_TRUE(house.sel && !layout.content().scenery[1].sel);
    const double distance = c.seated ? 346.0 / 2 + 349.6 : c.drop.x;
    EXPECT_NEAR(house.heading, c.heading, 1e-9);
    EXPECT_NEAR(std::hypot(house.x, house.y), distance, 1e-9);
    EXPECT_NEAR(house.x, c.seated ? -std::sin(toRadians(c.heading)) * distance : 700, 1e-9);
    layout.undo();
    EXPECT_EQ(layout.content().scenery.size(), 2u);
  }
  Layout layout;
  EXPECT_FALSE(dropScenery(layout, "no such item", {}).changed());
  EXPECT_FALSE(layout.canUndo());
}

TEST(Extending, ClonesAtTheOpenEnd) {
  Plan plan;
  plan.place("24612");
  const std::int32_t source = plan.last();
  EditResult first = cloneAndExtend(plan.layout, source); // at connector 1
  ASSERT_TRUE(first.changed());
  EXPECT_EQ(plan.layout.findPiece(first.placed[0])->joints[0], (Joint{source, 1}));
  EditResult second = cloneAndExtend(plan.layout, source); // then at 0, by its own 1
  EXPECT_EQ(plan.layout.findPiece(second.placed[0])->joints[1], (Joint{source, 0}));
  EXPECT_EQ(selectedPieces(plan.layout), second.placed);
  const std::uint64_t revision = plan.layout.revision();
  EXPECT_FALSE(cloneAndExtend(plan.layout, source).changed()); // the branch is not extended
  EXPECT_EQ(plan.layout.revision(), revision);

  Plan oneSided;
  oneSided.place("24188").place("24188", {0, 400, 0});
  oneSided.layout.editPiece(2)->joints[0] = {1, 1}; // only one of the two says so
  EXPECT_EQ(oneSided.layout.findPiece(cloneAndExtend(oneSided.layout, 1).placed.at(0))->joints[1],
            (Joint{1, 0}));
  oneSided.layout.editPiece(2)->helix = 5;
  EXPECT_FALSE(cloneAndExtend(oneSided.layout, 2).changed());
}

TEST(Extending, FromThePaletteGoesOnAtTheNewestSelectedPiece) {
  Plan plan;
  EXPECT_FALSE(extendSelected(plan.layout, "24188").changed()); // nothing selected
  plan.place("24188", {0, 300, 0}).place("24612");
  selectAll(plan.layout);
  const std::int32_t turnout = plan.last();
  for (const std::int32_t expected : {1, 0, 2}) {
    const EditResult result = extendSelected(plan.layout, "24172");
    ASSERT_TRUE(result.changed());
    const std::size_t own = expected == 0 ? 1 : 0;
    EXPECT_EQ(plan.layout.findPiece(result.placed[0])->joints[own], (Joint{turnout, expected}));
    selectOnly(plan.layout, turnout);
  }
  EXPECT_FALSE(extendSelected(plan.layout, "24172").changed());

  Plan adapters;
  adapters.place("2200");
  EXPECT_TRUE(extendSelected(adapters.layout, "24188").refusal.has_value());
  const EditResult turned = extendSelected(adapters.layout, "24922"); // its K end is connector 1
  EXPECT_EQ(adapters.layout.findPiece(turned.placed.at(0))->joints[1], (Joint{1, 1}));
  selectOnly(adapters.layout, 1);
  EXPECT_EQ(extendSelected(adapters.layout, "7268").placed.size(),
            1u); // joined by its 1: no second
}

TEST(Extending, TheFirstSmallPieceAsksForItsView) {
  Plan plan;
  plan.place("8500");
  EXPECT_TRUE(wantsSmallTrackView(plan.layout));
  plan.place("8500", {0, 90, 0});
  EXPECT_FALSE(wantsSmallTrackView(plan.layout));
}

} // namespace
} // namespace trassix
