// The table of a layout as it is turned, measured and dragged, and what goes along with it.
#include "document/layout.h"
#include "panels/layout_form.h"
#include "panels/owned_stock.h"
#include "panels/piece_stock.h"

#include <gmock/gmock.h>

namespace trassix {
namespace {

using Table = LayoutForm::Table;

/// Row 5 of the usual tables is an L of 2400 x 1800 mm.
LayoutForm onAnL(const Layout& layout) {
  LayoutForm form(layout, TrackSystem::CTrack, {});
  form.setUsual(5);
  form.setStation(true);
  form.setBridge(true);
  return form;
}

TEST(LayoutTable, WishesAreOnTheLongestSidesAndGoWhereTheTableTurns) {
  const Layout layout;
  LayoutForm form = onAnL(layout);
  const auto sideOf = [&](std::size_t side) { return form.sideNames().at(side); };
  EXPECT_EQ(sideOf(form.stationSide()), "Bottom");
  EXPECT_EQ(sideOf(form.bridgeSide()), "Left");
  form.turn();
  EXPECT_EQ(form.table(), Table::Free);
  EXPECT_EQ(sideOf(form.stationSide()), "Left");
  EXPECT_EQ(sideOf(form.bridgeSide()), "Top");
  form.mirror();
  EXPECT_EQ(sideOf(form.task().station->side), "Right");
  EXPECT_EQ(tableProblem(form.outline()), "");
  form.setStationSide(form.bridgeSide());
  const std::size_t chosen = form.stationSide();
  form.setOutline({{0, 0}, {1500, 0}, {1500, 3000}, {0, 3000}});
  EXPECT_EQ(form.stationSide(), std::min<std::size_t>(chosen, 1)) << "what was chosen stays";
}

TEST(LayoutTable, ASideTakesTheLengthThatIsTypedUnlessTheOutlineWouldCrossItself) {
  const Layout layout;
  LayoutForm form = onAnL(layout);
  form.setTable(Table::Free);
  struct Step {
    std::size_t side;
    const char* length;
    const char* problem;  ///< a part of it
    double typed, across; ///< of the side and of the one across, afterwards
  };
  for (const Step& step : std::initializer_list<Step>{{0, "130 cm", "", 1300, 1100},
                                                      {1, "500", "", 500, 1300},
                                                      {2, "x", "expected", 1100, 2400},
                                                      {1, "2000", "cross itself", 500, 1300},
                                                      {0, "1200", "", 1200, 1200}}) {
    SCOPED_TRACE(step.length);
    form.setMeasuredSide(step.side);
    form.enterSideLength(step.length);
    EXPECT_EQ(form.sideLength().text(), step.length);
    EXPECT_THAT(form.problem(), testing::HasSubstr(step.problem));
    EXPECT_EQ(form.ready(), *step.problem == '\0');
    const auto lengthOf = [&](std::size_t side) {
      const Polygon& outline = form.outline();
      const Point a = outline.at(side);
      const Point b = outline.at((side + 1) % outline.size());
      return std::abs(a.x - b.x) + std::abs(a.y - b.y);
    };
    EXPECT_DOUBLE_EQ(lengthOf(step.side), step.typed);
    EXPECT_DOUBLE_EQ(lengthOf(step.side + 2), step.across);
  }
  form.enterSideLength("x");
  form.dragCorner(4, {2500, 1800});
  EXPECT_EQ(form.problem(), "") << "a drag takes the place of what was typed";
}

TEST(LayoutTable, PairsAtHomeAreTwoPiecesEach) {
  OwnedStock owned;
  owned.set("24188", 4);
  owned.set("74618", 3);
  owned.set("none such", 3);
  const PieceStock stock = piecesAtHome(owned);
  EXPECT_THAT(stock, testing::ElementsAre(testing::Pair("24188", 4), testing::Pair("74618", 6)));
}

} // namespace
} // namespace trassix
