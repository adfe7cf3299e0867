#include "app/services/program_memory.h"
#include "document/layout_reader.h"
#include "document/layout_writer.h"
#include "document/plan_content.h"
#include "laid_track.h"
#include "panels/layout_form.h"
#include "support/plan.h"
#include "support/temp_folder.h"
#include "wizards/layout/layout_placing.h"
#include "wizards/layout/layout_search.h"

#include <gmock/gmock.h>

namespace trassix {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

Polygon rectangle(double width, double depth) {
  return {{0, 0}, {width, 0}, {width, depth}, {0, depth}};
}

LayoutTask rectangleTask(double width, double depth) {
  return usualLayoutTask(TrackSystem::CTrack, rectangle(width, depth));
}

LayoutSearch sought(const LayoutTask& task) {
  LayoutSearch search(task);
  while (!search.done())
    search.step();
  return search;
}

TEST(LayoutWizard, ProposesUpToFourAndOnRequestShorterOnes) {
  LayoutTask task = rectangleTask(2000, 1000);
  task.station = StationWish{0, 1, 500};
  task.preference = LayoutPreference::FewestPieces;
  LayoutSearch search = sought(task);
  ASSERT_EQ(search.proposals().size(), 4U);
  EXPECT_EQ(search.proposals().front().bestAt, LayoutPreference::FewestPieces);
  const auto better = [&](std::size_t i, auto figure) {
    return figure(search.proposals().at(i).figures);
  };
  for (std::size_t i = 1; i < 4; ++i) {
    EXPECT_LE(better(0, [](const auto& f) { return f.pieces; }),
              better(i, [](const auto& f) { return f.pieces; }));
    EXPECT_EQ(LaidTrack(search.proposals().at(i)).problem(task), "");
  }
  const double longest = search.proposals().at(1).figures.length;
  ASSERT_TRUE(search.mayHaveMore());
  search.searchOn();
  while (!search.done())
    search.step();
  ASSERT_GT(search.proposals().size(), 4U);
  for (std::size_t i = 4; i < search.proposals().size(); ++i)
    EXPECT_LT(search.proposals().at(i).figures.length, longest);
}

TEST(LayoutWizard, RefusesWithReasonAndRemedy) {
  LayoutTask small = rectangleTask(900, 700);
  LayoutTask wide = rectangleTask(1200, 1000);
  wide.radius = 579.3;
  LayoutTask crossing = rectangleTask(2000, 1000);
  std::swap(crossing.outline[1], crossing.outline[2]);
  LayoutTask skew = rectangleTask(2000, 1000);
  skew.outline[1].y = 40;
  LayoutTask corners = rectangleTask(2000, 1000);
  corners.outline = {{0, 0},      {900, 0},     {900, 500},   {1800, 500},  {1800, 900},
                     {2700, 900}, {2700, 1300}, {3600, 1300}, {3600, 2500}, {0, 2500}};
  LayoutTask far = rectangleTask(2000, 1000);
  far.station = StationWish{0, 1, 2500};
  LayoutTask near = rectangleTask(2000, 1000);
  near.radius = 360;
  near.secondRadius = 400;
  LayoutTask astray = rectangleTask(2000, 1000);
  astray.bridge = BridgeWish{4, BridgeForm::Arch};
  LayoutTask poor = rectangleTask(2000, 1000);
  poor.ownStockOnly = true;
  poor.stock = {{"24130", 11}, {"24188", 20}};
  for (const auto& [task, text] : {std::pair{small, "900.0 × 817.4 mm"},
                                   {small, "too small"},
                                   {wide, "radius of 437.5 mm would fit"},
                                   {crossing, "crosses"},
                                   {skew, "right angles"},
                                   {corners, "10 corners"},
                                   {far, "at most 773.6 mm"},
                                   {near, "too near"},
                                   {astray, "no such side"},
                                   {rectangleTask(2000, 30001), "larger than 30000 mm"},
                                   {poor, "1 x 24130"}}) {
    const LayoutSearch search = sought(task);
    EXPECT_THAT(search.proposals(), IsEmpty());
    ASSERT_TRUE(search.refusal()) << text;
    EXPECT_THAT(search.refusal()->text(), HasSubstr(text));
  }
  // What is named as the remedy is one.
  small.outline = sought(small).refusal()->outline;
  EXPECT_THAT(sought(small).proposals(), Not(IsEmpty()));
  far.station->usableLength = 773.6;
  EXPECT_THAT(sought(far).proposals(), Not(IsEmpty()));
}

TEST(LayoutWizard, KeepsToOwnStock) {
  LayoutTask task = rectangleTask(2000, 1000);
  task.ownStockOnly = true;
  task.stock = {{"24130", 12}, {"24188", 6}, {"24172", 3}, {"24094", 2}};
  const LayoutSearch search = sought(task);
  ASSERT_THAT(search.proposals(), Not(IsEmpty()));
  for (const LayoutProposal& proposal : search.proposals())
    EXPECT_THAT(proposal.figures.missing, IsEmpty());
}

TEST(LayoutWizard, PlacesAsOneStepAndKeepsTheBaseboard) {
  const LayoutTask task = rectangleTask(2400, 1200);
  const LayoutProposal proposal = sought(task).proposals().front();
  for (const LayoutPlacing placing : {LayoutPlacing::Replace, LayoutPlacing::Add}) {
    Layout layout = Plan().place("24188", {5000, 5000, 0}).layout;
    EXPECT_THAT(baseboardNotice(layout, proposal), Not(IsEmpty()));
    const EditResult placed = placeLayout(layout, proposal, placing);
    const std::size_t kept = placing == LayoutPlacing::Add ? 1 : 0;
    EXPECT_EQ(layout.pieceCount(), proposal.figures.pieces + kept);
    EXPECT_EQ(placed.placed.size(), proposal.figures.pieces);
    EXPECT_EQ(openEnds(layout), static_cast<int>(2 * kept));
    EXPECT_EQ(brokenRule(layout), "");
    EXPECT_EQ(layout.settings().baseboard, task.outline);
    EXPECT_THAT(baseboardNotice(layout, proposal), IsEmpty());
    ASSERT_TRUE(layout.undo());
    EXPECT_EQ(layout.pieceCount(), 1U);
    EXPECT_EQ(layout.settings().baseboard, task.outline);
  }
  LayoutProposal beyond = proposal;
  beyond.outline[0].x = 2e6;
  Layout layout;
  EXPECT_TRUE(placeLayout(layout, beyond, LayoutPlacing::Add).refusal);
  EXPECT_EQ(layout.pieceCount(), 0U);
}

TEST(LayoutWizard, RemembersWhatAPlanWasMadeFrom) {
  const test::TempFolder folder;
  const ProgramMemory memory(folder.path() / "memory.json");
  const std::filesystem::path file = folder.path() / "plan.txl";
  LayoutTask task = rectangleTask(2400, 1200);
  task.station = StationWish{2, 2, 300};
  task.bridge = BridgeWish{1, BridgeForm::Truss};
  task.preference = LayoutPreference::FewestKinds;
  const LayoutSearch search = sought(task);
  ASSERT_THAT(search.proposals(), Not(IsEmpty()));
  Layout layout;
  placeLayout(layout, search.proposals().front(), LayoutPlacing::Replace);
  LayoutMemory kept;
  EXPECT_FALSE(kept.recall(memory, file, layout));
  kept.made(task, layout);
  EXPECT_EQ(kept.recall(memory, {}, layout)->task, task);
  EXPECT_EQ(kept.saved(memory, file), "");

  Layout loaded;
  std::string text;
  std::string name;
  ASSERT_EQ(writeLayout(layout, "Plan", text), "");
  ASSERT_EQ(readLayout(text, loaded, name), "");
  const LayoutMemory later;
  const auto found = later.recall(memory, file, loaded);
  ASSERT_TRUE(found);
  EXPECT_TRUE(found->unchanged);
  EXPECT_EQ(found->task, task);
  loaded.edit().pieces.pop_back();
  EXPECT_FALSE(later.recall(memory, file, loaded)->unchanged);
  const LayoutForm form(loaded, TrackSystem::ZTrack, {}, later.recall(memory, file, loaded));
  EXPECT_THAT(form.greeting(), HasSubstr("only the table"));
  EXPECT_FALSE(form.hasStation());
  EXPECT_EQ(form.outline(), task.outline);
}

TEST(LayoutForm, FollowsTheSystemButKeepsWhatWasEntered) {
  const Layout layout;
  LayoutForm form(layout, TrackSystem::CTrack, {});
  EXPECT_EQ(form.distance().mm(), 30);
  form.setTracks(2);
  EXPECT_EQ(form.task().radius, 360);
  EXPECT_EQ(form.task().secondRadius, 437.5);
  form.setStation(true);
  form.enterUsableLength("640");
  form.enterDistance("41");
  form.setSystem(TrackSystem::KTrack);
  EXPECT_EQ(form.task().distance, 41);
  EXPECT_EQ(form.task().station->usableLength, 640);
  EXPECT_EQ(form.task().secondRadius, 424.6);
  EXPECT_FALSE(form.mayHaveBridge());
  form.setSystem(TrackSystem::Gauge1);
  EXPECT_EQ(form.task().distance, 80);
  EXPECT_FALSE(form.task().station);
  EXPECT_THAT(form.stationProblem(), Not(IsEmpty()));
  form.enterDistance("much");
  EXPECT_FALSE(form.ready());
}

TEST(LayoutForm, OffersTablesWhoseCornersCanBeDragged) {
  const Layout layout;
  LayoutForm form(layout, TrackSystem::CTrack, {});
  for (const auto& [table, corners] : {std::pair{LayoutForm::Table::Rectangle, 4U},
                                       {LayoutForm::Table::L, 6U},
                                       {LayoutForm::Table::T, 8U},
                                       {LayoutForm::Table::U, 8U},
                                       {LayoutForm::Table::Z, 8U}}) {
    form.setTable(table);
    EXPECT_EQ(form.outline().size(), corners);
    EXPECT_EQ(form.problem(), "");
    EXPECT_FALSE(sought(form.task()).refusal());
  }
  form.setTable(LayoutForm::Table::Rectangle);
  EXPECT_TRUE(form.dragCorner(2, {2300, 1250}));
  EXPECT_EQ(form.outline(), rectangle(2300, 1250));
  EXPECT_EQ(form.table(), LayoutForm::Table::Free);
  for (std::size_t side = 0; side < 4; ++side) {
    LayoutForm notched = form;
    EXPECT_TRUE(notched.addCorners(side));
    EXPECT_TRUE(notched.addCorners(side));
    EXPECT_FALSE(notched.addCorners(side));
    EXPECT_FALSE(notched.dragCorner(0, {9999, 9999}) && !notched.ready());
  }
}

} // namespace
} // namespace trassix
