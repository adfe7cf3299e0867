// The right-hand side: properties, tally and purchase list, with real keys where a user types.
#include "document/record_kinds.h"
#include "editing/scenery/annotations.h"
#include "editing/selection/selection.h"
#include "frame_test.h"
#include "host/clipboard.h"
#include "host/command_ids.h"
#include "host/questions.h"
#include "panels/owned_stock.h"
#include "support/print_records.h"
#include "ui/properties/tally_panel.h"

#include <gmock/gmock.h>
#include <wx/choice.h>
#include <wx/clrpicker.h>
#include <wx/listctrl.h>
#include <wx/menu.h>
#include <wx/msgdlg.h>
#include <wx/spinctrl.h>
#include <wx/splitter.h>
#include <wx/stattext.h>

#include <cstdlib>

namespace trassix::test {
namespace {

using testing::StartsWith;

class PanelsTest : public FrameTest {
 protected:
  void start() {
    FrameTest::start();
    waitUntil("the panes have their sizes", [this] { return panelWidth() == 280; });
    settle();
  }
  static wxSplitterWindow& panes() { return control<wxSplitterWindow>("innerSplitter"); }
  static int panelWidth() { return panes().GetClientSize().x - panes().GetSashPosition(); }

  const PlanContent& content() { return plan().content(); }

  template <class Control>
  static Control& control(const char* name) {
    auto* found = dynamic_cast<Control*>(findNamed(name));
    if (found == nullptr)
      throw std::runtime_error(std::string("not on the screen: ") + name);
    return *found;
  }

  /// Selects the first record of a kind alone.
  template <class Record>
  void select(std::vector<Record> PlanContent::*records) {
    plan().clearSelection();
    (plan().edit().*records).front().sel = true;
    frame().workspace().selectionChanged();
    settle();
  }

  static void focus(const char* name) {
    wxWindow& window = control<wxWindow>(name);
    window.SetFocus();
    waitUntil(std::string(name) + " has the focus", [&] { return window.HasFocus(); });
  }

