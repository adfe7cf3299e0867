#include "editing/helix/helix_edits.h"
#include "editing/joining/joining.h"
#include "editing/scenery/annotations.h"
#include "editing/selection/selection.h"
#include "panels/property_sheet.h"
#include "support/loose_records.h"
#include "support/plan.h"
#include "support/print_records.h"

#include <gmock/gmock.h>

namespace trassix {
namespace {

using testing::HasSubstr;

/// A joined straight, turnout and curve (1 to 3), a free straight (4), and one of each other
/// record.
struct Sample {
  Layout layout;
  std::int32_t label, shape, tape, scenery;

  Sample() {
    Plan plan;
    plan.place("24188").extend("24611").extend("24130").place("24172", {500, 300, 90});
    layout = std::move(plan.layout);
    label = addLabel(layout, {10, 20}, "Depot");
    shape = addShape(layout, {{0, 0}, {90, 0}, {90, 60}});
    tape = addMeasurement(layout, {0, 0}, {300, 400});
    scenery = layout.takeId();
    layout.edit().scenery.push_back({scenery, "72886", 0, 0, 30});
    layout.editSettings().levels.push_back({2, "Upper", true, 80, false, {}, {}});
    layout.clearSelection();
  }

  /// Pieces by their ids, everything else by its own.
  void select(const std::vector<std::int32_t>& ids) {
    layout.clearSelection();
    PlanContent& content = layout.edit();
    const auto mark = [&ids](auto& records) {
      for (auto& record : records)
        record.sel = std::ranges::find(ids, record.id) != ids.end();
    };
    mark(content.pieces);
    mark(content.labels);
    mark(content.shapes);
    mark(content.scenery);
    mark(content.measurements);
  }

