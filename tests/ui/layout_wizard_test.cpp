#include "editing/selection/open_ends.h"
#include "host/command_ids.h"
#include "planning_test.h"

#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/radiobut.h>
#include <wx/stattext.h>

#include <set>

namespace trassix::test {
namespace {

/// The Layout Wizard by mouse and keys.
class LayoutWizardTest : public PlanningTest {
 protected:
  template <class Control>
  static Control& shown(const char* name) {
    waitUntil(std::string(name) + " is there", [name] { return findNamed(name) != nullptr; });
    return dynamic_cast<Control&>(*findNamed(name));
  }
  /// Alt and its letter go to a list, whose rows the arrow keys change.
  static void chooseRow(const char* name, char letter, int row) {
    auto& list = shown<wxChoice>(name);
    const int from = list.GetSelection();
    pressKey(letter, wxMOD_ALT);
    for (int i = from; i != row; i += row > from ? 1 : -1)
      pressKey(row > from ? WXK_DOWN : WXK_UP);
    waitUntil(std::string(name) + " has its row", [&] { return list.GetSelection() == row; });
  }
  static void check(const char* name, bool on = true) {
    auto& box = shown<wxCheckBox>(name);
    click({box, wxPoint(10, box.GetClientSize().y / 2)});
    waitUntil(std::string(name) + " is checked", [&] { return box.GetValue() == on; });
  }
  static void enter(const char* name, const std::string& text) {
    auto& field = shown<wxTextCtrl>(name);
    click(field);
    waitUntil(std::string(name) + " has the focus", [&] { return field.HasFocus(); });
    pressKey('A', wxMOD_CONTROL);
    typeText(text);
    waitUntil(text + " is entered", [&] { return field.GetValue() == text; });
  }
  static bool found(int proposals) {
    return waitUntil("it was found", [proposals] {
      return findNamed(("layoutProposal" + std::to_string(proposals)).c_str()) != nullptr;
    });
  }
  static std::string said(const char* name) {
    const wxWindow* text = findNamed(name);
    return text ? text->GetLabel().utf8_string() : std::string();
  }
  /// No two of the letters that Alt reaches are the same.
  static void expectLettersApart(const wxWindow& window, std::set<wxUniChar>& letters) {
    for (auto node = window.GetChildren().GetFirst(); node; node = node->GetNext()) {
      const wxWindow& child = *node->GetData();
      const wxString label = child.GetLabel();
      const int at = label.Find('&');
      if (!child.IsShown())
        continue;
      if (at != wxNOT_FOUND) {
        EXPECT_TRUE(letters.insert(wxToupper(label[static_cast<std::size_t>(at) + 1])).second)
            << label;
      }
      expectLettersApart(child, letters);
    }
  }
  static void expectLettersApart(const wxWindow& dialog) {
    std::set<wxUniChar> letters;
    expectLettersApart(dialog, letters);
  }
};

TEST_F(LayoutWizardTest, ANewUserSavesAClosedPlanWithAStationInTenActions) {
  int actions = 0;
  const auto press = [&actions](int key, int modifiers = wxMOD_NONE) {
    ++actions;
    pressKey(key, modifiers);
  };
  for (const char* greeting : {"Welcome to Trassix", "Choose Your Experience"})
    dialogs.drive(greeting, [&](wxDialog&) { press(WXK_RETURN); });
  ASSERT_TRUE(startAsIs());
  waitUntil("the plan is there", [this] { return dialogs.finished() && frame().IsActive(); });
  dialogs.drive("Layout Wizard", [&](wxDialog&) {
    press('I', wxMOD_ALT); // a station
    press(WXK_RETURN);
    found(1);
    press(WXK_RETURN);
  });
  press('L', wxMOD_ALT);
  press('W');
  ASSERT_TRUE(waitUntil("it is on the plan", [this] { return pieces() > 0; }));
  dialogs.drive("Save Layout", [&](wxDialog&) { press(WXK_RETURN); });
  press('S', wxMOD_CONTROL);
  ASSERT_TRUE(waitUntil("saved", [this] { return !frame().dirty(); }));
  EXPECT_LE(actions, 10);
  EXPECT_TRUE(std::filesystem::exists(layoutsFolder() / "My Layout.txl"));
  EXPECT_EQ(openEnds(plan()), 0);
  EXPECT_EQ(brokenRule(plan()), "");
  EXPECT_EQ(plan().settings().baseboard,
            (std::vector<Point>{{0, 0}, {2000, 0}, {2000, 1000}, {0, 1000}}));
  EXPECT_EQ(std::ranges::count(plan().pieces(), "24611", &PlacedPiece::cat) +
                std::ranges::count(plan().pieces(), "24612", &PlacedPiece::cat),
            2);
  finish();
}

TEST_F(LayoutWizardTest, TwoTracksOnAnLAreDraggedFoundSavedUndoneAndRemembered) {
  startLaidOut();
  dialogs.drive("Layout Wizard", [&](wxDialog& dialog) {
    expectLettersApart(dialog);
    chooseRow("layoutTable", 'T', 5);
    chooseRow("layoutTracks", 'R', 1);
    wxWindow& picture = *findNamed("layoutTablePicture");
    // The L's lower right corner, as far from the picture's edge as its measures take.
    const wxSize size = picture.GetClientSize();
    const double zoom = std::min((size.x - 80) / 2400.0, (size.y - 80) / 1800.0);
    const wxPoint corner(static_cast<int>(size.x / 2.0 + 1200 * zoom),
                         static_cast<int>(size.y / 2.0 + 900 * zoom));
    drag({picture, corner}, {Spot(picture, corner + wxPoint(20, 0)),
                             Spot(picture, corner + wxPoint(static_cast<int>(200 * zoom), 0))});
    EXPECT_EQ(shown<wxChoice>("layoutTable").GetStringSelection(), "Free outline");
    check("layoutStation");
    auto& side = shown<wxChoice>("layoutStationSide");
    side.SetFocus();
    while (side.GetStringSelection() != "Bottom" &&
           side.GetSelection() + 1 < static_cast<int>(side.GetCount())) {
      const int before = side.GetSelection();
      pressKey(WXK_DOWN);
      waitUntil("the next side", [&] { return side.GetSelection() > before; });
    }
    pressKey(WXK_RETURN);
    found(2);
    expectLettersApart(dialog);
    EXPECT_NE(said("layoutRemarks").find("baseboard stays"), std::string::npos);
    click(*findNamed("layoutPicture2"));
    waitUntil("the second one is chosen",
              [] { return shown<wxRadioButton>("layoutProposal2").GetValue(); });
    pressKey(WXK_RETURN);
  });
  pressKey('L', wxMOD_ALT);
  pressKey('W');
  ASSERT_TRUE(waitUntil("it is on the plan", [this] { return pieces() > 0; }));
  const std::vector<Point> board = plan().settings().baseboard;
  ASSERT_EQ(board.size(), 6U);
  EXPECT_NEAR(board[3].x, 2600, 30);
  EXPECT_NEAR(std::fmod(board[3].x, 10), 0, 1e-6);
  EXPECT_EQ(openEnds(plan()), 0);
  const std::size_t all = pieces();
  put(kUndo);
  EXPECT_EQ(pieces(), 0U);
  EXPECT_EQ(plan().settings().baseboard, board);
  EXPECT_FALSE(plan().canUndo()) << "one step";
  put(kRedo);
  EXPECT_EQ(pieces(), all);
  saveAs("Around the corner");
  put(wxID_NEW);
  waitForPieces(0);
  dialogs.drive("Open Layout", [](wxDialog&) {
    pressKey(WXK_DOWN);
    pressKey(WXK_RETURN);
  });
  put(wxID_OPEN);
  waitForPieces(all);
  EXPECT_EQ(openEnds(plan()), 0) << "the main line is closed after reading too";
  EXPECT_EQ(brokenRule(plan()), "");

  const auto opened = [&](int tracks) {
    std::string greeting;
    dialogs.drive("Layout Wizard", [&](wxDialog&) {
      greeting = said("layoutNotes");
      EXPECT_EQ(shown<wxChoice>("layoutTracks").GetSelection(), tracks - 1);
      EXPECT_EQ(shown<wxCheckBox>("layoutStation").GetValue(), tracks == 2);
      EXPECT_EQ(shown<wxTextCtrl>("layoutUsable").GetValue(), "500.0 mm");
      pressKey(WXK_ESCAPE);
    });
    put(kLayoutWizard);
    EXPECT_NE(greeting, "");
    return greeting;
  };
  const std::string unchanged = opened(2);
  plan().edit().pieces.pop_back();
  frame().workspace().changed();
  EXPECT_NE(opened(1), unchanged);
  EXPECT_EQ(pieces(), all - 1);
  finish();
}

TEST_F(LayoutWizardTest, TheTableIsShapedByKeysTypedSizesAndTurns) {
  startLaidOut();
  const std::uint64_t before = plan().revision();
  dialogs.drive("Layout Wizard", [&](wxDialog& dialog) {
    wxWindow& picture = *findNamed("layoutTablePicture");
    const auto table = [] { return shown<wxChoice>("layoutTable").GetStringSelection(); };
    const auto measures = [](const char* length) {
      return waitUntil(std::string("the side measures ") + length, [length] {
        return shown<wxTextCtrl>("layoutSideLength").GetValue() == length;
      });
    };
    click(picture); // its middle, which is no corner
    for (const int key : {WXK_PAGEDOWN, WXK_RIGHT, WXK_RIGHT, WXK_UP})
      pressKey(key);
    EXPECT_TRUE(measures("2020.0 mm"));
    pressKey(WXK_INSERT);
    auto& sides = shown<wxChoice>("layoutMeasuredSide");
    waitUntil("there are two more corners", [&] { return sides.GetCount() == 6; });

    const wxWindow& find = *dialog.FindWindow(wxID_FORWARD);
    enter("layoutSideLength", "9");
    EXPECT_NE(said("problem"), "");
    EXPECT_FALSE(find.IsEnabled());
    enter("layoutSideLength", "180 cm");
    EXPECT_EQ(said("problem"), "");
    EXPECT_TRUE(find.IsEnabled());
    click(*findNamed("layoutTurn"));
    waitUntil("its first side is at the right",
              [&] { return sides.GetStringSelection().StartsWith("Right"); });
    click(*findNamed("layoutMirror"));
    waitUntil("it is at the left", [&] { return sides.GetStringSelection().StartsWith("Left"); });

    chooseRow("layoutTable", 'T', 9);
    EXPECT_EQ(table(), "L by measures");
    enter("layoutMeasure1", "2.6 m");
    const wxSize size = picture.GetClientSize();
    const double zoom = std::min((size.x - 80) / 2600.0, (size.y - 80) / 1800.0);
    const wxPoint corner(static_cast<int>(size.x / 2.0 + 1300 * zoom),
                         static_cast<int>(size.y / 2.0 + 900 * zoom));
    pressMouse({picture, corner});
    moveMouse({picture, corner - wxPoint(60, 30)});
    waitUntil("it is dragged", [&] { return table() == "Free outline"; });
    pressKey(WXK_ESCAPE);
    releaseMouse();
    chooseRow("layoutMeasuredSide", 'W', 4);
    EXPECT_TRUE(measures("2600.0 mm")) << "as it was";

    chooseRow("layoutSystem", 'Y', 5);
    EXPECT_FALSE(findNamed("layoutStation")->IsEnabled());
    EXPECT_NE(said("layoutNotes").find("station"), std::string::npos);
    pressKey(WXK_ESCAPE);
  });
  put(kLayoutWizard);
  EXPECT_EQ(plan().revision(), before);
  finish();
}

TEST_F(LayoutWizardTest, ARefusalSaysWhatHelpsAndMoreIsFoundBesideOtherTrack) {
  startLaidOut();
  placePiece(5000);
  const std::uint64_t before = plan().revision();
  dialogs.drive("Layout Wizard", [&](wxDialog& dialog) {
    chooseRow("layoutRadius", 'N', 3);
    pressKey(WXK_RETURN);
    waitUntil("it is refused", [] { return !said("problem").empty(); });
    EXPECT_NE(findNamed("layoutUseTable"), nullptr);
    expectLettersApart(dialog);
    click(*findNamed("layoutUseRadius"));
    waitUntil("nothing is said any more", [] { return said("problem").empty(); });
    check("layoutStation");
    enter("layoutUsable", "2 m");
    pressKey(WXK_RETURN);
    waitUntil("the station is too long", [] { return !said("problem").empty(); });
    click(*findNamed("layoutUseLength"));
    waitUntil("nothing is said", [] { return said("problem").empty(); });
    pressKey(WXK_RETURN);
    found(1);
    pressKey('B', wxMOD_ALT);
    check("layoutStation", false);
    pressKey(WXK_RETURN);
    found(1);
    waitUntil("it has found all", [] { return findNamed("layoutMore")->IsEnabled(); });
    click(*findNamed("layoutMore"));
    waitUntil("there are more", [] { return findNamed("layoutEarlier")->IsEnabled(); });
    click(*findNamed("layoutEarlier"));
    EXPECT_TRUE(shown<wxRadioButton>("layoutAdd").GetValue());
    pressKey(WXK_ESCAPE);
  });
  put(kLayoutWizard);
  EXPECT_EQ(plan().revision(), before) << "nothing is changed until it is placed";
  std::size_t added = 0;
  for (const char* how : {"layoutAdd", "layoutReplace"}) {
    dialogs.drive("Layout Wizard", [&](wxDialog&) {
      pressKey(WXK_RETURN);
      found(1);
      click({*findNamed(how), wxPoint(10, 10)});
      doubleClick(*findNamed("layoutPicture1"));
    });
    put(kLayoutWizard);
    const bool adds = std::exchange(added, pieces()) == 0;
    EXPECT_EQ(std::ranges::count(plan().pieces(), "24188", &PlacedPiece::cat) > 0, adds);
  }
  EXPECT_EQ(openEnds(plan()), 0);
  finish();
}

} // namespace
} // namespace trassix::test
