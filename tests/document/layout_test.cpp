#include "document/layout.h"
#include "document/plan_changes.h"
#include "document/undo_scope.h"
#include "support/loose_records.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace trassix {
namespace {

PlacedPiece pieceAt(std::int32_t id, double x) {
  return test::loosePiece(id, "", {x, 0}, {{id + 1, 0}, {}});
}

TEST(Layout, undoesAtMostFiftyEditsAndForgetsTheUndoneOnesAtTheNextEdit) {
  Layout layout;
  for (int i = 0; i <= 51; ++i) {
    layout.pushHistory();
    layout.edit().pieces.push_back(pieceAt(layout.takeId(), i));
    layout.edit().measurements.push_back({i, {0, 0}, {1, 1}, false});
  }
  layout.editSettings().baseboard = {{0, 0}, {1, 0}, {1, 1}};
  const PlanContent newest = layout.content();
  int undone = 0;
  while (layout.undo())
    ++undone;
  EXPECT_EQ(undone, 50);
  EXPECT_EQ(layout.pieces().size(), 2U);
  EXPECT_EQ(layout.content().measurements.size(), 2U);
  EXPECT_EQ(layout.settings().baseboard.size(), 3U) << "settings are not under undo";
  while (layout.redo()) {
  }
  EXPECT_EQ(layout.content(), newest);
  EXPECT_TRUE(layout.canUndo());

  layout.undo();
  EXPECT_TRUE(layout.canRedo());
  layout.pushHistory();
  EXPECT_FALSE(layout.canRedo());
}

TEST(Layout, findsPiecesInAnyOrderOfIdsAfterAnyEdit) {
  for (const std::vector<std::int32_t>& ids :
       {std::vector{1, 2, 3, 7, 8, 9}, {9, 8, 7, 3, 2, 1}, {7, 3, 9, 1, 8, 2}}) {
    Layout layout;
    const auto check = [&layout] {
      for (std::int32_t id = -1; id < 12; ++id) {
        const auto at = std::ranges::find(layout.pieces(), id, &PlacedPiece::id);
        EXPECT_EQ(layout.findPiece(id), at == layout.pieces().end() ? nullptr : &*at) << id;
        EXPECT_EQ(layout.editPiece(id), layout.findPiece(id)) << id;
      }
    };
    for (const std::int32_t id : ids)
      layout.edit().pieces.push_back(pieceAt(id, 0));
    check();
    layout.pushHistory();
    for (const std::int32_t id : {5, 0, 10}) {
      layout.edit().pieces.push_back(pieceAt(id, 0));
      EXPECT_NE(layout.findPiece(id), nullptr);
    }
    check();
    std::ranges::rotate(layout.edit().pieces, layout.edit().pieces.begin() + 2);
    check();
    layout.edit().pieces.erase(layout.edit().pieces.begin());
    layout.edit().pieces[0].id = 11;
    check();
    const Layout copy = layout;
    layout.undo();
    check();
    layout.redo();
    check();
    layout.clear();
    check();
    EXPECT_NE(copy.findPiece(11), nullptr);
  }
}

TEST(Layout, stampsEveryChangeAndNothingElse) {
  Layout layout;
  layout.edit().pieces = {pieceAt(1, 0)};
  const std::uint64_t revision = layout.revision();
  layout.clearSelection();
  layout.undo();
  layout.editPiece(2);
  layout.pushHistory();
  EXPECT_EQ(layout.revision(), revision);
  layout.undo();
  EXPECT_NE(layout.revision(), revision);

  const std::uint64_t document = layout.documentStamp();
  layout.select(RecordKind::Piece, 1, true);
  const std::uint64_t selected = layout.selectionStamp();
  layout.select(RecordKind::Piece, 1, true);
  layout.select(RecordKind::Label, 1, true);
  EXPECT_EQ(layout.selectionStamp(), selected);
  layout.clearSelection();
  EXPECT_NE(layout.selectionStamp(), selected);
  EXPECT_FALSE(layout.pieces()[0].sel);
  EXPECT_EQ(layout.documentStamp(), document);
  layout.editSettings();
  EXPECT_NE(layout.documentStamp(), document);
  EXPECT_LT(layout.contentStamp(), layout.settingsStamp());
}

TEST(Layout, tellsWhichRecordsChangedAlsoAcrossUndo) {
  Layout layout;
  layout.edit().pieces = {pieceAt(1, 0), pieceAt(2, 0), pieceAt(3, 0)};
  ChangeTracker tracker;
  EXPECT_EQ(tracker.update(layout).of(RecordKind::Piece), (ChangedIds{{1, 2, 3}, {}, {}}));
  layout.pushHistory();
  layout.edit().pieces = {pieceAt(4, 0), pieceAt(1, 5), pieceAt(3, 0)};
  layout.edit().labels = {{9, "", 0, 0, true}};
  const PlanChanges changes = tracker.update(layout);
  EXPECT_EQ(changes.of(RecordKind::Piece), (ChangedIds{{4}, {1}, {2}}));
  EXPECT_EQ(changes.of(RecordKind::Label), (ChangedIds{{9}, {}, {}}));
  layout.clearSelection();
  EXPECT_FALSE(tracker.update(layout).any());
  layout.undo();
  EXPECT_EQ(tracker.update(layout).of(RecordKind::Piece), (ChangedIds{{2}, {1}, {4}}));
}

TEST(Layout, givesUnusedIdsWhenTheLargestIsTaken) {
  Layout layout;
  layout.edit().pieces = {pieceAt(Layout::kLargestId, 0), pieceAt(2, 0)};
  layout.edit().labels = {{1, "", 0, 0, false}};
  layout.setNextPieceId(Layout::kLargestId + 1);
  EXPECT_EQ(layout.takeId(), 3);
  EXPECT_EQ(layout.takeId(), 4);
}

TEST(Layout, mirrorsTheLastGradeRun) {
  Layout layout;
  layout.startGradeRun(4, 1, 2.5);
  layout.startGradeRun(9, 0, -1.0);
  EXPECT_EQ(layout.content().currentGrade, (CurrentGrade{true, -1.0, 9, 0}));
  layout.startGradeRun(4, 2, 3.0);
  EXPECT_EQ(layout.content().gradeRuns, (std::vector<GradeRun>{{3.0, 4, 2}, {-1.0, 9, 0}}));
  EXPECT_EQ(layout.content().currentGrade, (CurrentGrade{true, -1.0, 9, 0}));
  layout.edit().gradeRuns.clear();
  layout.edit().mirrorLastGradeRun();
  EXPECT_EQ(layout.content().currentGrade, CurrentGrade{});
}

TEST(Layout, levelsHaveTheirPresetNamesAndColours) {
  Layout layout;
  EXPECT_TRUE(layout.levelVisible(5));
  layout.ensureLevel();
  layout.ensureLevel();
  layout.ensureLevel(7);
  layout.ensureLevel(1);
  ASSERT_EQ(layout.settings().levels.size(), 2U);
  const Level first{1, "Level 1", true, 0, false, {180, 200, 220}, {}};
  const Level seventh{7, "Level 7", true, 0, false, {180, 180, 180}, {}};
  EXPECT_EQ(layout.settings().levels, (std::vector<Level>{first, seventh}));
  layout.editSettings().levels[1].visible = false;
  layout.editSettings().levels[1].height = 60;
  EXPECT_FALSE(layout.levelVisible(7));
  EXPECT_EQ(layout.levelHeight(7), 60);
  EXPECT_EQ(layout.levelHeight(2), 0);
}

TEST(UndoScope, keepsOneStepOrPutsEverythingBack) {
  Layout start;
  start.edit().pieces = {pieceAt(start.takeId(), 0)};
  start.pushHistory();
  start.undo();
  const auto check = [&start](const char* name, bool changes, auto edit) {
    SCOPED_TRACE(name);
    for (const bool keep : {false, true}) {
      Layout plan = start;
      {
        UndoScope step(plan);
        edit(plan);
        EXPECT_EQ(keep && step.keep(), keep && changes);
      }
      EXPECT_EQ(plan.nextPieceId() != start.nextPieceId(),
                keep && changes && plan.pieces().size() > 1);
      EXPECT_EQ(plan.canRedo(), !(keep && changes));
      EXPECT_EQ(plan.undo(), keep && changes);
      EXPECT_TRUE(plan.content() == start.content());
      EXPECT_FALSE(plan.canUndo());
    }
  };
  check("nothing", false, [](Layout&) {});
  check("what is selected", false, [](Layout& plan) { plan.editPiece(1)->sel = true; });
  check("there and back", false, [](Layout& plan) { plan.editPiece(1)->x += plan.takeId() * 0; });
  check("a level", true, [](Layout& plan) { plan.ensureLevel(4); });
  check("two edits", true, [](Layout& plan) {
    for (int i = 0; i < 2; ++i) {
      UndoScope inner(plan);
      plan.edit().pieces.push_back(pieceAt(plan.takeId(), i));
      EXPECT_TRUE(inner.keep());
    }
  });
  check("one of two refused", true, [](Layout& plan) {
    plan.editPiece(1)->x = 5;
    {
      const UndoScope refused(plan);
      plan.editPiece(1)->x = 9;
    }
    EXPECT_EQ(plan.findPiece(1)->x, 5);
  });
}

} // namespace
} // namespace trassix
