#include "measures/measure_format.h"
#include "panels/helix_form.h"

#include <gmock/gmock.h>

namespace trassix {
namespace {

using Field = HelixForm::Field;
using testing::HasSubstr;

HelixForm formOf(const char* key) {
  return HelixForm(usualHelix(*findHelixKit(key)), kMillimetres);
}

TEST(HelixForm, WhatWasEnteredLastHoldsAndTheRestFollows) {
  struct Step {
    enum { Turns, Climb, Pitch } what;
    const char* entered; ///< turns by their row, from one turn on
    const char *turns, *climb, *pitch;
    const char* problem = "";
  };
  HelixForm form = formOf("helix_2_5_r1");
  for (const Step& step : std::initializer_list<Step>{
           {Step::Turns, "4", "3", "240.0 mm", "80.0 mm"},
           {Step::Climb, "300", "3.5", "300", "85.7 mm"},
           {Step::Pitch, "10 cm", "3", "300.0 mm", "10 cm"},
           {Step::Pitch, "85", "3.5", "297.5 mm", "85"},
           {Step::Climb, "170", "2", "170", "85.0 mm"},
           {Step::Turns, "3", "2.5", "212.5 mm", "85.0 mm"},
           {Step::Pitch, "79.9", "2.5", "199.8 mm", "79.9", "at least 80 mm"},
           {Step::Climb, "50", "1", "50", "50.0 mm", "at least 80 mm"},
           {Step::Climb, "5000", "12", "5000", "416.7 mm"},
           {Step::Climb, "high", "12", "high", "416.7 mm", "expected"},
           {Step::Turns, "0", "1", "79.9 mm", "79.9 mm", "at least 80 mm"}}) {
    SCOPED_TRACE(step.entered);
    if (step.what == Step::Turns)
      form.setTurns(static_cast<std::size_t>(std::stoi(step.entered)));
    else
      form.enter(step.what == Step::Climb ? Field::Climb : Field::Pitch, step.entered);
    EXPECT_EQ(HelixForm::turnNames().at(form.turns()), step.turns);
    EXPECT_EQ(form.text(Field::Climb), step.climb);
    EXPECT_EQ(form.text(Field::Pitch), step.pitch);
    EXPECT_THAT(form.problem(), HasSubstr(step.problem));
    EXPECT_EQ(form.ready(), *step.problem == '\0');
  }
}

TEST(HelixForm, APitchFromAFileLeavesNoTurnOut) {
  HelixWish read = usualHelix(*findHelixKit("helix_2_5_r1"));
  read.plan.pitch = 80.0002;
  HelixForm form(read, kMillimetres);
  form.enter(Field::Climb, "320");
  EXPECT_EQ(form.wish().plan.kit->turns, 4);
  EXPECT_TRUE(form.ready());
}

TEST(HelixForm, TellsWhetherTrainsGetUpAndThrough) {
  struct Case {
    const char *kit, *pitch;
    HelixVerdict verdict;
    double percent, felt; ///< of the inner track
  };
  for (const Case& c : {Case{"helix_2_5_r1", "80", HelixVerdict::Fair, 3.537, 5.795},
                        Case{"helix_2_5_r1", "68", HelixVerdict::Refused, 3.006, 5.265},
                        Case{"helix_2_5_r1", "91", HelixVerdict::Steep, 4.023, 6.281},
                        Case{"helix_2_5_r3", "80", HelixVerdict::Fair, 2.472, 4.051},
                        Case{"helix_2_5_r5", "110", HelixVerdict::Good, 2.720, 3.983},
                        Case{"helix_2_5_r4r5", "110", HelixVerdict::Fair, 3.022, 4.425},
                        Case{"helix_2_5_r2_z", "37", HelixVerdict::Fair, 3.020, 4.666}}) {
    SCOPED_TRACE(std::string(c.kit) + " " + c.pitch);
    HelixForm form = formOf(c.kit);
    form.enter(Field::Pitch, c.pitch);
    const HelixFigures figures = form.figures();
    EXPECT_EQ(figures.verdict, c.verdict);
    EXPECT_NEAR(figures.tracks[0].slope * 100, c.percent, 0.001);
    EXPECT_NEAR(figures.tracks[0].felt * 100, c.felt, 0.001);
  }
  EXPECT_EQ(formOf("proses_2_5_r1r2").facts().size(),
            kMostHelixFacts); // what a window has room for
  std::string facts;
  for (const HelixFact& fact : formOf("proses_2_5_r1r2").facts())
    facts += fact.name + ": " + fact.text + "\n";
  EXPECT_EQ(facts, "Grade, inner track: 3.5 %, felt 5.8 %\nGrade, outer track: 2.9 %, felt 4.8 %\n"
                   "Keeping right: Up on the inner track\nClearance: 60.0 mm\n"
                   "Needed, no wire: 60 mm: enough\nNeeded for wire: 90 mm: too low\n"
                   "Inner ends cross: 52.3 mm: too low\n"
                   "Exit: Other side, back\nBoard: 955.0 \u00d7 955.0 mm\n"
                   "Pieces: 30 \u00d7 24130, 30 \u00d7 24230\n");
}

TEST(HelixForm, OffersTheKitsOfEachSystem) {
  HelixForm form = formOf("proses_2_5_r1r2");
  EXPECT_EQ(form.sizeNames().front(), "R1/R2, 360 mm and 437.5 mm");
  form.setTracks(1);
  EXPECT_EQ(form.sizeNames().at(form.size()), "R1, 360 mm");
  form.setSize(4);
  EXPECT_EQ(form.text(Field::Pitch), "110.0 mm") << "with wire where that is comfortable";
  form.enter(Field::Pitch, "90");
  form.setSize(0);
  EXPECT_EQ(form.text(Field::Pitch), "90") << "as it was entered";
  for (const TrackSystem system : HelixForm::systems()) {
    form.setSystem(system);
    EXPECT_EQ(form.wish().plan.kit->system, system);
    EXPECT_TRUE(form.ready()) << form.problem();
    form.setTracks(2);
    EXPECT_EQ(form.tracks() == 2, form.mayHaveTwoTracks());
  }
}

} // namespace
} // namespace trassix
