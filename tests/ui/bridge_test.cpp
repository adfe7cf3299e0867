#include "document/plan_content.h"
#include "editing/canvas/plan_theme.h"
#include "editing/canvas/recording_surface.h"
#include "editing/elevation/crossings.h"
#include "editing/elevation/end_heights.h"
#include "editing/selection/picking.h"
#include "editing/selection/selection.h"
#include "host/clipboard.h"
#include "host/command_ids.h"
#include "host/plan_preview.h"
#include "measures/measure_format.h"
#include "planning_test.h"
#include "ui/wizards/bridge_side_view.h"

#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/menu.h>

namespace trassix::test {
namespace {

/// Two loops whose straights cross in the middle, flat on the board.
Plan figureEight() {
  Plan plan;
  plan.place("24172", {0, 0, 45}).extend("24172").extend("24188").extend("24172", 2);
  plan.extend("24230", 9);
  plan.extend("24172", 2).extend("24188").extend("24172", 2);
  plan.extendLeft("24230", 9);
  return plan;
}
constexpr std::int32_t kUpper = 17; // the straight that leads over the other one's middle

/// Knows where its texts are.
class Sheet : public RecordingSurface {
 public:
  explicit Sheet(SizePx size) : size_(size) {}
  void text(std::string_view text, Point centre, double degrees, const TextStyle& style) override {
    const double half = textSize(text, style).width / 2;
    const double x = degrees == 0 ? half : 0;
    const double y = degrees == 0 ? 0 : half;
    EXPECT_TRUE(centre.x >= x && centre.x <= size_.width - x && centre.y >= y &&
                centre.y <= size_.height - y)
        << text;
    RecordingSurface::text(text, centre, degrees, style);
  }
  bool tells(const std::string& text) const { return std::ranges::count(texts, text) > 0; }
  /// Width by height of what is drawn in this colour, the first of it.
  double shapeOf(Rgba edge) const {
    for (const Line& area : areas)
      if (area.stroke.color == edge)
        return (area.points[1].x - area.points[0].x) / (area.points[3].y - area.points[0].y);
    return 0;
  }

