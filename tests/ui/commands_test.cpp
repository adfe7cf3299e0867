#include "document/record_kinds.h"
#include "editing/scenery/annotations.h"
#include "editing/selection/selection.h"
#include "frame_test.h"
#include "host/command_ids.h"
#include "ui/commands/command_table.h"

#include <gmock/gmock.h>
#include <wx/menu.h>
#include <wx/srchctrl.h>
#include <wx/statusbr.h>
#include <wx/toolbar.h>

#include <cmath>
#include <cstdio>
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

/// Each menu: title, then what is in it, by ID and by kind unless it is a plain command.
const char* const kMenus[] = {
    "&File|&New Layout\tCtrl+N 5002|&Open Layout...\tCtrl+O 5000|-|&Save\tCtrl+S 5003|"
    "Save &As...\tCtrl+Shift+S 5004|-|&Import Layout... 1900|&Export Layout... 1901|-|"
    "&Close Layout\tCtrl+W 5001|-|Page Set&up... 5012|Print Pre&view... 5013|"
    "&Print...\tCtrl+P 5010|-|Save as &Library Block... 2001|-|E&xit 5006|-|"
    "Ol&der Versions... 2030|Expo&rt Picture... 2031|Open a Sa&mple... 2043|Recen&t Plans|None yet "
    "5050",
    "&Edit|&Undo\tCtrl+Z 2002|&Redo\tCtrl+Y 2003|-|&Delete\tDel 2004|Select &All\tCtrl+A 2005|-|"
    "&Find...\tCtrl+F 2040|"
    "Cu&t\tCtrl+X 2060|&Copy\tCtrl+C 2061|&Paste\tCtrl+V 2062|Dup&licate\tCtrl+D 2063|"
    "Parallel Trac&k...\tCtrl+L 2065|&Mirror|&Left to Right\tCtrl+M 2066|"
    "&Top to Bottom\tCtrl+Shift+M 2067|To the &Other Side of Its Track 2068|Ali&gn|&Left 2069|"
    "&Centre 2070|&Right 2071|&Top 2072|&Middle 2073|&Bottom 2074|Even Gaps &Across 2075|"
    "Even Gaps &Down 2076",
    "&View|Zoom &In\t+ 2006|Zoom &Out\t- 2007|Zoom to &Fit\tCtrl+0 2008|-|"
    "Show &Grid\tCtrl+G 2009 check on|&Snap\tCtrl+Shift+G 2010 check on|Show &Rails 2012 check "
    "on|-|"
    "&Palette\tF9 2041 check on|Properties and &Tally\tShift+F9 2042 check on|"
    "Zoom to Se&lection\tCtrl+1 2064|Show Gra&des\tF8 2080 check|&Height Profile\tCtrl+Shift+H "
    "2044 check|Show Hidden Trac&k\tShift+F8 2081 check on|3D &View\tF7 2000",
    "&Layout|Units of Measure|Millimetres (mm) 2021 radio on|Centimetres (cm) 2022 radio|"
    "Inches (in) 2023 radio|-|Layout &Shape... 2020|Layout &Wizard (Experimental)... 2018|"
    "&Bridge Wizard (Experimental)... 2019|-|Heli&x... 2050|&Edit Helix... 2051|Baseboard &Corners "
    "2077 check|"
    "Le&vel Corners 2078 check",
    "&Help|&Help\tF1 2027|Layout &Wizard Help 2028|-|&Options... 2029"};

const char* const kTools =
    "Undo 2002|Redo 2003|-|Levels 2024 Manage layout levels (decks): height, color, and shape|-|"
    "3D View 2000|-|Fit 2008|-|Hide Labels 2011 check Toggle track labels and join dots|-|"
    "Tunnel 2013 Place tunnel portals on the selected chain (or remove if already in a tunnel)|"
    "Measure 2014 check Measuring tape: click two points on the canvas to lay down a length "
    "annotation|Polygon 2015 check Draw a free-form polygon (access hatch, river, mountain, etc.)|"
    "Rectangle 2016 Place a rectangle of an exact size -- easier than drawing one by hand|"
    "Elevation 2017 Open the Elevation Wizard to set up track grades and inclines|-";

