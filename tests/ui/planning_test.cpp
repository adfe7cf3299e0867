#include "planning_test.h"

#include "catalog/track_catalog.h"
#include "document/block_file.h"
#include "document/reselecting.h"
#include "editing/canvas/autofill_command.h"
#include "editing/elevation/crossings.h"
#include "editing/elevation/grade_edits.h"
#include "editing/selection/open_ends.h"
#include "editing/selection/selection.h"
#include "host/command_ids.h"
#include "support/print_records.h"
#include "ui/widgets/remembered_look.h"

#include <wx/choice.h>
#include <wx/srchctrl.h>
#include <wx/statusbr.h>
#include <wx/toolbar.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <regex>

namespace trassix::test {
namespace {

TEST_F(PlanningTest, AnOvalIsPlannedSavedAndFoundAgainAllJoined) {
  startLaidOut();
  drag(inPalette("24188"), {onPlan({300, 200}), onPlan({500, 160})});
  waitForPieces(1);

  // Carried near the open end, it is let go joined.
  const PlacedPiece first = plan().pieces()[0];
  drag(inPalette("24130"), {onPlan({500, 400}), onPlan({first.x + 188.3 + 12, first.y + 9})});
  waitForPieces(2);
  EXPECT_EQ(plan().pieces()[1].joint(0), (Joint{first.id, 1}));

  extendByEnter("24130", 5);
  doubleClick(inPalette("24188"));
  waitForPieces(8);
  extendByEnter("24130", 6);
  EXPECT_EQ(openEnds(plan()), 0) << "the last curve closes the oval";
  EXPECT_EQ(brokenRule(plan()), "");
  EXPECT_EQ(frame().GetTitle(), "Trassix v1.7.1 by Quorrail *");
  EXPECT_EQ(frame().GetStatusBar()->GetStatusText(1), "Pieces: 14");

  dialogs.drive("Save Layout", [](wxDialog&) {
    typeText("Evening oval");
    pressKey(WXK_RETURN);
  });
  pressKey('S', wxMOD_CONTROL);
  ASSERT_TRUE(waitUntil("saved", [&] { return !frame().dirty(); }));
  EXPECT_TRUE(std::filesystem::exists(layoutsFolder() / "Evening oval.txl"));
  const PlanContent saved = plan().content();

  pressKey('W', wxMOD_CONTROL);
  waitForPieces(0);
  dialogs.drive("Open Layout", [](wxDialog&) {
    pressKey(WXK_DOWN);
    pressKey(WXK_RETURN);
  });
  pressKey('O', wxMOD_CONTROL);
  waitForPieces(14);
  EXPECT_EQ(openEnds(plan()), 0);
  for (std::size_t i = 0; i < saved.pieces.size(); ++i) {
    EXPECT_EQ(plan().pieces()[i].cat, saved.pieces[i].cat);
    EXPECT_EQ(plan().pieces()[i].joints, saved.pieces[i].joints);
    EXPECT_NEAR(plan().pieces()[i].x, saved.pieces[i].x, 1e-4);
  }
  EXPECT_EQ(frame().GetTitle(), "Trassix v1.7.1 by Quorrail - Evening oval");
  finish();
}

/// What a reader of the README does to get an oval with a siding, in its words.
std::vector<std::string> firstPlanOfTheReadme() {
  std::ifstream file(std::string(TRASSIX_SOURCE_DIR) + "/README.md");
  const std::string text{std::istreambuf_iterator<char>(file), {}};
  const std::size_t begin = text.find("1. Type `24611`");
  const std::string recipe = text.substr(begin, text.find("<kbd>S</kbd>") - begin);
  const std::regex step(
      "`([0-9x]+)`|<kbd>(Enter|F|0)</kbd>|(click in the middle|click the open end)");
  std::vector<std::string> steps;
  for (std::sregex_iterator at(recipe.begin(), recipe.end(), step), end; at != end; ++at)
    for (const std::size_t group : {1U, 2U, 3U})
      if ((*at)[group].matched)
        steps.push_back((*at)[group]);
  return steps;
}

TEST_F(PlanningTest, TheReadmesOvalComesOutAsItSays) {
  startLaidOut();
  auto& search = dynamic_cast<wxSearchCtrl&>(*findNamed("search"));
  click(onPlan({100, 100}));
  int actions = 0;
  std::string typed;
  for (const std::string& step : firstPlanOfTheReadme()) {
    SCOPED_TRACE(step);
    const std::size_t before = pieces();
    if (step == "click in the middle") {
      click(onPlan({600, 400}));
      waitForPieces(1);
      ++actions;
    } else if (step == "click the open end") {
      const auto end = endAt(plan(), {1, 2});
      click(onPlan({end->x, end->y}));
      waitUntil("the turnout is selected", [&] { return plan().findPiece(1)->sel; });
      ++actions;
    } else if (step == "Enter") {
      pressKey(WXK_RETURN);
      waitUntil("it is placed or carried",
                [&] { return pieces() > before || canvas().carrying(); });
    } else if (step == "F") {
      const auto hint = [&] { return frame().GetStatusBar()->GetStatusText(0); };
      waitUntil("it is shown where it will lie", [&] { return hint().Contains("F: other"); });
      pressKey('F');
      ++actions;
    } else if (step == "0") {
      pressKey('0', wxMOD_CONTROL);
      ++actions;
    } else {
      typeText(step.c_str());
      waitUntil("the search has it", [&] { return search.GetValue() == step; });
      ++actions;
    }
  }
  EXPECT_EQ(pieces(), 28U);
  EXPECT_EQ(openEnds(plan()), 0);
  EXPECT_EQ(brokenRule(plan()), "");
  EXPECT_LE(actions, 28);
  finish();
}

TEST_F(PlanningTest, ALineClimbsOverAnotherInFewActions) {
  startLaidOut();
  show(Plan().place("24188").extend("24188", 30).place("24188", {2900, -94.15, 90}));
  int actions = 0;
  pressKey('0', wxMOD_CONTROL);
  ++actions;
  settle();
  const auto climb = [&](double from, double to, const char* height) {
    drag(onPlan({from - 40, -120}), {onPlan({(from + to) / 2, 0}), onPlan({to + 40, 120})});
    waitUntil("the ramp is selected", [&] { return selectedPieces(plan()).size() == 13; });
    dialogs.drive("Elevation", [&](wxDialog&) {
      typeText(height);
      pressKey(WXK_RETURN);
    });
    put(kElevation);
    actions += 3; // the box, the tool, the height
  };
  EXPECT_TRUE(trackCrossings(plan()).at(0).tooLow());
  climb(188.3, 14 * 188.3, "80");
  climb(17 * 188.3, 30 * 188.3, "0");
  EXPECT_LE(actions, 11);
  EXPECT_NEAR(endHeight(plan(), {1, 1}), 0, 1e-9);
  EXPECT_NEAR(endHeight(plan(), {14, 1}), 80, 0.01);
  EXPECT_NEAR(endHeight(plan(), {18, 0}), 80, 0.01);
  EXPECT_NEAR(endHeight(plan(), {31, 1}), 0, 0.01);
  EXPECT_FALSE(trackCrossings(plan()).at(0).tooLow());
  EXPECT_LT(largestPlay(plan()).step, 1e-6);
  dialogs.drive("Elevation", [](wxDialog&) {
    typeText("40");
    pressKey(WXK_ESCAPE);
  });
  const PlanContent before = plan().content();
  put(kElevation);
  EXPECT_EQ(plan().content(), before);
  EXPECT_EQ(frame().workspace().preview(), nullptr);
  put(kShowGrades);
  EXPECT_TRUE(rememberedLook({}).grades);
  finish();
}

TEST_F(PlanningTest, AnSIsOfferedBetweenTracksSideBySideAndJoinsBoth) {
  startLaidOut();
  show(Plan().place("24188").extend("24130").extend("24188").extendLeft("24130").extend("24188"));
  plan().reselect([](const auto& record) { return record.id > 1 && record.id < 5; });
  put(kDeleteSelection);
  waitForPieces(2);
  plan().reselect([](const auto&) { return true; });
  dialogs.drive("Autofill Gap", [](wxDialog&) { pressKey(WXK_RETURN); });
  runAutofill(canvas().site());
  waitForPieces(5);
  EXPECT_EQ(std::ranges::count(plan().pieces(), "24130", &PlacedPiece::cat), 2);
  EXPECT_EQ(openEnds(plan()), 2);
  EXPECT_LT(largestPlay(plan()).distance, 1e-3);
  put(kUndo);
  EXPECT_EQ(pieces(), 2U);
  finish();
}

TEST_F(PlanningTest, ATunnelComesAndGoesOverADoubleTrackLine) {
  startLaidOut();
  show(Plan().place("24188").extend("24188", 4).place("24188", {0, 77.5, 0}).extend("24188", 4));
  pressKey('0', wxMOD_CONTROL);
  settle();
  const auto selected = [this](std::size_t count) {
    return waitUntil("selected", [&] { return selectedPieces(plan()).size() == count; });
  };
  const auto tool = [this](const wxString& label) {
    return waitUntil(label.ToStdString(),
                     [&] { return frame().GetToolBar()->FindById(kTunnel)->GetLabel() == label; });
  };
  const auto& tunnels = plan().content().tunnels;
  drag(onPlan({150, -90}), {onPlan({400, 50}), onPlan({610, 170})});
  ASSERT_TRUE(selected(4) && tool("Tunnel"));
  put(kTunnel);
  ASSERT_EQ(tunnels.size(), 1u);
  EXPECT_EQ(tunnels[0].covers.size(), 4u);
  EXPECT_TRUE(tool("Remove Tunnel"));

  for (const bool shown : {false, true}) {
    pressKey(WXK_F8, wxMOD_SHIFT);
    ASSERT_TRUE(waitUntil("shown or hidden",
                          [&] { return frame().workspace().switches().hidden == shown; }));
    EXPECT_EQ(rememberedLook({}).hidden, shown);
    click(onPlan({300, 4}));
    EXPECT_TRUE(selected(shown ? 1 : 0));
  }
  dialogs.answer("Tunnel is locked", wxID_OK);
  pressKey(WXK_DELETE);
  settle();
  EXPECT_EQ(pieces(), 10u);
  put(kTunnel);
  EXPECT_TRUE(tunnels.empty() && plan().content().scenery.empty() && tool("Tunnel"));
  pressKey('Z', wxMOD_CONTROL);
  ASSERT_TRUE(waitUntil("undone", [&] { return tunnels.size() == 1; }));
  finish();
}

TEST_F(PlanningTest, TheSearchIsTypedFromThePlanAndPlacesSeveralAtOnce) {
  startLaidOut();
  auto& search = dynamic_cast<wxSearchCtrl&>(*findNamed("search"));
  const auto shows = [&](const char* text) {
    return waitUntil(std::string("the search shows ") + text,
                     [&] { return search.GetValue() == text; });
  };
  click(onPlan({100, 100}));
  typeText("3x24188");
  EXPECT_TRUE(shows("3x24188"));
  pressKey(WXK_RETURN);
  waitUntil("the first one hangs on the pointer", [&] { return canvas().carrying(); });
  click(onPlan({300, 300}));
  waitForPieces(3);
  typeText("2");
  EXPECT_TRUE(shows("2")) << "in place of what was there";
  typeText("4130");
  EXPECT_TRUE(shows("24130"));
  pressKey(WXK_RETURN);
  waitForPieces(4);
  typeText("6x24130"); // Enter took the whole text
  EXPECT_TRUE(shows("6x24130"));
  pressKey(WXK_RETURN);
  waitForPieces(10);
  put(kUndo);
  EXPECT_EQ(pieces(), 4U) << "one step";
  pressKey(WXK_ESCAPE);
  EXPECT_TRUE(shows(""));
  EXPECT_TRUE(frame().canvasPanel().HasFocus()) << "back where it was typed";
  for (const auto& empty : std::initializer_list<std::function<void()>>{
           [] {
             auto& systems = dynamic_cast<wxChoice&>(*findNamed("systems"));
             systems.SetSelection(2);
             wxCommandEvent chosen(wxEVT_CHOICE, systems.GetId());
             chosen.SetInt(2);
             systems.ProcessWindowEvent(chosen);
           },
           [this] {
             put(wxID_NEW, {{"Unsaved Changes", wxID_NO}});
           }}) {
    search.SetValue("24");
    empty();
    EXPECT_EQ(search.GetValue(), "");
  }
}

TEST_F(PlanningTest, WhatIsFoundIsSelectedAndInView) {
  startLaidOut();
  for (const double x : {0, 5000, 9000})
    placePiece(x);
  const auto selected = [this](std::initializer_list<std::size_t> places) {
    for (std::size_t i = 0; i < pieces(); ++i)
      if (plan().pieces()[i].sel != (std::ranges::count(places, i) > 0))
        return false;
    const Point px = canvas().view().toScreen({plan().pieces()[*(places.end() - 1)].x, 0});
    return frame().canvasPanel().GetClientRect().Contains(static_cast<int>(px.x),
                                                          static_cast<int>(px.y));
  };
  dialogs.drive("Find", [&](wxDialog&) {
    typeText("24188");
    pressKey(WXK_DOWN);
    waitUntil("the second one is shown", [&] { return selected({1}); });
    pressKey(WXK_RETURN);
  });
  pressKey('F', wxMOD_CONTROL);
  waitUntil("it was found", [this] { return dialogs.finished(); });
  click({*findNamed("tally"), {60, 40}});
  waitUntil("all of the article are shown", [&] { return selected({0, 1, 2}); });
}

TEST_F(PlanningTest, MouseAndKeysShapeThePlan) {
  startLaidOut();
  drag(inPalette("24188"), {onPlan({300, 200}), onPlan({400, 300})});
  waitForPieces(1);

  // Turned by the wheel while it is carried, given up by Esc.
  pressMouse(inPalette("24172"));
  moveMouse(onPlan({900, 600}));
  ASSERT_TRUE(waitUntil("carrying", [&] { return canvas().carrying(); }));
  turnWheel(1);
  pressKey(WXK_ESCAPE);
  ASSERT_TRUE(waitUntil("given up", [&] { return !canvas().carrying(); }));
  releaseMouse();
  EXPECT_EQ(pieces(), 1u);

  const Point origin = canvas().view().origin();
  moveMouse(onPlan({1000, 900}));
  turnWheel(1);
  ASSERT_TRUE(waitUntil("zoomed in", [&] { return canvas().view().zoom() > 0.45; }));
  turnWheel(-1);
  ASSERT_TRUE(waitUntil("zoomed out", [&] { return canvas().view().zoom() < 0.41; }));
  EXPECT_NEAR(canvas().view().origin().x, origin.x, 1);

  // A rubber band around the piece, moved by drag, turned by the wheel, taken back by undo.
  plan().clearSelection();
  const PlacedPiece before = plan().pieces()[0];
  drag(onPlan({before.x - 60, before.y - 120}), {onPlan({before.x + 260, before.y + 120})});
  ASSERT_TRUE(waitUntil("selected", [&] { return plan().pieces()[0].sel; }));
  drag(onPlan({before.x + 90, before.y}), {onPlan({before.x + 190, before.y + 200})});
  ASSERT_TRUE(waitUntil("moved", [&] { return plan().pieces()[0].y > before.y + 150; }));
  pressKey('Z', wxMOD_CONTROL);
  ASSERT_TRUE(waitUntil("undone", [&] { return plan().pieces()[0].y == before.y; }));
  for (const int key : {WXK_DELETE, WXK_NUMPAD_DELETE}) {
    click(onPlan({before.x + 90, before.y}));
    pressKey(key);
    waitForPieces(0);
    pressKey('Z', wxMOD_CONTROL);
    waitForPieces(1);
  }
  finish();
}

TEST_F(PlanningTest, EachKindIsCarriedPannedZoomedTurnedAndDropped) {
  const std::filesystem::path library = layoutsFolder() / "library" / "Marklin_C-Track";
  std::filesystem::create_directories(library);
  Plan throat;
  throat.place("24188").extend("24188");
  for (PlacedPiece& piece : throat.layout.edit().pieces)
    piece.sel = true;
  ASSERT_EQ(saveBlock(throat.layout, library / "Throat.txl", "Throat"), "");
  startLaidOut();
  inPalette("24188");                         // the palette has its places then
  pressKey('G', wxMOD_CONTROL | wxMOD_SHIFT); // nothing snaps
  waitUntil("snapping is off", [this] { return !frame().workspace().switches().snap; });

  struct Kind {
    const char *tab, *title, *list; ///< none to paste what was dropped last
    std::size_t pieces, scenery;    ///< then on the plan
    double heading;
  };
  for (const Kind& kind : {Kind{"Track", "24130", "pieces", 1, 0, 180},
                           Kind{"Scenery", "Branch station", "scenery", 1, 1, 30},
                           Kind{"Library", "Throat", "library", 3, 1, 30},
                           Kind{nullptr, "Throat", nullptr, 5, 1, 60}}) {
    SCOPED_TRACE(kind.list ? kind.list : "paste");
    const Spot middle(frame().canvasPanel(), {500, 400});
    const auto takeUp = [&] {
      if (kind.tab)
        click(*findLabelled(kind.tab)), doubleClick(inPalette(kind.title, kind.list));
      else
        pressKey('V', wxMOD_CONTROL);
      waitUntil("it hangs on the pointer", [this] { return canvas().carrying(); });
      moveMouse(middle);
    };
    if (!kind.tab)
      pressKey('C', wxMOD_CONTROL);
    takeUp();
    if (kind.pieces == 3) { // once
      pressKey(WXK_ESCAPE);
      ASSERT_TRUE(waitUntil("given up", [this] { return !canvas().carrying(); }));
      takeUp();
    }
    for (const bool ctrl : {false, true}) {
      const Point before = canvas().view().origin();
      if (ctrl)
        holdKey(WXK_CONTROL);
      drag(middle, {Spot(*middle.window, {560, 440})},
           ctrl ? wxMOUSE_BTN_LEFT : wxMOUSE_BTN_MIDDLE);
      if (ctrl)
        releaseKey(WXK_CONTROL);
      waitUntil("panned", [&] {
        return canvas().view().origin() == Point{before.x + 60, before.y + 40};
      });
    }
    const double zoom = canvas().view().zoom();
    const Point under = canvas().pointer();
    pressKey('+');
    waitUntil("zoomed", [&] { return canvas().view().zoom() > zoom; });
    EXPECT_NEAR(canvas().pointer().x, under.x, 1e-6) << "at the pointer";
    turnWheel(1);
    pressKey('F');
    waitUntil("the plan has the pointer at its edge", [&, x = 4]() mutable {
      moveMouse({*middle.window, {x ^= 1, 400}}); // the last of several moves may wait for the next
      return canvas().view().toScreen(canvas().pointer()).x < 8;
    });
    const double origin = canvas().view().origin().x;
    waitUntil("scrolled at the edge", [&] { return canvas().view().origin().x > origin + 30; });
    click(middle);
    waitForPieces(kind.pieces);
    ASSERT_TRUE(waitUntil("dropped", [this] { return !canvas().carrying(); }));
    EXPECT_EQ(plan().content().scenery.size(), kind.scenery);
    const bool isScenery = kind.pieces == kind.scenery;
    EXPECT_EQ(isScenery ? plan().content().scenery[0].heading : plan().pieces().back().heading,
              kind.heading);
    put(kZoomFit);
  }

  // Out of the palette by a drag.
  const Spot there(frame().canvasPanel(), {600, 500});
  click(*findLabelled("Scenery"));
  drag(inPalette("Branch station", "scenery"), {there});
  const std::vector<SceneryItem>& scenery = plan().content().scenery;
  ASSERT_TRUE(waitUntil("the station stands", [&] { return scenery.size() == 2; }));
  const Point at = canvas().view().toWorld({600, 500});
  EXPECT_NEAR(std::hypot(scenery[1].x - at.x, scenery[1].y - at.y), 0, 3);
  click(*findLabelled("Library"));
  drag(inPalette("Throat", "library"), {there});
  waitForPieces(7);
  EXPECT_EQ(plan().pieces()[5].joint(1), (Joint{plan().pieces()[6].id, 0}));
  click(inPalette("Throat", "library"));
  dialogs.answer("Delete Library Block", wxID_YES);
  pressKey(WXK_NUMPAD_DELETE);
  waitUntil("the block is gone", [&] { return !std::filesystem::exists(library / "Throat.txl"); });
  finish();
}

TEST_F(PlanningTest, ThePlanIsPannedByThreeHands) {
  startLaidOut();
  struct Hand {
    const char* name;
    int key, button;
  };
  for (const Hand& hand :
       {Hand{"middle button", 0, wxMOUSE_BTN_MIDDLE}, Hand{"Ctrl", WXK_CONTROL, wxMOUSE_BTN_LEFT},
        Hand{"Space", WXK_SPACE, wxMOUSE_BTN_LEFT}}) {
    SCOPED_TRACE(hand.name);
    click(onPlan({100, 100})); // the keys go to the plan
    const Point origin = canvas().view().origin();
    const Spot from = onPlan({300, 300});
    if (hand.key)
      holdKey(hand.key);
    drag(from, {Spot(*from.window, from.client + wxPoint(60, 40))}, hand.button);
    if (hand.key)
      releaseKey(hand.key);
    ASSERT_TRUE(waitUntil("panned", [&] { return canvas().view().origin().x == origin.x + 60; }));
    EXPECT_EQ(canvas().view().origin().y, origin.y + 40);
    EXPECT_FALSE(canvas().wantsCapture());
  }
  finish();
}

} // namespace
} // namespace trassix::test
