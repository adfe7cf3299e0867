#include "ui/commands/command_bars.h"

#include "app/desktop/standard_folders.h"
#include "app/desktop/user_paths.h"
#include "app/services/program_memory.h"
#include "host/command_ids.h"
#include "panels/recent_plans.h"
#include "ui/commands/command_table.h"
#include "ui/docks/dock_area.h"
#include "ui/widgets/menu_help.h"
#include "ui/widgets/utf8.h"

#include <wx/control.h>
#include <wx/frame.h>
#include <wx/menu.h>
#include <wx/toolbar.h>

#include <utility>
#include <vector>

namespace trassix {

namespace {

using Kind = Command::Kind;

constexpr int kSeparator = 0;
constexpr int kUnitsSubmenu = -1;

struct MenuRows {
  Command::Menu menu;
  const char* title;
  std::vector<int> rows;
};

const std::vector<MenuRows>& menus() {
  static const std::vector<MenuRows> rows{
      {Command::Menu::File,
       wxTRANSLATE("&File"),
       {wxID_NEW, wxID_OPEN, kSeparator, wxID_SAVE, wxID_SAVEAS, kSeparator, kImportLayout,
        kExportLayout, kSeparator, wxID_CLOSE, kSeparator, wxID_PAGE_SETUP, wxID_PREVIEW,
        wxID_PRINT, kSeparator, kSaveBlock, kSeparator, wxID_EXIT}},
      {Command::Menu::Edit,
       wxTRANSLATE("&Edit"),
       {kUndo, kRedo, kSeparator, kDeleteSelection, kSelectAll}},
      {Command::Menu::View,
       wxTRANSLATE("&View"),
       {kZoomIn, kZoomOut, kZoomFit, kSeparator, kShowGrid, kSnap, kShowRails}},
      {Command::Menu::Layout,
       wxTRANSLATE("&Layout"),
       {kUnitsSubmenu, kSeparator, kLayoutShape, kLayoutWizard, kBridgeWizard}},
      {Command::Menu::Help, wxTRANSLATE("&Help"), {kHelp, kLayoutWizardHelp, kSeparator, kOptions}},
  };
  return rows;
}

constexpr int kToolRows[] = {kUndo,      kRedo,    kSeparator, kLevels,     kSeparator, kView3D,
                             kSeparator, kZoomFit, kSeparator, kHideLabels, kSeparator, kTunnel,
                             kMeasure,   kPolygon, kRectangle, kElevation,  kSeparator};

wxItemKind itemKind(Kind kind) {
  switch (kind) {
  case Kind::Check:
    return wxITEM_CHECK;
  case Kind::Radio:
    return wxITEM_RADIO;
  case Kind::Normal:
    break;
  }
  return wxITEM_NORMAL;
}

void append(wxMenu& menu, const Command& command) {
  menu.Append(command.id, wxGetTranslation(command.menuText), wxGetTranslation(command.menuHelp),
              itemKind(command.kind));
}

wxMenu* unitsMenu() {
  auto* menu = new wxMenu;
  for (const int id : {kUnitsMm, kUnitsCm, kUnitsInch})
    append(*menu, *findCommand(id));
  return menu;
}

/// Ours stand behind the given rows, and apart from them.
void appendOurs(wxMenu& menu, Command::Menu which) {
  bool first = true;
  const char* submenuText = nullptr;
  wxMenu* submenu = nullptr;
  for (const Command* command : commands()) {
    if (command->menu != which)
      continue;
    if (std::exchange(first, false))
      menu.AppendSeparator();
    if (command->submenu && command->submenu != submenuText) {
      submenu = new wxMenu;
      menu.AppendSubMenu(submenu, wxGetTranslation(command->submenu));
    }
    submenuText = command->submenu;
    append(submenuText ? *submenu : menu, *command);
  }
}

wxString toolTipOf(const Command& command, const char* unusable = nullptr) {
  wxString tip = command.toolTip ? wxGetTranslation(command.toolTip) : wxString();
  if (unusable)
    tip += (tip.empty() ? "" : "\n") + wxGetTranslation(unusable);
  return tip;
}

#ifdef __WXGTK__
/// The arrow for tools without room is laid out by the toolkit before it is shown, which is in
/// vain, so it appears where it was the last time. A change of a label has the bar laid out once
/// more.
void layOutAgain(wxToolBarToolBase& tool) {
  const wxString label = tool.GetLabel();
  tool.SetLabel(label + " ");
  tool.SetLabel(label);
}
#endif

} // namespace

CommandBars::CommandBars(wxFrame& window, Workspace& workspace, DockArea& docks)
    : PlanObserver(workspace), window_(window), workspace_(workspace), docks_(docks) {
  docks.onChange([this] { follow(); });
}

void CommandBars::buildMenuBar() {
  auto* bar = new wxMenuBar;
  for (const MenuRows& rows : menus()) {
    auto* menu = new wxMenu;
    for (const int id : rows.rows) {
      if (id == kSeparator)
        menu->AppendSeparator();
      else if (id == kUnitsSubmenu)
        menu->AppendSubMenu(unitsMenu(), _("Units of Measure"));
      else
        append(*menu, *findCommand(id));
    }
    appendOurs(*menu, rows.menu);
    if (rows.menu == Command::Menu::File)
      menu->AppendSubMenu(recent_ = new wxMenu, _("Recen&t Plans"),
                          _("Open one of the plans that were open last"));
    bar->Append(menu, wxGetTranslation(rows.title));
  }
  window_.SetMenuBar(bar);
  // Another window of the program may have opened some meanwhile.
  window_.Bind(wxEVT_MENU_OPEN, [this](wxMenuEvent& event) {
    event.Skip();
    if (event.GetMenu() != recent_)
      listRecent();
  });
  listRecent();
  follow();
}

void CommandBars::listRecent() {
  const std::vector<std::string> labels = recentLabels(
      RecentPlans::list(ProgramMemory(StandardFolders::memoryFile())), UserPaths::layoutsFolder());
  if (labels == recentLabels_ && recent_->GetMenuItemCount() > 0)
    return;
  recentLabels_ = labels;
  while (recent_->GetMenuItemCount() > 0)
    recent_->Delete(recent_->FindItemByPosition(0));
  for (std::size_t i = 0; i < labels.size(); ++i)
    recent_->Append(wxID_FILE1 + static_cast<int>(i),
                    wxString::Format("&%zu  ", i + 1) +
                        wxControl::EscapeMnemonics(fromUtf8(labels[i])));
  if (labels.empty())
    recent_->Append(wxID_FILE, _("None yet"))->Enable(false);
}

void CommandBars::buildToolBar() {
  wxToolBar* bar = window_.CreateToolBar(wxTB_HORIZONTAL | wxTB_TEXT | wxTB_NOICONS);
  for (const int id : kToolRows) {
    if (id == kSeparator) {
      bar->AddSeparator();
      continue;
    }
    const Command& command = *findCommand(id);
    bar->AddTool(id, wxGetTranslation(command.toolLabel), wxNullBitmap, toolTipOf(command),
                 itemKind(command.kind));
  }
  bar->Realize();
#ifdef __WXGTK__
  bar->Bind(wxEVT_SIZE, [bar](wxSizeEvent& event) {
    event.Skip();
    bar->CallAfter([bar] { layOutAgain(*bar->GetToolByPos(0)); });
  });
#endif
}

void CommandBars::tellUnusable(const Command& command, const char* why) {
  if (std::exchange(told_[command.id], why) == why)
    return;
  if (wxMenuItem* item = command.menuText ? window_.GetMenuBar()->FindItem(command.id) : nullptr)
    trassix::tellUnusable(*item, why ? wxGetTranslation(why) : wxString(),
                          wxGetTranslation(command.menuHelp));
  if (command.toolLabel)
    window_.GetToolBar()->SetToolShortHelp(command.id, toolTipOf(command, why));
}

bool CommandBars::isOn(const Command& command) const {
  return command.panel ? docks_.shown(*command.panel) : command.checked(workspace_);
}

void CommandBars::follow() {
  wxMenuBar* menus = window_.GetMenuBar();
  wxToolBar* tools = window_.GetToolBar();
  bool relabelled = false;
  for (const Command* command : commands()) {
    if (command->checked || command->panel) {
      const bool on = isOn(*command);
      if (command->menuText && menus && (on || command->kind == Kind::Check))
        menus->Check(command->id, on);
      if (command->toolLabel && tools)
        tools->ToggleTool(command->id, on);
    }
    if (wxToolBarToolBase* tool =
            command->labelNow && tools ? tools->FindById(command->id) : nullptr) {
      const wxString label = wxGetTranslation(command->labelNow(workspace_));
      relabelled = relabelled || tool->GetLabel() != label;
      if (tool->GetLabel() != label)
        tool->SetLabel(label);
    }
  }
  if (relabelled)
    tools->Realize();
}

} // namespace trassix