 private:
  SizePx size_;
};

TEST(BridgeSideView, TellsClearanceAndPiersInEveryUnitAndIsTrueToScaleWhereItCrosses) {
  const Plan eight = figureEight();
  BridgeTask task;
  task.pieces = {kUpper};
  const BridgePlan plan = planBridge(eight.layout, task);
  ASSERT_TRUE(plan.possible());
  const BridgeSpan& span = plan.spans.at(0);
  const PlanTheme& theme = screenTheme();
  struct Case {
    BridgePart part;
    SizePx size;
    std::int32_t units;
    const char* pier; ///< of those at the bridge
  };
  for (const Case& wanted : {Case{BridgePart::Whole, {620, 144}, kMillimetres, "80.0"},
                             Case{BridgePart::Whole, {1240, 288}, kInches, "3.15"},
                             Case{BridgePart::Crossing, {307, 150}, kMillimetres, "80.0"},
                             Case{BridgePart::Crossing, {614, 300}, kCentimetres, "8.00"}}) {
    SCOPED_TRACE(wanted.pier);
    Sheet sheet(wanted.size);
    paintBridgeSide(sheet, wanted.size, plan, wanted.part, theme, wanted.units);
    EXPECT_TRUE(sheet.tells(formatLength(plan.crossed.at(0).clearance, wanted.units)));
    EXPECT_TRUE(sheet.tells(wanted.pier));
    const double shape = (span.to - span.from) / plan.side.deck;
    if (wanted.part == BridgePart::Crossing)
      EXPECT_NEAR(sheet.shapeOf(theme.girder), shape, 1e-6 * shape);
    else
      EXPECT_LT(sheet.shapeOf(theme.girder), shape / 2) << "heights are drawn larger";
  }
  Sheet sheet({620, 144});
  task.limit = 0.01;
  paintBridgeSide(sheet, {620, 144}, planBridge(eight.layout, task), BridgePart::Whole, theme, 0);
  EXPECT_EQ(sheet.texts.size(), 1U);
}

class BridgeTest : public PlanningTest {
 protected:
  void showEight() {
    startLaidOut();
    show(figureEight());
    ASSERT_EQ(openEnds(plan()), 0);
    ASSERT_EQ(plan().findPiece(kUpper)->cat, "24188");
    ASSERT_TRUE(trackCrossings(plan()).at(0).tooLow());
  }
  static wxTextCtrl& field(const char* name) { return dynamic_cast<wxTextCtrl&>(*findNamed(name)); }
  static wxString problem() { return findNamed("problem")->GetLabel(); }
};

TEST_F(BridgeTest, OneLoopOfAFigureEightIsLiftedOverTheOtherInFewActions) {
  showEight();
  const PlanContent flat = plan().content();
  int actions = 0;
  pressKey('0', wxMOD_CONTROL);
  ++actions;
  settle();
  const WorldConnector end = worldEnd(*plan().findPiece(kUpper), 0);
  const WorldConnector other = worldEnd(*plan().findPiece(kUpper), 1);
  click(onPlan({end.x + (other.x - end.x) * 0.85, end.y + (other.y - end.y) * 0.85}));
  ASSERT_TRUE(waitUntil("the straight is selected", [&] { return plan().findPiece(kUpper)->sel; }));
  ++actions;
  dialogs.drive("Bridge Wizard", [](wxDialog&) { pressKey(WXK_RETURN); });
  pressKey('L', wxMOD_ALT);
  pressKey('B');
  actions += 3; // the menu, its row, and the button in the dialog
  ASSERT_TRUE(waitUntil("it was built", [&] { return plan().content() != flat; }));
  EXPECT_LE(actions, 10);

  const std::vector<TrackCrossing> crossings = trackCrossings(plan());
  ASSERT_EQ(crossings.size(), 1U);
  EXPECT_FALSE(crossings[0].tooLow());
  EXPECT_GE(crossings[0].clearance, leastClearance(TrackSystem::CTrack));
  EXPECT_EQ(openEnds(plan()), 0);
  EXPECT_LT(largestPlay(plan()).step, 0.01);
  for (const PlacedPiece& piece : plan().pieces())
    EXPECT_LE(std::abs(piece.grade), 4.0) << piece.cat;
  const auto tally = [this] {
    click(*findNamed("tally.copy"));
    settle();
    return frame().workspace().clipboard().text();
  };
  const std::string supports = tally();
  EXPECT_NE(supports.find("Supports\t"), std::string::npos) << supports;
  EXPECT_NE(supports.find("Pier 80.0 mm\t2\t"), std::string::npos) << supports;
  frame().canvasPanel().SetFocus();
  pressKey('Z', wxMOD_CONTROL);
  ASSERT_TRUE(waitUntil("one step back", [&] {
    return std::ranges::equal(plan().pieces(), flat.pieces, sameButSelected<PlacedPiece>);
  }));
  EXPECT_EQ(tally().find("Supports"), std::string::npos);
  finish();
}

TEST_F(BridgeTest, TheDialogFollowsWhatIsTypedLastAndLeavesThePlanAlone) {
  showEight();
  saveAs("Eight");
  wxMenuBar& menus = *frame().GetMenuBar();
  const wxMenuItem& row = *menus.FindItem(kBridgeWizard);
  menus.UpdateMenus();
  EXPECT_FALSE(row.IsEnabled());
  EXPECT_TRUE(row.GetHelp().Contains("Select the track")) << row.GetHelp();
  setSelected(plan(), {RecordKind::Piece, kUpper}, true);
  frame().workspace().selectionChanged();
  menus.UpdateMenus();
  EXPECT_TRUE(row.IsEnabled());
  const PlanContent flat = plan().content();

  dialogs.drive("Bridge Wizard", [&](wxDialog& dialog) {
    wxWindow& ok = *dialog.FindWindow(wxID_OK);
    const auto deck = [] { return field("bridgeDeck").GetValue(); };
    wxString before = deck();
    EXPECT_TRUE(ok.IsEnabled()) << problem();
    EXPECT_FALSE(frame().workspace().preview()->records().pieces.empty());
    click(*findNamed("bridgeWire"));
    waitUntil("room for wire lifts the deck", [&] { return deck() != before; });
    before = deck();

    field("bridgeClearance").SetFocus();
    field("bridgeClearance").SelectAll();
    typeText("64");
    waitUntil("the deck follows a clearance", [&] { return deck() != before && ok.IsEnabled(); });
    pressKey(WXK_TAB);
    pressKey(WXK_TAB);
    typeText("90");
    waitUntil("the clearance follows the deck",
              [&] { return field("bridgeClearance").GetValue() == "70.0 mm"; });

    pressKey(WXK_TAB);
    typeText("1.2");
    waitUntil("too gentle is refused", [&] { return !ok.IsEnabled(); });
    EXPECT_TRUE(problem().Contains("too short")) << problem();
    EXPECT_TRUE(frame().workspace().preview()->records().pieces.empty());
    field("bridgeLimit").SelectAll();
    typeText("9");
    waitUntil("too steep is refused", [&] { return problem().Contains("At most 5 %"); });
    field("bridgeLimit").SelectAll();
    typeText("5.0");
    waitUntil("and what is possible taken", [&] { return ok.IsEnabled(); });

    auto& choices = dynamic_cast<wxListBox&>(*findNamed("bridgeChoices"));
    waitUntil("others are offered", [&] { return choices.GetCount() > 1; });
    const wxString limit = field("bridgeLimit").GetValue();
    pressKey('A', wxMOD_ALT);
    waitUntil("the list has the keys", [&] { return choices.HasFocus(); });
    pressKey(WXK_DOWN);
    waitUntil("another one is taken", [&] { return choices.GetSelection() == 1; });
    EXPECT_TRUE(ok.IsEnabled());
    pressKey(WXK_UP);
    waitUntil("and the first one again", [&] { return field("bridgeLimit").GetValue() == limit; });
    pressKey(WXK_ESCAPE);
  });
  put(kBridgeWizard);
  EXPECT_EQ(plan().content(), flat);
  EXPECT_EQ(frame().workspace().preview(), nullptr);
  EXPECT_FALSE(title().ends_with('*'));

  dialogs.drive("Bridge Wizard", [](wxDialog&) {
    auto& spans = dynamic_cast<wxChoice&>(*findNamed("bridgeSpan"));
    pressKey('S', wxMOD_ALT);
    for (unsigned down = 1; down < spans.GetCount(); ++down)
      pressKey(WXK_DOWN);
    waitUntil("only heights change",
              [&] { return spans.GetStringSelection() == "Plain track on a deck"; });
    pressKey('B', wxMOD_ALT);
  });
  put(kBridgeWizard);
  EXPECT_EQ(pieces(), flat.pieces.size());
  EXPECT_FALSE(trackCrossings(plan()).at(0).tooLow());
  EXPECT_TRUE(title().ends_with('*'));
  finish();
}

} // namespace
} // namespace trassix::test
