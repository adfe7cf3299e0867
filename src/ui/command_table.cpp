#include "ui/command_table.h"

#include "editing/selection.h"
#include "ui/command_ids.h"
#include "ui/main_frame.h"

#include <wx/menu.h>
#include <wx/toolbar.h>

#include <algorithm>
#include <array>

namespace trassix {

namespace {

using Kind = Command::Kind;

bool somethingToUndo(const Layout& layout) {
  return layout.canUndo();
}
bool somethingToRedo(const Layout& layout) {
  return layout.canRedo();
}
bool somethingSelected(const Layout& layout) {
  return hasSelection(layout);
}

constexpr const char* kLater = wxTRANSLATE("Not available in this version");

// clang-format off
const Command kCommands[] = {
    // id, menu text, tool label, tip, kind, enabled, action
    {wxID_NEW, wxTRANSLATE("&New Layout\tCtrl+N"), nullptr, wxTRANSLATE("Start an empty plan"), Kind::Normal, nullptr, &MainFrame::newLayout},
    {wxID_OPEN, wxTRANSLATE("&Open Layout...\tCtrl+O"), nullptr, wxTRANSLATE("Open a saved plan"), Kind::Normal, nullptr, &MainFrame::openLayout},
    {wxID_SAVE, wxTRANSLATE("&Save\tCtrl+S"), nullptr, wxTRANSLATE("Save the plan"), Kind::Normal, nullptr, &MainFrame::save},
    {wxID_SAVEAS, wxTRANSLATE("Save &As...\tCtrl+Shift+S"), nullptr, wxTRANSLATE("Save the plan under another name"), Kind::Normal, nullptr, &MainFrame::saveAs},
    {kImportLayout, wxTRANSLATE("&Import Layout..."), nullptr, wxTRANSLATE("Copy a plan from another folder to your plans"), Kind::Normal, nullptr, nullptr},
    {kExportLayout, wxTRANSLATE("&Export Layout..."), nullptr, wxTRANSLATE("Copy one of your plans to another folder"), Kind::Normal, nullptr, nullptr},
    {wxID_CLOSE, wxTRANSLATE("&Close Layout\tCtrl+W"), nullptr, wxTRANSLATE("Close the plan"), Kind::Normal, nullptr, &MainFrame::newLayout},
    {wxID_PAGE_SETUP, wxTRANSLATE("Page Set&up..."), nullptr, wxTRANSLATE("Paper and margins"), Kind::Normal, nullptr, &MainFrame::pageSetup},
    {wxID_PREVIEW, wxTRANSLATE("Print Pre&view..."), nullptr, kLater, Kind::Normal, nullptr, nullptr},
    {wxID_PRINT, wxTRANSLATE("&Print...\tCtrl+P"), nullptr, kLater, Kind::Normal, nullptr, nullptr},
    {kSaveBlock, wxTRANSLATE("Save as &Library Block..."), nullptr, wxTRANSLATE("Keep the selected track for use in other plans"), Kind::Normal, nullptr, nullptr},
    {wxID_EXIT, wxTRANSLATE("E&xit"), nullptr, wxTRANSLATE("End the program"), Kind::Normal, nullptr, &MainFrame::exit},
    {kUndo, wxTRANSLATE("&Undo\tCtrl+Z"), wxTRANSLATE("Undo"), wxTRANSLATE("Take the last change back"), Kind::Normal, somethingToUndo, &MainFrame::undo},
    {kRedo, wxTRANSLATE("&Redo\tCtrl+Y"), wxTRANSLATE("Redo"), wxTRANSLATE("Do again what was taken back"), Kind::Normal, somethingToRedo, &MainFrame::redo},
    {kDeleteSelection, wxTRANSLATE("&Delete\tDel"), nullptr, wxTRANSLATE("Remove what is selected"), Kind::Normal, somethingSelected, &MainFrame::deleteSelection},
    {kSelectAll, wxTRANSLATE("Select &All\tCtrl+A"), nullptr, wxTRANSLATE("Select everything that is visible"), Kind::Normal, nullptr, &MainFrame::selectEverything},
    {kZoomIn, wxTRANSLATE("Zoom &In\t+"), nullptr, wxTRANSLATE("Show the plan larger"), Kind::Normal, nullptr, &MainFrame::zoomIn},
    {kZoomOut, wxTRANSLATE("Zoom &Out\t-"), nullptr, wxTRANSLATE("Show the plan smaller"), Kind::Normal, nullptr, &MainFrame::zoomOut},
    {kZoomFit, wxTRANSLATE("Zoom to &Fit\tCtrl+0"), wxTRANSLATE("Fit"), wxTRANSLATE("Show the whole plan"), Kind::Normal, nullptr, &MainFrame::zoomToFit},
    {kShowGrid, wxTRANSLATE("Show &Grid\tCtrl+G"), nullptr, wxTRANSLATE("Grid lines behind the plan"), Kind::Check, nullptr, &MainFrame::toggleGrid},
    {kSnap, wxTRANSLATE("&Snap\tCtrl+Shift+G"), nullptr, wxTRANSLATE("Track ends snap to each other"), Kind::Check, nullptr, &MainFrame::toggleSnap},
    {kShowRails, wxTRANSLATE("Show &Rails"), nullptr, wxTRANSLATE("Draw rails and sleepers"), Kind::Check, nullptr, &MainFrame::toggleRails},
    {kUnitsMm, wxTRANSLATE("Millimetres (mm)"), nullptr, wxTRANSLATE("Show lengths in millimetres"), Kind::Radio, nullptr, &MainFrame::unitsMm},
    {kUnitsCm, wxTRANSLATE("Centimetres (cm)"), nullptr, wxTRANSLATE("Show lengths in centimetres"), Kind::Radio, nullptr, &MainFrame::unitsCm},
    {kUnitsInch, wxTRANSLATE("Inches (in)"), nullptr, wxTRANSLATE("Show lengths in inches"), Kind::Radio, nullptr, &MainFrame::unitsInch},
    {kLayoutShape, wxTRANSLATE("Layout &Shape..."), nullptr, kLater, Kind::Normal, nullptr, nullptr},
    {kLayoutWizard, wxTRANSLATE("Layout &Wizard (Experimental)..."), nullptr, kLater, Kind::Normal, nullptr, nullptr},
    {kBridgeWizard, wxTRANSLATE("&Bridge Wizard (Experimental)..."), nullptr, kLater, Kind::Normal, nullptr, nullptr},
    {kHelp, wxTRANSLATE("&Help\tF1"), nullptr, wxTRANSLATE("How to use the program"), Kind::Normal, nullptr, nullptr},
    {kLayoutWizardHelp, wxTRANSLATE("Layout &Wizard Help"), nullptr, kLater, Kind::Normal, nullptr, nullptr},
    {kOptions, wxTRANSLATE("&Options..."), nullptr, wxTRANSLATE("Playful or businesslike"), Kind::Normal, nullptr, &MainFrame::options},
    {kLevels, nullptr, wxTRANSLATE("Levels"), wxTRANSLATE("Manage layout levels (decks): height, color, and shape"), Kind::Normal, nullptr, nullptr},
    {kView3D, nullptr, wxTRANSLATE("3D View"), kLater, Kind::Normal, nullptr, nullptr},
    {kHideLabels, nullptr, wxTRANSLATE("Hide Labels"), wxTRANSLATE("Toggle track labels and join dots"), Kind::Check, nullptr, &MainFrame::toggleLabels},
    {kTunnel, nullptr, wxTRANSLATE("Tunnel"), wxTRANSLATE("Place tunnel portals on the selected chain (or remove if already in a tunnel)"), Kind::Normal, nullptr, nullptr},
    {kMeasure, nullptr, wxTRANSLATE("Measure"), wxTRANSLATE("Measuring tape: click two points on the canvas to lay down a length annotation"), Kind::Check, nullptr, &MainFrame::toggleMeasure},
    {kPolygon, nullptr, wxTRANSLATE("Polygon"), wxTRANSLATE("Draw a free-form polygon (access hatch, river, mountain, etc.)"), Kind::Check, nullptr, &MainFrame::togglePolygon},
    {kRectangle, nullptr, wxTRANSLATE("Rectangle"), wxTRANSLATE("Place a rectangle of an exact size -- easier than drawing one by hand"), Kind::Normal, nullptr, nullptr},
    {kElevation, nullptr, wxTRANSLATE("Elevation"), wxTRANSLATE("Open the Elevation Wizard to set up track grades and inclines"), Kind::Normal, nullptr, nullptr},
    {kValidate, nullptr, nullptr, nullptr, Kind::Normal, nullptr, &MainFrame::validate},
    {kProperties, nullptr, nullptr, nullptr, Kind::Normal, nullptr, &MainFrame::layoutProperties},
};
// clang-format on

constexpr int kSeparator = 0;
constexpr int kUnitsSubmenu = -1;

struct MenuRows {
  const char* title;
  std::vector<int> rows;
};

const std::vector<MenuRows>& menus() {
  static const std::vector<MenuRows> rows{
      {wxTRANSLATE("&File"),
       {wxID_NEW, wxID_OPEN, kSeparator, wxID_SAVE, wxID_SAVEAS, kSeparator, kImportLayout,
        kExportLayout, kSeparator, wxID_CLOSE, kSeparator, wxID_PAGE_SETUP, wxID_PREVIEW,
        wxID_PRINT, kSeparator, kSaveBlock, kSeparator, wxID_EXIT}},
      {wxTRANSLATE("&Edit"), {kUndo, kRedo, kSeparator, kDeleteSelection, kSelectAll}},
      {wxTRANSLATE("&View"),
       {kZoomIn, kZoomOut, kZoomFit, kSeparator, kShowGrid, kSnap, kShowRails}},
      {wxTRANSLATE("&Layout"),
       {kUnitsSubmenu, kSeparator, kLayoutShape, kLayoutWizard, kBridgeWizard}},
      {wxTRANSLATE("&Help"), {kHelp, kLayoutWizardHelp, kSeparator, kOptions}},
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

void append(wxMenu& menu, int id) {
  const Command* command = findCommand(id);
  menu.Append(id, wxGetTranslation(command->menuText),
              command->tip ? wxGetTranslation(command->tip) : wxString(), itemKind(command->kind));
}

wxMenu* unitsMenu() {
  auto* menu = new wxMenu;
  for (const int id : {kUnitsMm, kUnitsCm, kUnitsInch})
    append(*menu, id);
  return menu;
}

} // namespace

std::span<const Command> commands() {
  return kCommands;
}

const Command* findCommand(int id) {
  const auto found = std::find_if(std::begin(kCommands), std::end(kCommands),
                                  [id](const Command& command) { return command.id == id; });
  return found == std::end(kCommands) ? nullptr : &*found;
}

bool commandEnabled(const Command& command, const Layout& layout) {
  return command.action && (!command.enabled || command.enabled(layout));
}

wxMenuBar* makeMenuBar() {
  auto* bar = new wxMenuBar;
  for (const MenuRows& rows : menus()) {
    auto* menu = new wxMenu;
    for (const int id : rows.rows) {
      if (id == kSeparator)
        menu->AppendSeparator();
      else if (id == kUnitsSubmenu)
        menu->AppendSubMenu(unitsMenu(), _("Units of Measure"));
      else
        append(*menu, id);
    }
    bar->Append(menu, wxGetTranslation(rows.title));
  }
  for (const int id : {kShowGrid, kSnap, kShowRails})
    bar->Check(id, true);
  return bar;
}

void fillToolBar(wxToolBar& bar) {
  for (const int id : kToolRows) {
    if (id == kSeparator) {
      bar.AddSeparator();
      continue;
    }
    const Command* command = findCommand(id);
    bar.AddTool(id, wxGetTranslation(command->toolLabel), wxNullBitmap,
                wxGetTranslation(command->tip), itemKind(command->kind));
  }
  bar.Realize();
}

} // namespace trassix