wxString listMenu(const wxMenu& menu) {
  std::set<wxUniChar> mnemonics;
  wxString rows;
  for (const wxMenuItem* item : menu.GetMenuItems()) {
    const wxString label = item->GetItemLabel();
    const int at = label.Find('&');
    EXPECT_TRUE(at == wxNOT_FOUND ||
                mnemonics.insert(wxToupper(label[static_cast<size_t>(at) + 1])).second)
        << label;
    if (item->IsSeparator())
      rows += "|-";
    else if (item->GetSubMenu() != nullptr)
      rows += "|" + label + listMenu(*item->GetSubMenu());
    else
      rows += wxString::Format("|%s %d%s%s", label, item->GetId(),
                               item->GetKind() == wxITEM_CHECK   ? " check"
                               : item->GetKind() == wxITEM_RADIO ? " radio"
                                                                 : "",
                               item->IsCheckable() && item->IsChecked() ? " on" : "");
  }
  return rows;
}

TEST_F(FrameTest, MenusAndToolsAreAsAgreed) {
  start();
  const wxMenuBar& bar = *frame().GetMenuBar();
  ASSERT_EQ(bar.GetMenuCount(), std::size(kMenus));
  for (size_t i = 0; i < bar.GetMenuCount(); ++i)
    EXPECT_EQ((bar.GetMenuLabel(i) + listMenu(*bar.GetMenu(i))).utf8_string(), kMenus[i]);

  wxString tools;
  wxToolBar& toolBar = *frame().GetToolBar();
  for (int i = 0; i < static_cast<int>(toolBar.GetToolsCount()); ++i) {
    const wxToolBarToolBase& tool = *toolBar.GetToolByPos(i);
    tools += i > 0 ? "|" : "";
    if (tool.IsSeparator()) {
      tools += "-";
      continue;
    }
    wxString tip = tool.GetShortHelp();
    if (const char* why = whyUnusable(*findCommand(tool.GetId()), canvas().site())) {
      EXPECT_TRUE(tip.EndsWith(why));
      EXPECT_FALSE(tool.IsEnabled());
      tip = tip.BeforeLast('\n');
    }
    tools += tool.GetLabel() + wxString::Format(" %d", tool.GetId()) +
             (tool.GetKind() == wxITEM_CHECK ? " check" : "") + (tip.empty() ? "" : " " + tip);
  }
  EXPECT_EQ(tools, kTools);
}

/// Everything that a command can change, in one text.
std::string traceOf(MainFrame& frame, const Canceller& dialogs) {
  std::ostringstream trace;
  const ViewTransform& view = frame.canvasPanel().canvas().view();
  const EditorSwitches& switches = frame.workspace().switches();
  trace << frame.layout().revision() << frame.GetTitle() << view.zoom() << view.origin().x
        << switches.grid << switches.snap << switches.labels << switches.rails << switches.grades
        << switches.palette << switches.properties << frame.canvasPanel().canvas().carrying()
        << static_cast<int>(switches.mode) << frame.layout().settings().units
        << frame.canvasPanel().GetParent() << dialogs.titles.size()
        << (findNamed("help") != nullptr) << (findNamed("printPreview") != nullptr)
        << (findNamed("view3DFrame") != nullptr);
  return trace.str();
}