  /// Types into a field in place of what it shows.
  static void typeInto(const char* name, const std::string& text) {
    focus(name);
    control<wxTextCtrl>(name).SelectAll();
    typeText(text);
  }
  static void enter(const char* name, const std::string& text) {
    typeInto(name, text);
    pressKey(WXK_RETURN);
  }
  void pickColour(const Color& color) {
    auto& picker = control<wxColourPickerCtrl>("property.color");
    wxColourPickerEvent event(&picker, picker.GetId(), {color.r, color.g, color.b});
    picker.ProcessWindowEvent(event);
  }
  void openPurchaseList(std::function<void(wxDialog&)> act) {
    dialogs.drive("Purchase List", std::move(act));
    click(control<wxWindow>("tally.purchase"));
    waitUntil("the purchase list was closed",
              [this] { return dialogs.finished() && findNamed("purchaseList") == nullptr; });
  }
  /// Waits until it holds, then takes the edit back in one step.
  void expectOneStep(const std::string& what, const std::function<bool()>& holds) {
    EXPECT_TRUE(waitUntil(what, holds));
    EXPECT_TRUE(frame().dirty());
    put(kUndo);
    EXPECT_FALSE(holds()) << what << " is one undo step";
    put(kRedo);
    settle();
  }
};

TEST_F(PanelsTest, EveryKindOfRecordIsEditedInItsFields) {
  start();
  placePiece();
  Level upper;
  upper.id = 2;
  upper.name = "Upper";
  plan().editSettings().levels.push_back(upper);
  addLabel(plan(), {0, 200}, "Depot");
  addShape(plan(), {{0, 300}, {90, 300}, {90, 360}});
  SceneryItem item;
  item.id = plan().takeId();
  item.item = "72886";
  plan().edit().scenery.push_back(item);

  select(&PlanContent::pieces);
  const auto piece = [this] { return content().pieces.front(); };
  enter("property.x", "12.5 cm");
  expectOneStep("moved", [&] { return piece().x == 125; });
  enter("property.heading", "-90");
  expectOneStep("turned", [&] { return piece().heading == 270; });
  enter("property.height", "40");
  expectOneStep("lifted", [&] { return piece().z == 40; });
  pickColour({1, 2, 3});
  expectOneStep("coloured", [&] { return piece().hasColor && piece().color == Color{1, 2, 3}; });
  click(control<wxWindow>("property.color.none"));
  expectOneStep("of no colour", [&] { return !piece().hasColor; });
  auto& levels = control<wxChoice>("property.level");
  EXPECT_EQ(levels.GetStringSelection(), "Level 1");
  wxCommandEvent chosen(wxEVT_CHOICE, levels.GetId());
  chosen.SetInt(1);
  levels.ProcessWindowEvent(chosen);
  expectOneStep("on the upper level", [&] { return piece().level == 2; });

  select(&PlanContent::labels);
  enter("property.text", "Shed 2");
  expectOneStep("another text", [&] { return content().labels[0].text == "Shed 2"; });
  select(&PlanContent::shapes);
  const auto shape = [this] { return content().shapes.front(); };
  pickColour({9, 8, 7});
  expectOneStep("shape coloured", [&] { return shape().color == Color{9, 8, 7}; });
  enter("property.opacity", "20");
  expectOneStep("translucent", [&] { return shape().a == 51; });
  click(control<wxWindow>("property.outline"));
  expectOneStep("outlined", [&] { return shape().outline; });
  select(&PlanContent::scenery);
  enter("property.width", "300");
  expectOneStep("resized", [&] { return content().scenery[0].scalex < 0.9; });
}

TEST_F(PanelsTest, NamesShowAsTheyAre) {
  start();
  placePiece();
  plan().editSettings().levels[0].name = "Yard & Co";
  plan().edit().pieces[0].cat = "A & B";
  frame().workspace().changed();
  select(&PlanContent::pieces);
  for (const char* shown : {"A & B", "Yard & Co"})
    EXPECT_NE(findLabelled(shown), nullptr) << shown;
  openPurchaseList([&](wxDialog&) {
    waitUntil("the chosen row is named", [] { return findLabelled("of A & B") != nullptr; });
    pressKey(WXK_ESCAPE);
  });
  Choice choice;
  choice.title = "Fill";
  choice.line = "Gap & gap";
  choice.rows = {"24188"};
  choice.notes = {"Joins C & D"};
  dialogs.drive("Fill", [](wxDialog&) {
    waitUntil("the row is explained", [] { return findLabelled("Joins C & D") != nullptr; });
    EXPECT_NE(findLabelled("Gap & gap"), nullptr);
    pressKey(WXK_RETURN);
  });
  EXPECT_EQ(frame().workspace().questions().choose(choice), 0U);
  dialogs.answer("Delete", [](wxDialog& box) {
    EXPECT_TRUE(dynamic_cast<wxMessageDialogBase&>(box).GetMessageDialogStyle() & wxNO_DEFAULT);
    return wxID_NO;
  });
  EXPECT_FALSE(frame().workspace().questions().confirm({"Delete", "Really?"}));
  wxString row;
  frame().Bind(wxEVT_MENU_OPEN, [&row](wxMenuEvent& event) {
    row = event.GetMenu()->FindItemByPosition(0)->GetItemLabelText();
    event.GetMenu()->GetInvokingWindow()->CallAfter([] { pressKey(WXK_ESCAPE); });
  });
  frame().workspace().questions().popupMenu({{"Yard & Co", "", {}, [] {}}});
  EXPECT_EQ(row, "Yard & Co");
}

TEST_F(PanelsTest, RefusedInputSaysWhyInPlaceAndEscTakesItBack) {
  start();
  placePiece();
  plan().clearSelection();
  frame().workspace().changed();
  select(&PlanContent::pieces);
  const std::uint64_t revision = plan().revision();
  auto& field = control<wxTextCtrl>("property.x");
  EXPECT_EQ(findNamed("property.x.problem"), nullptr);
  enter("property.x", "far");
  auto& problem = control<wxStaticText>("property.x.problem");
  EXPECT_THAT(problem.GetLabel().utf8_string(), StartsWith("A length is expected"));
  EXPECT_EQ(field.GetValue(), "far") << "to be mended";
  pressKey(WXK_ESCAPE);
  EXPECT_EQ(field.GetValue(), "0.0 mm");
  EXPECT_FALSE(problem.IsShown());

  // Tab goes to the next field and takes what was typed.
  typeInto("property.x", "7");
  EXPECT_EQ(plan().revision(), revision);
  pressKey(WXK_TAB);
  waitUntil("the next field has the focus", [] { return findNamed("property.y")->HasFocus(); });
  EXPECT_EQ(content().pieces[0].x, 7);
  typeInto("property.y", "3");
  put(kShowGrid);
  EXPECT_EQ(content().pieces[0].y, 3) << "a command counts what is typed so far";
  put(kUndo);

  // The piece goes while one of its fields has the focus: the keys go on working.
  put(kUndo);
  pressKey('Z', wxMOD_CONTROL);
  waitUntil("the piece is undone", [this] { return pieces() == 0; });
  settle();
  pressKey('Y', wxMOD_CONTROL);
  waitUntil("the piece is back", [this] { return pieces() == 1; });
}

TEST_F(PanelsTest, ThePanesKeepTheirSizesAndShowTheTally) {
  start();
  for (int i = 0; i < 3; ++i)
    placePiece(500 * i);
  auto& tally = control<wxListCtrl>("tally");
  EXPECT_GT(tally.GetClientSize().y, 100);
  ASSERT_EQ(tally.GetItemCount(), 1);
  EXPECT_EQ(tally.GetItemText(0, 0), "3");
  EXPECT_EQ(tally.GetItemText(0, 2), "188.3 mm");
  EXPECT_EQ(tally.GetItemText(0, 4), wxString::FromUTF8("Märklin C"));
  const std::string row = "24188\t24188 - 188.3mm\t3\t3\n";
  click(control<wxWindow>("tally.copy"));
  const std::string copied = "System\tArticle\tName\tPlaced\tNeeded\nMärklin C\t" + row;
  EXPECT_TRUE(waitUntil("the tally is on the clipboard",
                        [&] { return frame().workspace().clipboard().text() == copied; }));
  dialogs.answer("", wxID_CANCEL); // the desktop's own dialog keeps its title to itself
  click(control<wxWindow>("tally.save"));
  waitUntil("the dialog came", [this] { return dialogs.finished(); });
  dynamic_cast<TallyPanel&>(*tally.GetParent()).saveCsv(home() / "mytally.csv");
  EXPECT_EQ(readText(home() / "mytally.csv"), "\xEF\xBB\xBFSystem,Article,Name,Placed,Needed\r\n"
                                              "Märklin C,24188,24188 - 188.3mm,3,3\r\n");

  const wxSize size = frame().GetSize();
  frame().SetSize(size - wxSize(200, 150));
  waitUntil("the window is smaller", [&] { return panes().GetClientSize().x < size.x - 400; });
  EXPECT_EQ(panelWidth(), 280);
}

TEST_F(PanelsTest, ThePurchaseListRemembersWhatIsOwnedAndShowsWhereItGoes) {
  // The desktop's way of opening an address, which writes it down instead.
  const std::filesystem::path opened = home() / "opened";
  writeText(home() / "bin" / "xdg-open",
            "#!/bin/sh\nprintf %s \"$1\" >'" + opened.string() + "'\n");
  std::filesystem::permissions(home() / "bin" / "xdg-open", std::filesystem::perms::owner_all);
  setenv("PATH", ((home() / "bin").string() + ":" + std::getenv("PATH")).c_str(), 1);
  writeText(layoutsFolder() / OwnedStock::kOlderFileName, "# shelf\n24130 4\n");
  start();
  for (int i = 0; i < 3; ++i)
    placePiece(500 * i);

  wxSize size;
  const std::string rest = "https://shop.example/cart/?24188=1";
  openPurchaseList([&](wxDialog& dialog) {
    const auto& address = control<wxTextCtrl>("address");
    EXPECT_EQ(address.GetValue(), "https://shop.example/cart/?24188=3");
    EXPECT_EQ(findNamed("purchasePicture"), nullptr) << "not in business mode";
    focus("owned");
    control<wxSpinCtrl>("owned").SetSelection(-1, -1);
    typeText("2");
    pressKey(WXK_TAB);
    waitUntil("less is to buy", [&] { return address.GetValue() == rest; });
    EXPECT_EQ(control<wxListCtrl>("purchases").GetItemText(0, 4), "1");
    EXPECT_FALSE(std::filesystem::exists(opened)) << "shown before it is opened";
    click(control<wxWindow>("openShop"));
    waitUntil("the address was opened", [&] { return readText(opened) == rest; });
    size = dialog.GetClientSize() + wxSize(60, 90);
    dialog.SetClientSize(size);
    waitUntil("it has another size", [&] { return dialog.GetClientSize() == size; });
    dialog.EndModal(wxID_CANCEL);
  });
  const auto memory = home() / ".trassix" / "memory.json";
  EXPECT_THAT(readText(memory), StartsWith("{\n  \"ownedStock\": {\n    \"24130\": 4,\n"
                                           "    \"24188\": 2\n  },\n"));

  openPurchaseList([&](wxDialog& dialog) {
    EXPECT_EQ(control<wxListCtrl>("purchases").GetItemText(0, 3), "2");
    EXPECT_EQ(dialog.GetClientSize(), size);
    pressKey(WXK_ESCAPE);
  });

  // What cannot be read is neither shown as nothing nor overwritten.
  std::filesystem::remove(memory);
  std::filesystem::create_directory(memory);
  openPurchaseList([&](wxDialog&) {
    EXPECT_TRUE(findNamed("purchaseProblem"));
    EXPECT_FALSE(control<wxWindow>("owned").IsEnabled());
    pressKey(WXK_ESCAPE);
  });
  EXPECT_TRUE(std::filesystem::is_directory(memory));
}

} // namespace
} // namespace trassix::test
