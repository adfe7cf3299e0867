// Left or right, which end, what will happen: the hand movements around the next piece.
#include "catalog/track_catalog.h"
#include "document/block.h"
#include "document/record_kinds.h"
#include "editing/canvas/canvas_script.h"
#include "editing/canvas/placing_offer.h"
#include "editing/canvas/recording_surface.h"
#include "editing/canvas/swap_command.h"
#include "editing/placing/ways.h"
#include "editing/selection/open_ends.h"
#include "support/plan.h"

#include <gmock/gmock.h>

#include <cmath>
#include <map>
#include <set>
#include <string>

namespace trassix::test {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

TEST(Ways, ComeInOrderAndLookDifferent) {
  const auto ways = [](const char* article) {
    return waysOf(*TrackCatalog::instance().find(article));
  };
  EXPECT_THAT(ways("24188"), ElementsAre(0));       // a straight lies alike by both ends
  EXPECT_THAT(ways("24130"), ElementsAre(0, 1));    // a curve bends to either side
  EXPECT_THAT(ways("24611"), ElementsAre(0, 1, 2)); // a turnout by tip, main and branch
  const PieceDef& adapter = *TrackCatalog::instance().find("24922");
  EXPECT_EQ(waysOf(adapter, TrackSystem::KTrack).size(), 1u);
}

TEST(Flipping, OfACarriedPieceChoosesTheEndItJoinsBy) {
  struct Case {
    const char* article;
    std::vector<bool> shifts; ///< of each F
    std::int32_t end;
  };
  for (const Case& c :
       {Case{"24130", {}, 0}, Case{"24130", {false}, 1}, Case{"24130", {false, false}, 0},
        Case{"24611", {true}, 2}, Case{"24188", {false}, 0}}) {
    SCOPED_TRACE(c.article + std::to_string(c.shifts.size()));
    CanvasScript script(Plan().place("24188").layout);
    script.carry(c.article, {195, 8});
    for (const bool shift : c.shifts)
      script.key(Key::F, shift);
    script.release({195, 8});
    ASSERT_EQ(script.pieces().size(), 2u);
    EXPECT_EQ(script.pieces()[1].joint(static_cast<std::size_t>(c.end)), (Joint{1, 1}));
  }
  // The choice holds for the article, free on the plan too, until another is taken or Esc.
  CanvasScript script(Plan().place("24188").layout);
  const auto drop = [&script](const char* article, Point at) {
    script.carry(article, at);
    script.release(at);
    return script.pieces().back().heading;
  };
  script.carry("24130", {600, 300});
  script.key(Key::F);
  script.release({600, 300});
  EXPECT_NE(script.pieces().back().heading, 0) << "hangs by its other end";
  EXPECT_NE(drop("24130", {600, 600}), 0);
  EXPECT_EQ(drop("24188", {600, 800}), 0);
  EXPECT_EQ(drop("24130", {600, 1000}), 0) << "another article was taken";
}

TEST(Flipping, InPlaceKeepsTheJointAndAsksBeforeOthersOpen) {
  // A curve at the end of a straight, then one more behind it.
  for (const int behind : {0, 1}) {
    CanvasScript script(Plan().place("24188").extend("24130").layout);
    if (behind == 1)
      script.host.plan = Plan().place("24188").extend("24130", 2).layout;
    selectOnly(script.host.plan, 2);
    const PlanContent before = script.content();
    if (behind == 1) {
      script.host.answers = {false, true};
      EXPECT_TRUE(script.key(Key::F));
      EXPECT_EQ(script.content(), before) << "answered No";
    }
    EXPECT_TRUE(script.key(Key::F));
    EXPECT_EQ(script.pieces()[1].joint(1), (Joint{1, 1}));
    EXPECT_EQ(openEnds(script.host.plan), behind == 0 ? 2 : 4);
    EXPECT_EQ(script.host.seen.changes, 1);
    EXPECT_TRUE(script.host.plan.undo());
    EXPECT_EQ(script.content().pieces, before.pieces);
  }
  CanvasScript alone(Plan().place("24130").layout);
  selectOnly(alone.host.plan, 1);
  const Pose at = poseOf(alone.pieces()[0]);
  EXPECT_TRUE(alone.key(Key::F));
  EXPECT_NE(poseOf(alone.pieces()[0]), at);
  EXPECT_TRUE(alone.key(Key::F));
  EXPECT_TRUE(isStill(poseOf(alone.pieces()[0]), at)) << "round once more it lies as before";
  CanvasScript straight(Plan().place("24188").extend("24188").layout);
  selectOnly(straight.host.plan, 2);
  EXPECT_TRUE(straight.key(Key::F));
  EXPECT_EQ(straight.host.seen.changes, 0);
}

TEST(Swap, RowsCanBeToldApart) {
  for (const PieceDef& definition : wholeCatalogue()) {
    CanvasScript script(Plan().place(definition.article).layout);
    if (!canSwap(script.host.plan, 1))
      continue;
    runSwap(script.canvas.site(), 1);
    const std::set<std::string> rows(script.host.offered.begin(), script.host.offered.end());
    EXPECT_EQ(rows.size(), script.host.offered.size()) << definition.article;
  }
}

TEST(OpenEnds, ArePointedAtClickedAndGoneThrough) {
  CanvasScript script(Plan().place("24611").layout);
  const auto end = [&script](std::int32_t connector) {
    const auto at = endAt(script.host.plan, {1, connector});
    return Point{at->x, at->y};
  };
  for (const std::int32_t connector : {0, 2, 1}) {
    script.move(end(connector));
    EXPECT_THAT(script.host.seen.hint, StartsWith("Open end"));
    script.click(end(connector));
    EXPECT_EQ(script.selected(), std::vector<std::int32_t>{1});
    EXPECT_TRUE(script.canvas.goOnWith(CarriedPiece{"24188"}));
    EXPECT_EQ(script.pieces().back().joint(0).tconn, connector == 0 ? -1 : connector);
    EXPECT_EQ(script.host.plan.findPiece(1)->joint(static_cast<std::size_t>(connector)).target,
              script.pieces().back().id);
  }
  // Three straights at the turnout: three open ends to go through, either way round.
  std::vector<std::int32_t> met;
  for (const bool back : {false, false, false, true})
    if (script.key(Key::Tab, back))
      met.push_back(script.selected().at(0));
  EXPECT_THAT(met, ElementsAre(4, 2, 3, 2)) << "on from the selected piece";
  // Where several lie on the same small piece, the piece itself can still be pointed at.
  CanvasScript small(Plan().place("24071").layout);
  small.canvas.fit();
  small.click({35, 0});
  EXPECT_THAT(small.host.seen.hint, testing::Not(StartsWith("Open end")));
}

TEST(Offer, ShowsWhatThePaletteWillDo) {
  CanvasScript script(Plan().place("24188").layout);
  selectOnly(script.host.plan, 1);
  const auto drawn = [&script] {
    RecordingSurface surface;
    script.canvas.paintOverlay(surface);
    return surface.lines.size() + surface.hatches.size();
  };
  const auto nothing = drawn();
  script.canvas.offer(Offer{false, true, "24130", "24130"});
  EXPECT_GT(drawn(), nothing);
  EXPECT_TRUE(script.canvas.flipOffered(1));
  EXPECT_TRUE(script.canvas.goOnWith(CarriedPiece{"24130"}));
  EXPECT_EQ(script.pieces()[1].joint(1), (Joint{1, 1})) << "as it was shown";
  script.canvas.offer({});
  EXPECT_FALSE(script.canvas.flipOffered(1));
}

TEST(Offer, SaysWhatTheKeysDo) {
  const std::pair<std::int32_t, Layout> plans[] = {
      {0, Layout()},
      {1, Plan().place("24188").layout},
      {2, Plan().place("24188").extend("24188", 2).layout}};
  const Offer piece{true, true, "24130", "24130"};
  const std::tuple<std::size_t, Offer, const char*, const char*> kCases[] = {
      {0, piece, "Enter: 24130 hangs on the pointer", "F:"},
      {1, piece, "Enter: 24130 goes on as shown    F:", "Del"},
      {1, {true, false, "24130", "24130"}, "Enter: 24130 goes on", "F:"}, // a letter of the search
      {1, {true, true, "24188", "24188"}, "Enter: 24188 goes on", "F:"},  // lies alike
      {2, piece, "What is selected has no free end for 24130", "Enter"},
      {1, {false, false, "", "Station"}, "Enter: Station hangs on the pointer", "Esc"},
      {0, {true, true, "", ""}, "Nothing fits what is typed    Esc: empty", "Enter"},
  };
  for (const auto& [plan, offer, begins, lacks] : kCases) {
    CanvasScript script(plans[plan].second);
    selectOnly(script.host.plan, plans[plan].first);
    script.canvas.offer(offer);
    EXPECT_THAT(script.host.seen.hint,
                testing::AllOf(StartsWith(begins), testing::Not(testing::HasSubstr(lacks))));
  }
}

TEST(Carrying, PansScrollsAndZoomsAtThePointer) {
  for (const char* how : {"middle", "ctrl", "space"}) {
    SCOPED_TRACE(how);
    CanvasScript script;
    script.canvas.carry(CarriedPiece{"24188"}, script.at({600, 300}), false);
    const bool middle = how == std::string_view("middle");
    const unsigned mods = how == std::string_view("ctrl") ? kCtrl : kNone;
    script.canvas.setSpace(how == std::string_view("space"));
    const auto button = middle ? Canvas::Button::Middle : Canvas::Button::Left;
    const PointerInput from = script.at({600, 300}, mods);
    PointerInput to = from;
    to.px = {from.px.x + 80, from.px.y};
    script.canvas.press(button, from);
    script.canvas.move(to);
    script.canvas.release(button, to);
    EXPECT_TRUE(script.canvas.carrying()) << "the release that ends a pan drops nothing";
    EXPECT_EQ(script.canvas.view().origin().x, 140);
    script.canvas.setSpace(false);
    const Point under = script.canvas.pointer();
    script.canvas.zoomStep(1.25);
    EXPECT_NEAR(script.canvas.pointer().x, under.x, 1e-9);
    EXPECT_FALSE(script.canvas.scrollAtEdge());
    script.move(script.canvas.view().toWorld({1595, 500}));
    const double before = script.canvas.pointer().x;
    EXPECT_TRUE(script.canvas.scrollAtEdge());
    EXPECT_GT(script.canvas.pointer().x, before);
  }
}

TEST(Carrying, BlocksAndGroupsSnapAndSayHowManyEndsMeet) {
  // A gap of one piece, closed by a block of one straight.
  CanvasScript script(Plan().place("24188").extend("24188", 2).layout);
  selectOnly(script.host.plan, 2);
  const auto block = std::make_shared<Block>(blockFromSelection(script.host.plan));
  ASSERT_TRUE(deleteSelection(script.host.plan));
  const PointerInput near = script.at({188.3 + 6, 5});
  script.canvas.carry(block, near, false);
  PointerInput moved = near;
  moved.world = {6, 5}; // the block lies about its own origin
  script.canvas.move(moved);
  EXPECT_THAT(script.host.seen.hint, testing::HasSubstr("2 ends join"));
  script.canvas.press(Canvas::Button::Left, moved);
  script.canvas.release(Canvas::Button::Left, moved);
  EXPECT_EQ(script.pieces().size(), 3u);
  EXPECT_EQ(openEnds(script.host.plan), 2);
}

/// Plans by the fewest movements: what is typed with its Enter, a click, a key are one each.
class FewMovements : public CanvasScript {
 public:
  int actions = 0;

