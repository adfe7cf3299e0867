#include "driver.h"
#include "editing/selection/selection.h"
#include "frame_test.h"
#include "host/command_ids.h"
#include "ui/canvas/canvas_panel.h"
#include "ui/commands/command_table.h"

#include <gmock/gmock.h>
#include <wx/menu.h>
#include <wx/srchctrl.h>
#include <wx/toolbar.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <set>
#include <sstream>

namespace trassix::test {
namespace {

/// Cancels every dialog and keeps its title.
class Canceller : public wxModalDialogHook {
 public:
  Canceller() { Register(); }
  std::vector<std::string> titles;

 protected:
  int Enter(wxDialog* dialog) override {
    titles.push_back(dialog->GetTitle().utf8_string());
    return wxID_CANCEL;
  }
};

const char* const kMenuRows[] = {
    "&File",
    "&New Layout\tCtrl+N 5002 normal",
    "&Open Layout...\tCtrl+O 5000 normal",
    "-",
    "&Save\tCtrl+S 5003 normal",
    "Save &As...\tCtrl+Shift+S 5004 normal",
    "-",
    "&Import Layout... 1900 normal",
    "&Export Layout... 1901 normal",
    "-",
    "&Close Layout\tCtrl+W 5001 normal",
    "-",
    "Page Set&up... 5012 normal",
    "Print Pre&view... 5013 normal",
    "&Print...\tCtrl+P 5010 normal",
    "-",
    "Save as &Library Block... 2001 normal",
    "-",
    "E&xit 5006 normal",
    "&Edit",
    "&Undo\tCtrl+Z 2002 normal",
    "&Redo\tCtrl+Y 2003 normal",
    "-",
    "&Delete\tDel 2004 normal",
    "Select &All\tCtrl+A 2005 normal",
    "&View",
    "Zoom &In\t+ 2006 normal",
    "Zoom &Out\t- 2007 normal",
    "Zoom to &Fit\tCtrl+0 2008 normal",
    "-",
    "Show &Grid\tCtrl+G 2009 check on",
    "&Snap\tCtrl+Shift+G 2010 check on",
    "Show &Rails 2012 check on",
    "&Layout",
    "Units of Measure",
    "Millimetres (mm) 2021 radio on",
    "Centimetres (cm) 2022 radio",
    "Inches (in) 2023 radio",
    "-",
    "Layout &Shape... 2020 normal",
    "Layout &Wizard (Experimental)... 2018 normal",
    "&Bridge Wizard (Experimental)... 2019 normal",
    "&Help",
    "&Help\tF1 2027 normal",
    "Layout &Wizard Help 2028 normal",
    "-",
    "&Options... 2029 normal",
};

const char* const kTools[] = {
    "Undo 2002 normal",
    "Redo 2003 normal",
    "-",
    "Levels 2024 normal Manage layout levels (decks): height, color, and shape",
    "-",
    "3D View 2000 normal",
    "-",
    "Fit 2008 normal",
    "-",
    "Hide Labels 2011 check Toggle track labels and join dots",
    "-",
    "Tunnel 2013 normal Place tunnel portals on the selected chain (or remove if already in a "
    "tunnel)",
    "Measure 2014 check Measuring tape: click two points on the canvas to lay down a length "
    "annotation",
    "Polygon 2015 check Draw a free-form polygon (access hatch, river, mountain, etc.)",
    "Rectangle 2016 normal Place a rectangle of an exact size -- easier than drawing one by hand",
    "Elevation 2017 normal Open the Elevation Wizard to set up track grades and inclines",
    "-"};

void listMenu(const wxMenu& menu, std::vector<std::string>& rows) {
  std::set<wxUniChar> mnemonics;
  for (const wxMenuItem* item : menu.GetMenuItems()) {
    if (item->IsSeparator()) {
      rows.push_back("-");
      continue;
    }
    std::string row = item->GetItemLabel().utf8_string();
    if (const int at = item->GetItemLabel().Find('&'); at != wxNOT_FOUND) {
      EXPECT_TRUE(
          mnemonics.insert(wxToupper(item->GetItemLabel()[static_cast<size_t>(at) + 1])).second)
          << row;
    }
    if (item->GetSubMenu() != nullptr) {
      rows.push_back(row);
      listMenu(*item->GetSubMenu(), rows);
      continue;
    }
    row += ' ';
    row += std::to_string(item->GetId());
    row += item->GetKind() == wxITEM_CHECK   ? " check"
           : item->GetKind() == wxITEM_RADIO ? " radio"
                                             : " normal";
    rows.push_back(row + (item->IsCheckable() && item->IsChecked() ? " on" : ""));
  }
}

TEST_F(FrameTest, MenusAndToolsAreAsAgreed) {
  start();
  std::vector<std::string> rows;
  const wxMenuBar& bar = *frame().GetMenuBar();
  for (size_t i = 0; i < bar.GetMenuCount(); ++i) {
    rows.push_back(bar.GetMenuLabel(i).utf8_string());
    listMenu(*bar.GetMenu(i), rows);
  }
  EXPECT_EQ(rows, (std::vector<std::string>(std::begin(kMenuRows), std::end(kMenuRows))));

  std::vector<std::string> tools;
  wxToolBar& toolBar = *frame().GetToolBar();
  for (int i = 0; i < static_cast<int>(toolBar.GetToolsCount()); ++i) {
    const wxToolBarToolBase& tool = *toolBar.GetToolByPos(i);
    if (tool.IsSeparator()) {
      tools.push_back("-");
      continue;
    }
    wxString tip = tool.GetShortHelp();
    if (const Command* command = findCommand(tool.GetId()); command->run == nullptr) {
      EXPECT_TRUE(tip.EndsWith("Not available in this version"));
      EXPECT_FALSE(tool.IsEnabled());
      tip = tip.BeforeLast('\n');
    }
    tools.push_back((tool.GetLabel() + wxString::Format(" %d ", tool.GetId()) +
                     (tool.GetKind() == wxITEM_CHECK ? "check" : "normal") +
                     (tip.empty() || tip.StartsWith("Not available") ? "" : " " + tip))
                        .utf8_string());
  }
  EXPECT_EQ(tools, (std::vector<std::string>(std::begin(kTools), std::end(kTools))));
}

/// Everything that a command can change, in one text.
std::string traceOf(MainFrame& frame, const Canceller& dialogs) {
  std::ostringstream trace;
  const ViewTransform& view = frame.canvasPanel().canvas().view();
  const EditorSwitches& switches = frame.workspace().switches();
  trace << frame.layout().revision() << frame.GetTitle() << view.zoom() << view.origin().x
        << switches.grid << switches.snap << switches.labels << switches.rails
        << static_cast<int>(switches.mode) << frame.layout().settings().units
        << dialogs.titles.size() << (findNamed("help") != nullptr);
  return trace.str();
}

TEST_F(FrameTest, EveryCommandDoesSomething) {
  start();
  const Canceller canceller;
  std::set<int> ids;
  std::map<wxString, int> keys;
  for (const Command* row : commands()) {
    const Command& command = *row;
    SCOPED_TRACE(command.id);
    EXPECT_TRUE(ids.insert(command.id).second);
    if (command.menuText != nullptr && wxString(command.menuText).Contains("\t")) {
      EXPECT_TRUE(keys.emplace(wxString(command.menuText).AfterFirst('\t'), command.id).second);
    }
    frame().layout().clear(); // one piece that stays, one to take back and one to do again
    frame().layout().ensureLevel();
    placePiece();
    placePiece(500);
    placePiece(1000);
    frame().layout().undo();
    selectAll(frame().layout());
    if (!commandEnabled(command, frame().layout()))
      continue;
    if (wxWindow* help = findNamed("help"))
      help->Hide();
    if (command.kind == Command::Kind::Check) {
      if (command.menuText != nullptr)
        frame().GetMenuBar()->Check(command.id, !frame().GetMenuBar()->IsChecked(command.id));
      else
        frame().GetToolBar()->ToggleTool(command.id, true);
    }
    if (command.id == kUnitsMm)
      put(kUnitsInch);
    if (command.id == kSelectAll)
      frame().layout().clearSelection();
    const std::string before = traceOf(frame(), canceller);
    put(command.id);
    EXPECT_NE(traceOf(frame(), canceller), before);
  }
  for (const int later : std::initializer_list<int>{
           wxID_PREVIEW, wxID_PRINT, kView3D, kLayoutWizard, kBridgeWizard, kElevation, kTunnel}) {
    EXPECT_FALSE(commandEnabled(*findCommand(later), frame().layout()));
  }
  EXPECT_THAT(canceller.titles, testing::IsSupersetOf({"Validate", "Properties", "Save Layout"}));
}

TEST_F(FrameTest, KeysTypedIntoATextStayThere) {
  start();
  placePiece();
  ASSERT_TRUE(waitUntil("there is a search field", [] { return findNamed("search"); }));
  auto* search = dynamic_cast<wxSearchCtrl*>(findNamed("search"));
  const double zoom = frame().canvasPanel().canvas().view().zoom();
  search->SetFocus();
  waitUntil("the search field has the focus", [&] { return search->HasFocus(); });
  typeText("24-1+8");
  waitUntil("the text is typed", [&] { return search->GetValue() == "24-1+8"; });
  pressKey('A', wxMOD_CONTROL);
  pressKey(WXK_DELETE);
  waitUntil("the text is gone", [&] { return search->IsEmpty(); });
  EXPECT_EQ(pieces(), 1u);
  EXPECT_EQ(frame().canvasPanel().canvas().view().zoom(), zoom);

  click({frame().canvasPanel(), {400, 500}});
  for (const int key : {int{'+'}, int{WXK_NUMPAD_ADD}}) {
    const double before = frame().canvasPanel().canvas().view().zoom();
    pressKey(key);
    EXPECT_DOUBLE_EQ(frame().canvasPanel().canvas().view().zoom(), before * 1.25) << key;
  }
  pressKey('A', wxMOD_CONTROL);
  pressKey(WXK_DELETE);
  waitUntil("the piece is gone", [this] { return pieces() == 0; });
  pressKey('Z', wxMOD_CONTROL);
  waitUntil("it is back", [this] { return pieces() == 1; });
}

TEST_F(FrameTest, EscLeavesTheModesOfTheToolBar) {
  start();
  for (const int tool : {+kMeasure, +kPolygon}) {
    frame().GetToolBar()->ToggleTool(tool, true);
    put(tool);
    EXPECT_NE(frame().workspace().switches().mode, ToolMode::Select);
    EXPECT_TRUE(frame().canvasPanel().canvas().key({Key::Escape}));
    EXPECT_EQ(frame().workspace().switches().mode, ToolMode::Select);
    EXPECT_FALSE(frame().GetToolBar()->GetToolState(tool));
  }
}

TEST_F(FrameTest, StandsInTheMiddle) {
  start();
  waitUntil("the window is in the middle", [this] {
    const wxPoint off = middleOf(frame()) - middleOf(wxGetClientDisplayRect());
    return frame().GetSize() == wxSize(1400, 900) && std::hypot(off.x, off.y) <= 4;
  });
}

} // namespace
} // namespace trassix::test
