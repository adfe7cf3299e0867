#include "panels/level_list.h"
#include "support/loose_records.h"
#include "support/plan.h"

#include <gmock/gmock.h>

#include <set>

namespace trassix {
namespace {

using testing::ElementsAre;

/// Two decks: 1 at 0 mm with two straights, joined to the one straight of 2 at 100 mm, which also
/// has a hut and a lake.
class Decks : public testing::Test {
 protected:
  Layout layout;

  Decks() {
    Plan plan;
    plan.place("24188").extend("24188", 2);
    layout.edit() = plan.layout.content();
    layout.setNextPieceId(plan.layout.nextPieceId());
    layout.ensureLevel();
    layout.ensureLevel(2);
    layout.editSettings().levels[1].height = 100;
    PlanContent& content = layout.edit();
    content.pieces[2].level = 2;
    content.pieces[2].z = 100;
    content.scenery.push_back({layout.takeId(), "72886", 0, 0, 0, 1, 1, 2, true});
    content.shapes.push_back(test::shapeOf(layout.takeId(), {{0, 0}, {9, 0}, {0, 9}}, 2));
    layout.clearSelection();
  }

  std::vector<double> heights() const {
    std::vector<double> z;
    for (const PlacedPiece& piece : layout.pieces())
      z.push_back(piece.z);
    return z;
  }
  int undos() {
    int count = 0;
    while (layout.undo())
      ++count;
    return count;
  }
};

TEST_F(Decks, asksBeforeTrackComesApart) {
  LevelList list(layout);
  EXPECT_EQ(list.openingQuestion(), "");
  list.enterHeight(1, "130");
  EXPECT_THAT(list.openingQuestion(),
              testing::StartsWith("The track comes apart at 24188 and 24188 (x 377, y 0 mm): no "
                                  "ramp there is long enough to take up 30.0 mm. "));
  layout.editPiece(2)->grade = 1; // a ramp may take it up
  list.enterHeight(1, "104");
  EXPECT_EQ(list.openingQuestion(), "");
}

TEST_F(Decks, nothingChangesUntilSomethingIsEditedWell) {
  const PlanSettings settings = layout.settings();
  const auto untouched = [&](auto edit) {
    LevelList list(layout);
    edit(list);
    EXPECT_FALSE(list.apply(layout));
    EXPECT_EQ(layout.settings(), settings);
    EXPECT_FALSE(layout.canUndo());
  };
  untouched([](LevelList&) {});
  untouched([](LevelList& list) { list.enterName(0, list.row(0).name); });
  untouched([](LevelList& list) { list.remove(list.add(), 0); });
  untouched([](LevelList& list) { list.enterHeight(1, " 100mm "); });
  for (const char* name : {"", "  ", "Level 2", " Level 2 "}) {
    untouched([name](LevelList& list) {
      list.enterName(0, name);
      EXPECT_EQ(list.firstProblem(), 0u) << name;
    });
  }
  for (const char* height : {"", "tall", "3 ft", "10000.1", "1e3"}) {
    untouched([height](LevelList& list) {
      list.enterHeight(1, height);
      EXPECT_NE(list.problem(1), "") << height;
    });
  }
  untouched([](LevelList& list) {
    EXPECT_TRUE(list.remove(0, 1));
    EXPECT_FALSE(list.remove(0, std::nullopt)); // the last one stays
    list.enterName(0, "");
  });
}

TEST_F(Decks, namesCanBeSwappedAndAreKeptWithoutBlanks) {
  LevelList list(layout);
  list.enterName(0, "Level 2");
  EXPECT_EQ(list.problem(0), "Another level has this name.");
  list.enterName(1, " Level 1");
  EXPECT_FALSE(list.firstProblem());
  EXPECT_TRUE(list.apply(layout));
  EXPECT_EQ(layout.settings().levels[0].name, "Level 2");
  EXPECT_EQ(layout.settings().levels[1].name, "Level 1");
  EXPECT_EQ(undos(), 1);
  layout.editSettings().levels[0].name = "Level 1"; // as in a plan from elsewhere
  EXPECT_FALSE(LevelList(layout).firstProblem());
}

TEST_F(Decks, aNewLevelHasAFreeNameAndAnIdThatUndoCannotBringBack) {
  LevelList list(layout);
  list.enterName(0, "Level 3");
  EXPECT_TRUE(list.remove(1, std::nullopt));
  EXPECT_TRUE(list.apply(layout));
  EXPECT_EQ(layout.pieces().size(), 2u);
  LevelList again(layout);
  const LevelList::Row& added = again.row(again.add());
  EXPECT_EQ(added.level.id, 3); // level 2 is gone, but its track may come back
  EXPECT_EQ(added.name, "Level 4");
  EXPECT_EQ(added.level.height, 100);
  EXPECT_EQ(again.row(again.add()).name, "Level 5");
  EXPECT_TRUE(again.apply(layout));
  layout.undo();
  layout.undo();
  EXPECT_EQ(layout.pieces()[2].level, 2);
  EXPECT_EQ(layout.findLevel(2), nullptr);
  LevelList back(layout); // what stands nowhere can be put somewhere
  ASSERT_EQ(back.size(), 4u);
  EXPECT_EQ(back.row(3).level.height, 100);
  EXPECT_EQ(back.contentCount(3), 3u);
  EXPECT_FALSE(back.apply(layout));
  back.remove(3, 0);
  EXPECT_TRUE(back.apply(layout));
  EXPECT_THAT(heights(), ElementsAre(0, 0, 0));

  layout.editSettings().levels[1].id = Layout::kLargestId;
  layout.editSettings().levels[1].height = 1e6;
  LevelList high(layout);
  std::set<std::int32_t> ids;
  while (high.size() < 15)
    EXPECT_EQ(high.row(high.add()).level.height, 1e6) << "no plan is higher";
  for (std::size_t i = 0; i < high.size(); ++i)
    EXPECT_TRUE(ids.insert(high.row(i).level.id).second);
}

TEST_F(Decks, contentGoesToTheHeirOrIsDeleted) {
  const PlanContent before = layout.content();
  LevelList moved(layout);
  const std::size_t third = moved.add();
  EXPECT_TRUE(moved.remove(1, third)); // on to a level that goes too
  EXPECT_EQ(moved.contentCount(1), 3u);
  EXPECT_TRUE(moved.remove(1, 0));
  EXPECT_EQ(moved.contentCount(0), 5u);
  EXPECT_TRUE(moved.apply(layout));
  for (const PlacedPiece& piece : layout.pieces())
    EXPECT_EQ(piece.level, 1);
  EXPECT_EQ(layout.content().scenery[0].level, 1);
  EXPECT_EQ(layout.content().shapes[0].level, 1);
  EXPECT_THAT(heights(), ElementsAre(0, 0, 0));
  EXPECT_EQ(undos(), 1);
  EXPECT_EQ(layout.content(), before);

  LevelList deleted(layout);
  EXPECT_TRUE(deleted.remove(0, std::nullopt));
  EXPECT_TRUE(deleted.apply(layout));
  EXPECT_EQ(layout.pieces().size(), 1u);
  EXPECT_TRUE(layout.pieces()[0].joint(0).open());
  EXPECT_EQ(layout.settings().activeLevel, 2);
  EXPECT_EQ(undos(), 1);
  EXPECT_EQ(layout.content(), before);
}

TEST_F(Decks, lockedTrackIsNotDeletedWithItsLevel) {
  layout.edit().tunnels.emplace_back().covers = {layout.pieces()[0].id};
  layout.edit().pieces[2].helix = 7;
  LevelList list(layout);
  EXPECT_FALSE(list.remove(0, std::nullopt));
  EXPECT_FALSE(list.remove(1, std::nullopt));
  EXPECT_TRUE(list.remove(1, 0));
  EXPECT_NE(list.contentLock(0), "");
}

TEST_F(Decks, trackRidesWithItsLevelAndOpensWhereItWouldGetAStep) {
  layout.edit().shapes[0].height = 5;
  const PlacedPiece joined = layout.pieces()[1];
  ASSERT_FALSE(joined.joint(1).open());
  LevelList list(layout);
  list.enterHeight(1, "12,5 cm");
  EXPECT_TRUE(list.apply(layout));
  EXPECT_THAT(heights(), ElementsAre(0, 0, 125));
  EXPECT_EQ(layout.content().shapes[0].height, 5); // counts from its level
  EXPECT_FALSE(layout.pieces()[0].joint(1).open());
  EXPECT_TRUE(layout.pieces()[1].joint(1).open());

  LevelList both(layout);
  both.enterHeight(0, "25");
  both.enterHeight(1, "25");
  EXPECT_TRUE(both.apply(layout));
  EXPECT_THAT(heights(), ElementsAre(25, 25, 25));
  EXPECT_EQ(layout.pieces()[1].joint(1), joined.joint(1)); // they meet again
  LevelList little(layout);
  little.enterHeight(1, "25.005");
  EXPECT_TRUE(little.apply(layout));
  EXPECT_TRUE(layout.pieces()[1].joint(1).open()) << "a little step is one too";
  EXPECT_EQ(undos(), 3);
}

TEST_F(Decks, theActiveLevelIsShownAndSomethingAlwaysIs) {
  layout.edit().pieces[0].sel = true;
  LevelList list(layout);
  EXPECT_EQ(list.setVisible(0, false), "");
  EXPECT_EQ(list.active(), 1u);
  EXPECT_NE(list.setVisible(1, false), "");
  EXPECT_TRUE(list.row(1).level.visible);
  EXPECT_TRUE(list.apply(layout));
  EXPECT_FALSE(layout.pieces()[0].sel); // nothing hidden is deleted by a key
  LevelList again(layout);
  again.remove(1, 0);
  EXPECT_TRUE(again.row(0).level.visible);
  EXPECT_EQ(again.active(), 0u);
}

TEST_F(Decks, outlinesComeFromTheBaseboardOrAShape) {
  layout.editSettings().baseboard = {{0, 0}, {50, 0}, {50, 50}};
  layout.edit().shapes[0].sel = true;
  const std::vector<Point> lake = layout.content().shapes[0].points;
  LevelList list(layout);
  list.outlineFromBaseboard(0);
  list.outlineFromShape(1);
  EXPECT_TRUE(list.apply(layout));
  EXPECT_EQ(layout.settings().levels[0].outline, layout.settings().baseboard);
  EXPECT_EQ(layout.settings().levels[1].outline, lake);
  EXPECT_TRUE(layout.content().shapes.empty());
  EXPECT_FALSE(LevelList(layout).shapeThere());
  EXPECT_EQ(undos(), 1);
  EXPECT_EQ(layout.content().shapes.size(), 1u);

  LevelList dropped(layout); // the shape was taken, but not kept
  dropped.outlineFromShape(0);
  dropped.setOutline(0, {});
  EXPECT_TRUE(dropped.apply(layout));
  EXPECT_EQ(layout.content().shapes.size(), 1u);
}

} // namespace
} // namespace trassix