  const PlacedPiece& piece(std::int32_t id) const { return *layout.findPiece(id); }
};

std::string textOf(const PropertySheet& sheet) {
  std::string text = sheet.title + "\n";
  for (const Property& row : sheet.rows) {
    text += row.name + (row.edit ? " = " : ": ") + row.value;
    if (!row.note.empty())
      text += " (" + row.note + ")";
    text += "\n";
  }
  return text;
}

Property rowOf(const Layout& layout, std::string_view key) {
  const PropertySheet sheet = propertySheetOf(layout);
  const auto row = std::ranges::find(sheet.rows, key, &Property::key);
  return row == sheet.rows.end() ? Property() : *row;
}

PropertyAnswer enter(Layout& layout, std::string_view key, const PropertyValue& value,
                     const Confirm& confirm) {
  const Property row = rowOf(layout, key);
  return row.edit ? row.edit(layout, value, confirm) : false;
}

TEST(PropertySheet, showsWhatIsSelected) {
  Sample sample;
  const auto shown = [&sample](const std::vector<std::int32_t>& ids) {
    sample.select(ids);
    return textOf(propertySheetOf(sample.layout));
  };
  EXPECT_EQ(shown({}), "Plan\nPieces: 4\nTrack length: 736.8 mm\nOpen ends: 5\n"
                       "Extent: 811.8 \u00d7 713.5 mm\nScenery: 1\nLevels: 2\n"
                       "Active level: Level 1\n");
  EXPECT_EQ(shown({2}),
            "24611 Left Turnout R2=437.5mm 24.3\u00b0\nArticle: 24611\n"
            "System: Märklin C\nKind: Left turnout\nLength: 188.3 mm\n"
            "Radius: 437.5 mm\nAngle: 24.3\u00b0\nPosition x = 188.3 mm\n"
            "Position y = 0.0 mm\nHeading = 0\u00b0\n"
            "Height = 0.0 mm (All track joined to it goes along.)\n"
            "Height of end 2 = 0.0 mm\nHeight of end 3 = 0.0 mm\nGrade = 0 % (From end 1 "
            "to end 2; what hangs on the piece goes along.)\n"
            "Level = Level 1 (Joined to other track: it keeps its height.)\n"
            "Colour = none\nOpen ends: no. 3\n");
  sample.layout.editPiece(4)->grade = -1.2;
  sample.layout.editPiece(4)->level = 9;
  EXPECT_THAT(shown({4}),
              testing::AllOf(HasSubstr("Height of end 2 = -3.6 mm\nGrade = -2.1 % (From "
                                       "end 1 to end 2; what hangs on the piece goes "
                                       "along.)\nLevel = Level 9 (The track is lifted with "
                                       "it.)\n"),
                             HasSubstr("Open ends: 2 of 2\n")));
  sample.layout.editPiece(4)->level = 2;
  EXPECT_EQ(shown({1, 4, sample.label}),
            "Selection\nPieces: 2\nLabels: 1\nTrack length: 360.0 mm\nArticle: various\n"
            "System: Märklin C\nHeight: 0.0 mm\n"
            "Level = various (Joined to other track: it keeps its height.)\nColour = none\n");
  EXPECT_EQ(shown({sample.label}),
            "Label\nText = Depot\nPosition x = 10.0 mm\nPosition y = 20.0 mm\n");
  EXPECT_EQ(shown({sample.shape}), "Shape\nLabel = \nCorners: 3\nColour = own\nOpacity = 55 %\n"
                                   "Outline only = no\nHeight = 0.0 mm\nLevel = Level 1\n"
                                   "Corner 1 x = 0.0 mm\nCorner 1 y = 0.0 mm\n"
                                   "Corner 2 x = 90.0 mm\nCorner 2 y = 0.0 mm\n"
                                   "Corner 3 x = 90.0 mm\nCorner 3 y = 60.0 mm\n");
  EXPECT_THAT(shown({sample.scenery}),
              testing::AllOf(HasSubstr("Heading = 30\u00b0\nWidth = "), HasSubstr("Depth = ")));
  sample.layout.editSettings().levels[1].name = "Level 1"; // as in a plan from elsewhere
  sample.select({4});
  EXPECT_EQ(rowOf(sample.layout, "level").chosen, std::size_t{1});
  sample.layout.editSettings().units = 2;
  EXPECT_EQ(shown({sample.tape}), "Measurement\nLength: 19.685 in\n");

  Layout round;
  round.edit().pieces.push_back(test::loosePiece(1, "74861"));
  round.edit().pieces[0].sel = true;
  EXPECT_THAT(textOf(propertySheetOf(round)), HasSubstr("Open ends: 30 of 30\n"));
}

/// Answers every question and counts them.
struct Answers {
  bool yes = true;
  int asked = 0;
  std::function<bool(const Question&)> confirm = [this](const Question&) {
    ++asked;
    return yes;
  };
};

TEST(PropertyChange, eachIsOneUndoStepAndShownAfterwards) {
  Sample sample;
  Answers answers;
  const struct {
    std::vector<std::int32_t> selected;
    const char* key;
    PropertyValue value;
    const char* shown;
  } cases[] = {
      {{4}, "x", "12,5 cm", "125.0 mm"},
      {{4}, "y", "-30", "-30.0 mm"},
      {{4}, "heading", "-45", "315\u00b0"},
      {{2}, "height", "1 in", "25.4 mm"},
      {{4}, "grade", "-2,5 %", "-2.5 %"},
      {{4}, "grade", "1\u00b0", "1.7 %"},
      {{4}, "endHeight", "5", "5.0 mm"},
      {{1, 4, sample.scenery, sample.shape}, "level", std::size_t{1}, "Upper"},
      {{1, 4}, "color", OwnColor(Color{1, 2, 3}), "own"},
      {{sample.label}, "text", "Shed", "Shed"},
      {{sample.label}, "x", "5", "5.0 mm"},
      {{sample.shape}, "text", "", ""},
      {{sample.shape}, "text", "Pond", "Pond"},
      {{sample.shape}, "color", OwnColor(Color{9, 8, 7}), "own"},
      {{sample.shape}, "opacity", "20", "20 %"},
      {{sample.shape}, "outline", true, "yes"},
      {{sample.shape}, "height", "40", "40.0 mm"},
      {{sample.shape}, "corner", "-7", "-7.0 mm"},
      {{sample.scenery}, "y", "77", "77.0 mm"},
      {{sample.scenery}, "heading", "405", "45\u00b0"},
      {{sample.scenery}, "width", "333", "333.0 mm"},
      {{sample.scenery}, "depth", "50", "50.0 mm"},
  };
  for (const auto& change : cases) {
    sample.select(change.selected);
    const Property row = rowOf(sample.layout, change.key);
    SCOPED_TRACE(propertySheetOf(sample.layout).title + ": " + row.name);
    const PlanContent before = sample.layout.content();
    const bool same = row.value == change.shown && !std::holds_alternative<OwnColor>(change.value);
    const PropertyAnswer answer = enter(sample.layout, change.key, change.value, answers.confirm);
    EXPECT_EQ(answer.problem, "");
    EXPECT_EQ(answer.changed, !same);
    EXPECT_EQ(rowOf(sample.layout, change.key).value, change.shown);

    const std::uint64_t revision = sample.layout.revision();
    enter(sample.layout, change.key, change.value, answers.confirm);
    EXPECT_EQ(sample.layout.revision(), revision) << "to enter it again is no step";
    if (same)
      continue;
    sample.layout.undo();
    EXPECT_EQ(sample.layout.content(), before);
    sample.layout.redo();
  }
  EXPECT_EQ(answers.asked, 0);
}

TEST(PropertyChange, refusedInputChangesNothing) {
  Sample sample;
  Answers answers{false};
  const std::int32_t small = sample.layout.takeId();
  sample.layout.edit().scenery.push_back({small, "bufferstop"}); // 30 mm wide
  const struct {
    std::int32_t selected;
    const char* key;
    PropertyValue value;
    const char* problem;
  } cases[] = {
      {4, "x", "far", "A length is expected"},
      {4, "x", "2000 m", "At most 1000000.0 mm"},
      {4, "heading", "", "An angle"},
      {4, "grade", "steep", "A grade is expected"},
      {4, "height", "-11 m", "At least -10000.0 mm"},
      {4, "level", std::size_t{7}, ""},
      {4, "text", "no such row", ""},
      {4, "fixed", "5", ""},
      {4, "x", "500.00", ""}, // shown the same: the rest of 0.04 mm stays
      {sample.label, "text", " \t", "A label needs a text."},
      {sample.shape, "opacity", "101 %", "A share"},
      {sample.scenery, "width", "0", "At least 1.0 mm"},
      {small, "depth", "50 m", "At most 30000.0 mm"}, // a thousandfold
      {sample.tape, "x", "5", ""},
  };
  sample.layout.editPiece(4)->x = 500.04;
  for (const auto& change : cases) {
    sample.select({change.selected});
    const std::uint64_t revision = sample.layout.revision();
    const PropertyAnswer answer = enter(sample.layout, change.key, change.value, answers.confirm);
    EXPECT_FALSE(answer.changed || answer.refusal);
    EXPECT_THAT(answer.problem, HasSubstr(change.problem));
    EXPECT_EQ(answer.problem.empty(), *change.problem == '\0');
    EXPECT_EQ(sample.layout.revision(), revision);
  }

  // Taken apart from graded track only when the user agrees; locked track not at all.
  sample.layout.editPiece(2)->grade = 2;
  sample.select({1});
  const std::uint64_t revision = sample.layout.revision();
  EXPECT_FALSE(enter(sample.layout, "x", "40", answers.confirm).changed);
  EXPECT_EQ(answers.asked, 1);
  EXPECT_EQ(sample.layout.revision(), revision);
  answers.yes = true;
  EXPECT_TRUE(enter(sample.layout, "x", "40", answers.confirm).changed);
  EXPECT_FALSE(!sample.piece(1).joint(1).open());
  sample.layout.undo();

  sample.layout.editPiece(3)->helix = 1;
  sample.select({3});
  EXPECT_EQ(enter(sample.layout, "height", "9", answers.confirm).refusal.value().title,
            "Helix track is locked");
  EXPECT_TRUE(enter(sample.layout, "heading", "9", answers.confirm).refusal);
  sample.layout.edit().tunnels.emplace_back().portalA = sample.scenery;
  sample.select({sample.scenery}); // a portal
  EXPECT_TRUE(enter(sample.layout, "y", "9", answers.confirm).refusal);
}

TEST(PropertySheet, showsAHelixAsOneThing) {
  Layout layout;
  Answers answers;
  placeHelix(layout, usualHelix(*findHelixKit("helix_2_0_r1")).plan, 1);
  EXPECT_EQ(textOf(propertySheetOf(layout)),
            "Helix R1\nSystem: Märklin C\nTurns: 2, clockwise uphill\n"
            "Pitch = 80.0 mm (Rise of one turn. Ends that are joined stay where they are, as many "
            "as can.)\nHeight = 0.0 mm (Of its bottom. All track joined to it goes along.)\n"
            "Height of the top: 160.0 mm\nClimb: 160.0 mm\nGrade: 3.5 %, felt 5.8 %\n"
            "Clearance: 60.0 mm\nNeeded, no wire: 60 mm: enough\nNeeded for wire: 90 mm: too "
            "low\nExit: Above, straight on\nBoard: 800.0 \u00d7 800.0 mm\n"
            "Pieces: 24 \u00d7 24130\nLevel = Level 1\nColour = none\n");
  const auto plan = [&layout] { return planOfHelix(layout, layout.content().helices[0]).value(); };
  EXPECT_TRUE(enter(layout, "pitch", "90", answers.confirm).changed);
  EXPECT_TRUE(enter(layout, "height", "25", answers.confirm).changed);
  EXPECT_NEAR(plan().pitch, 90, 1e-6);
  EXPECT_NEAR(plan().height, 25, 1e-6);
  EXPECT_FALSE(enter(layout, "pitch", "79", answers.confirm).problem.empty());
  layout.edit().helices[0].variant = "of another program";
  EXPECT_EQ(textOf(propertySheetOf(layout)), "Helix\nKit: of another program\nPieces: 24\n");
  layout.clearSelection();
  layout.select(RecordKind::Piece, layout.pieces()[0].id, true);
  EXPECT_NE(propertySheetOf(layout).title, "Helix") << "a part of it";
}

TEST(PropertyChange, heightsNeverLeaveAStepInTheTrack) {
  Sample sample;
  Answers answers;
  sample.layout.editPiece(3)->z = 10;
  const auto heights = [&sample] {
    std::vector<double> z;
    for (const PlacedPiece& piece : sample.layout.pieces())
      z.push_back(piece.z);
    return z;
  };
  sample.select({2});
  enter(sample.layout, "height", "30", answers.confirm);
  EXPECT_THAT(heights(), testing::ElementsAre(30, 30, 40, 0)) << "the joined track went along";

  sample.select({1, 2});
  enter(sample.layout, "level", std::size_t{1}, answers.confirm);
  EXPECT_THAT(heights(), testing::ElementsAre(30, 30, 40, 0)) << "piece 3 stays where it is";
  sample.select({3, 4});
  enter(sample.layout, "level", std::size_t{1}, answers.confirm);
  EXPECT_THAT(heights(), testing::ElementsAre(30, 30, 40, 0)) << "joined to what is not selected";
  sample.select({4});
  enter(sample.layout, "level", std::size_t{0}, answers.confirm);
  enter(sample.layout, "level", std::size_t{1}, answers.confirm);
  EXPECT_EQ(sample.piece(4).z, 0);
  EXPECT_EQ(sample.piece(4).level, 2);

  // Ends that meet at the new height are joined.
  sample.layout.editPiece(4)->heading = 180;
  sample.layout.editPiece(4)->x = 0;
  sample.layout.editPiece(4)->y = 0;
  enter(sample.layout, "height", "30", answers.confirm);
  EXPECT_EQ(sample.piece(4).joint(0), (Joint{1, 0}));

  // Joined across levels of different heights, it is lifted by none of them.
  for (const std::size_t level : {0u, 1u}) {
    for (const std::vector<std::int32_t>& ids : {std::vector{1}, {1, 2, 3, 4}}) {
      sample.select(ids);
      enter(sample.layout, "level", level, answers.confirm);
      EXPECT_THAT(heights(), testing::ElementsAre(30, 30, 40, 30)) << level;
    }
  }
}

} // namespace
} // namespace trassix