TEST_F(FrameTest, EveryCommandDoesSomething) {
  start();
  const Canceller canceller;
  std::set<int> ids;
  std::set<wxString> keys;
  for (const Command* row : commands()) {
    const Command& command = *row;
    SCOPED_TRACE(command.id);
    EXPECT_TRUE(ids.insert(command.id).second);
    const wxString key = wxString(command.menuText).AfterFirst('\t');
    EXPECT_TRUE(key.empty() || keys.insert(key).second);
    frame().layout().clear(); // one piece that stays, one to take back and one to do again
    frame().layout().ensureLevel();
    for (const Point at : {Point{0, 0}, {70, 300}, {300, 350}})
      addLabel(frame().layout(), at, "label");
    frame().layout().editSettings().baseboard = {{0, 0}, {900, 0}, {900, 900}};
    frame().canvasPanel().canvas().cancel();
    placePiece();
    placePiece(500);
    placePiece(1000);
    frame().layout().undo();
    selectAll(frame().layout());
    const bool recentPlan = command.id >= wxID_FILE1 && command.id <= wxID_FILE9; // there is none
    if (recentPlan || whyUnusable(command, canvas().site()))
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
    if (command.id == kCopy) // which leaves no other trace
      frame().workspace().clipboard().put("");
    const std::string before = traceOf(frame(), canceller);
    put(command.id);
    if (command.id == kCopy) {
      EXPECT_NE(frame().workspace().clipboard().text(), "");
      continue;
    }
    EXPECT_NE(traceOf(frame(), canceller), before);
  }
  EXPECT_THAT(canceller.titles,
              testing::IsSupersetOf({"Validate", "Properties", "Save Layout", "Bridge Wizard"}));
}

TEST_F(FrameTest, WhatCannotBeUsedSaysWhy) {
  start();
  frame().workspace().clipboard().put("no plan");
  const auto status = [this] { return frame().GetStatusBar()->GetStatusText(0); };
  const auto told = [this](int id) {
    frame().UpdateWindowUI(wxUPDATE_UI_RECURSE);
    const wxMenuItem* item = frame().GetMenuBar()->FindItem(id);
    return item ? item->GetHelp() : frame().GetToolBar()->GetToolShortHelp(id);
  };
  const std::tuple<int, const char*, int> kCases[] = {
      {kUndo, "Nothing to undo", 'Z'},   {kRedo, "Nothing to redo", 'Y'},
      {kCopy, "Nothing selected", 'C'},  {kPaste, "Nothing to paste", 'V'},
      {kParallelTrack, "No track", 'L'}, {kLevelCorners, "The active level has no outline", 0},
  };
  for (const auto& [id, why, key] : kCases) {
    EXPECT_TRUE(told(id).StartsWith(why)) << told(id);
    frame().canvasPanel().SetFocus();
    if (key != 0)
      pressKey(key, wxMOD_CONTROL);
    EXPECT_TRUE(key == 0 || status().StartsWith(why)) << status();
  }
  EXPECT_EQ(frame().GetToolBar()->GetToolShortHelp(kUndo), "Nothing to undo");
  placePiece();
  put(kCopy);
  frame().layout().undo();
  frame().workspace().changed();
  for (const int id : {+kRedo, +kPaste})
    EXPECT_EQ(told(id), findCommand(id)->menuHelp);
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
  pressKey('C', wxMOD_CONTROL);
  waitUntil("the text is copied",
            [this] { return frame().workspace().clipboard().text() == "24-1+8"; });
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

/// Dark pixels at the right end of the tool bar, where there is only room for a small arrow.
int inkAtTheEnd(const wxToolBar& bar) {
  const wxRect rect = bar.GetScreenRect();
  const wxString command = wxString::Format("import -window root -crop 40x%d+%d+%d -depth 8 gray:-",
                                            rect.height, rect.GetRight() - 40, rect.y);
  FILE* picture = popen(command.c_str(), "r");
  int ink = 0;
  for (int gray = 0; (gray = std::fgetc(picture)) != EOF;)
    ink += gray < 110 ? 1 : 0;
  pclose(picture);
  return ink;
}

TEST_F(FrameTest, StandsInTheMiddleAndPointsToToolsWithoutRoom) {
  start();
  waitUntil("the window is in the middle", [this] {
    const wxPoint off = middleOf(frame()) - middleOf(wxGetClientDisplayRect());
    return frame().GetSize() == wxSize(1400, 900) && std::hypot(off.x, off.y) <= 4;
  });
  for (const int width : {840, 1400, 660}) { // between two tools
    frame().SetSize(width, 700);
    waitUntil("the tool bar ends as it should", [&] {
      const int ink = inkAtTheEnd(*frame().GetToolBar());
      return frame().GetSize().x == width && ink < 200 && (ink > 20) == (width < 1400);
    });
  }
}

} // namespace
} // namespace trassix::test