  void place(const char* article) { // typed, then dropped by a click
    carry(article, {600, 400});
    release({600, 400});
    actions += 2;
  }
  /// "6x24130": what is typed; an F behind it turns what is offered round first.
  void type(std::string text) {
    const bool flipped = text.back() == 'F';
    if (flipped)
      text.pop_back();
    const std::size_t times = text.find('x');
    const bool several = times != std::string::npos;
    const Carried what =
        CarriedPiece{several ? text.substr(times + 1) : text, several ? std::stoi(text) : 1};
    const std::string& article = std::get<CarriedPiece>(what).article;
    canvas.offer(Offer{true, true, article, article});
    EXPECT_EQ(flipped && canvas.flipOffered(1), flipped) << text;
    EXPECT_TRUE(canvas.goOnWith(what)) << text;
    actions += flipped ? 2 : 1;
  }
  void clickEnd(std::int32_t piece, std::int32_t connector) {
    canvas.fit();
    const auto at = endAt(host.plan, {piece, connector});
    click({at->x, at->y});
    ++actions;
  }
  std::map<std::string, int> counts() const {
    std::map<std::string, int> counted;
    for (const PlacedPiece& piece : pieces())
      ++counted[piece.cat];
    return counted;
  }
};

TEST(FewMovements, MakeWholePlans) {
  FewMovements eight;
  eight.place("2258");
  for (const char* text : {"5x2200", "2202", "2208", "7x2231", "2233", "2208", "2202", "5x2200"})
    eight.type(text);
  eight.clickEnd(1, 2);
  for (const char* text : {"5x2200", "2202", "2208", "7x2231F", "2233", "2208", "2202", "5x2200"})
    eight.type(text);
  EXPECT_EQ(eight.counts(),
            (std::map<std::string, int>{
                {"2200", 20}, {"2202", 4}, {"2208", 4}, {"2231", 14}, {"2233", 2}, {"2258", 1}}));
  EXPECT_EQ(openEnds(eight.host.plan), 0);
  EXPECT_LE(eight.actions, 40);

  // A ladder of two double slips into four tracks, each with a bumper at its end.
  FewMovements station;
  station.place("24611");
  station.clickEnd(1, 2);
  station.type("2x24624");
  station.type("24224");
  station.type("5x24188");
  station.type("24977");
  station.clickEnd(1, 1);
  station.type("6x24188");
  station.type("24977");
  for (const std::int32_t slip : {2, 3}) {
    station.clickEnd(slip, 3);
    station.type("5x24188");
    station.type("24977");
    station.clickEnd(slip, 2);
    station.type("24188");
  }
  EXPECT_EQ(station.counts(),
            (std::map<std::string, int>{
                {"24611", 1}, {"24624", 2}, {"24224", 1}, {"24188", 23}, {"24977", 4}}));
  std::set<int> heads; // the tracks lie side by side
  for (const PlacedPiece& piece : station.pieces())
    if (piece.cat == "24977")
      heads.insert(static_cast<int>(std::lround(piece.y - 400)));
  EXPECT_EQ(heads, (std::set<int>{0, -78, -155, -232}));
  EXPECT_EQ(openEnds(station.host.plan), 3);
  EXPECT_LE(station.actions, 55);
}

} // namespace
} // namespace trassix::test
