#include "ui/commands/command_table.h"

#include "editing/selection/selection.h"
#include "host/command_ids.h"
#include "ui/frame/main_frame.h"

#include <wx/menu.h>
#include <wx/toolbar.h>

#include <algorithm>
#include <array>

namespace trassix {

namespace {

using Kind = Command::Kind;
using Hand = Command::Hand;

bool somethingToUndo(const Layout& layout) {
  return layout.canUndo();
}
bool somethingToRedo(const Layout& layout) {
  return layout.canRedo();
}
bool somethingSelected(const Layout& layout) {
  return hasSelection(layout);
}

// clang-format off
const Command kCommands[] = {
    // id, menu text, menu help, tool label, tool tip, kind, hand, enabled, action
    {wxID_NEW, wxTRANSLATE("&New Layout\tCtrl+N"), wxTRANSLATE("Start an empty plan"), nullptr, nullptr, Kind::Normal, Hand::Empties, nullptr, &MainFrame::newLayout},
    {wxID_OPEN, wxTRANSLATE("&Open Layout...\tCtrl+O"), wxTRANSLATE("Open a saved plan"), nullptr, nullptr, Kind::Normal, Hand::Empties, nullptr, &MainFrame::openLayout},
    {wxID_SAVE, wxTRANSLATE("&Save\tCtrl+S"), wxTRANSLATE("Save the plan"), nullptr, nullptr, Kind::Normal, Hand::Empties, nullptr, &MainFrame::save},
    {wxID_SAVEAS, wxTRANSLATE("Save &As...\tCtrl+Shift+S"), wxTRANSLATE("Save the plan under another name"), nullptr, nullptr, Kind::Normal, Hand::Empties, nullptr, &MainFrame::saveAs},
    {kImportLayout, wxTRANSLATE("&Import Layout..."), wxTRANSLATE("Copy a plan from another folder to your plans"), nullptr, nullptr, Kind::Normal, Hand::Empties, nullptr, &MainFrame::importLayout},
    {kExportLayout, wxTRANSLATE("&Export Layout..."), wxTRANSLATE("Copy one of your plans to another folder"), nullptr, nullptr, Kind::Normal, Hand::Empties, nullptr, &MainFrame::exportLayout},
    {wxID_CLOSE, wxTRANSLATE("&Close Layout\tCtrl+W"), wxTRANSLATE("Close the plan"), nullptr, nullptr, Kind::Normal, Hand::Empties, nullptr, &MainFrame::newLayout},
    {wxID_PAGE_SETUP, wxTRANSLATE("Page Set&up..."), wxTRANSLATE("Paper and margins"), nullptr, nullptr, Kind::Normal, Hand::Empties, nullptr, &MainFrame::pageSetup},
    {wxID_PREVIEW, wxTRANSLATE("Print Pre&view..."), wxTRANSLATE("See the plan as it would be printed"), nullptr, nullptr, Kind::Normal, Hand::Empties, nullptr, nullptr},
    {wxID_PRINT, wxTRANSLATE("&Print...\tCtrl+P"), wxTRANSLATE("Print the plan to scale"), nullptr, nullptr, Kind::Normal, Hand::Empties, nullptr, nullptr},
    {kSaveBlock, wxTRANSLATE("Save as &Library Block..."), wxTRANSLATE("Keep the selected track for use in other plans"), nullptr, nullptr, Kind::Normal, Hand::Empties, nullptr, &MainFrame::saveBlock},
    {wxID_EXIT, wxTRANSLATE("E&xit"), wxTRANSLATE("End the program"), nullptr, nullptr, Kind::Normal, Hand::Empties, nullptr, &MainFrame::exit},
    {kUndo, wxTRANSLATE("&Undo\tCtrl+Z"), wxTRANSLATE("Take the last change back"), wxTRANSLATE("Undo"), nullptr, Kind::Normal, Hand::Empties, somethingToUndo, &MainFrame::undo},
    {kRedo, wxTRANSLATE("&Redo\tCtrl+Y"), wxTRANSLATE("Do again what was taken back"), wxTRANSLATE("Redo"), nullptr, Kind::Normal, Hand::Empties, somethingToRedo, &MainFrame::redo},
    {kDeleteSelection, wxTRANSLATE("&Delete\tDel"), wxTRANSLATE("Remove what is selected"), nullptr, nullptr, Kind::Normal, Hand::Empties, somethingSelected, &MainFrame::deleteSelection},
    {kSelectAll, wxTRANSLATE("Select &All\tCtrl+A"), wxTRANSLATE("Select everything that is visible"), nullptr, nullptr, Kind::Normal, Hand::Empties, nullptr, &MainFrame::selectEverything},
    {kZoomIn, wxTRANSLATE("Zoom &In\t+"), wxTRANSLATE("Show the plan larger"), nullptr, nullptr, Kind::Normal, Hand::Keeps, nullptr, &MainFrame::zoomIn},
    {kZoomOut, wxTRANSLATE("Zoom &Out\t-"), wxTRANSLATE("Show the plan smaller"), nullptr, nullptr, Kind::Normal, Hand::Keeps, nullptr, &MainFrame::zoomOut},
    {kZoomFit, wxTRANSLATE("Zoom to &Fit\tCtrl+0"), wxTRANSLATE("Show the whole plan"), wxTRANSLATE("Fit"), nullptr, Kind::Normal, Hand::Keeps, nullptr, &MainFrame::zoomToFit},
    {kShowGrid, wxTRANSLATE("Show &Grid\tCtrl+G"), wxTRANSLATE("Grid lines behind the plan"), nullptr, nullptr, Kind::Check, Hand::Keeps, nullptr, &MainFrame::toggleGrid},
    {kSnap, wxTRANSLATE("&Snap\tCtrl+Shift+G"), wxTRANSLATE("Track ends snap to each other"), nullptr, nullptr, Kind::Check, Hand::Keeps, nullptr, &MainFrame::toggleSnap},
    {kShowRails, wxTRANSLATE("Show &Rails"), wxTRANSLATE("Draw rails and sleepers"), nullptr, nullptr, Kind::Check, Hand::Keeps, nullptr, &MainFrame::toggleRails},
    {kUnitsMm, wxTRANSLATE("Millimetres (mm)"), wxTRANSLATE("Show lengths in millimetres"), nullptr, nullptr, Kind::Radio, Hand::Keeps, nullptr, &MainFrame::unitsMm},
    {kUnitsCm, wxTRANSLATE("Centimetres (cm)"), wxTRANSLATE("Show lengths in centimetres"), nullptr, nullptr, Kind::Radio, Hand::Keeps, nullptr, &MainFrame::unitsCm},
    {kUnitsInch, wxTRANSLATE("Inches (in)"), wxTRANSLATE("Show lengths in inches"), nullptr, nullptr, Kind::Radio, Hand::Keeps, nullptr, &MainFrame::unitsInch},
    {kLayoutShape, wxTRANSLATE("Layout &Shape..."), wxTRANSLATE("Outline and measures of the baseboard"), nullptr, nullptr, Kind::Normal, Hand::Empties, nullptr, &MainFrame::chooseBaseboard},
    {kLayoutWizard, wxTRANSLATE("Layout &Wizard (Experimental)..."), wxTRANSLATE("Make a loop of track for a table"), nullptr, nullptr, Kind::Normal, Hand::Empties, nullptr, nullptr},
    {kBridgeWizard, wxTRANSLATE("&Bridge Wizard (Experimental)..."), wxTRANSLATE("Make a bridge with its ramps"), nullptr, nullptr, Kind::Normal, Hand::Empties, nullptr, nullptr},
    {kHelp, wxTRANSLATE("&Help\tF1"), wxTRANSLATE("How to use the program"), nullptr, nullptr, Kind::Normal, Hand::Keeps, nullptr, &MainFrame::help},
    {kLayoutWizardHelp, wxTRANSLATE("Layout &Wizard Help"), wxTRANSLATE("About the wizards"), nullptr, nullptr, Kind::Normal, Hand::Keeps, nullptr, &MainFrame::layoutWizardHelp},
    {kOptions, wxTRANSLATE("&Options..."), wxTRANSLATE("Playful or businesslike"), nullptr, nullptr, Kind::Normal, Hand::Empties, nullptr, &MainFrame::options},
    {kLevels, nullptr, nullptr, wxTRANSLATE("Levels"), wxTRANSLATE("Manage layout levels (decks): height, color, and shape"), Kind::Normal, Hand::Empties, nullptr, &MainFrame::manageLevels},
    {kView3D, nullptr, nullptr, wxTRANSLATE("3D View"), nullptr, Kind::Normal, Hand::Empties, nullptr, nullptr},
    {kHideLabels, nullptr, nullptr, wxTRANSLATE("Hide Labels"), wxTRANSLATE("Toggle track labels and join dots"), Kind::Check, Hand::Keeps, nullptr, &MainFrame::toggleLabels},
    {kTunnel, nullptr, nullptr, wxTRANSLATE("Tunnel"), wxTRANSLATE("Place tunnel portals on the selected chain (or remove if already in a tunnel)"), Kind::Normal, Hand::Empties, nullptr, nullptr},
    {kMeasure, nullptr, nullptr, wxTRANSLATE("Measure"), wxTRANSLATE("Measuring tape: click two points on the canvas to lay down a length annotation"), Kind::Check, Hand::Empties, nullptr, &MainFrame::toggleMeasure},
    {kPolygon, nullptr, nullptr, wxTRANSLATE("Polygon"), wxTRANSLATE("Draw a free-form polygon (access hatch, river, mountain, etc.)"), Kind::Check, Hand::Empties, nullptr, &MainFrame::togglePolygon},
    {kRectangle, nullptr, nullptr, wxTRANSLATE("Rectangle"), wxTRANSLATE("Place a rectangle of an exact size -- easier than drawing one by hand"), Kind::Normal, Hand::Empties, nullptr, &MainFrame::placeRectangle},
    {kElevation, nullptr, nullptr, wxTRANSLATE("Elevation"), wxTRANSLATE("Open the Elevation Wizard to set up track grades and inclines"), Kind::Normal, Hand::Empties, nullptr, nullptr},
    {kValidate, nullptr, nullptr, nullptr, nullptr, Kind::Normal, Hand::Empties, nullptr, &MainFrame::validate},
    {kProperties, nullptr, nullptr, nullptr, nullptr, Kind::Normal, Hand::Empties, nullptr, &MainFrame::layoutProperties},
};
// clang-format on

struct PlainKey {
  int key;
  int command;
};

/// With the plus as American keyboards name it, and those of the number pad.
constexpr PlainKey kPlainKeys[] = {{'+', kZoomIn},
                                   {'=', kZoomIn},
                                   {WXK_NUMPAD_ADD, kZoomIn},
                                   {'-', kZoomOut},
                                   {WXK_NUMPAD_SUBTRACT, kZoomOut}};

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
  const wxString help = wxGetTranslation(command->menuHelp);
  menu.Append(id, wxGetTranslation(command->menuText),
              command->action ? help : _("Not available in this version") + ": " + help,
              itemKind(command->kind));
}

wxString toolTipOf(const Command& command) {
  wxString tip = command.toolTip ? wxGetTranslation(command.toolTip) : wxString();
  if (!command.action)
    tip += (tip.empty() ? "" : "\n") + _("Not available in this version");
  return tip;
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

const Command* commandOfPlainKey(int key) {
  for (const PlainKey& plain : kPlainKeys)
    if (plain.key == key)
      return findCommand(plain.command);
  return nullptr;
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
    bar.AddTool(id, wxGetTranslation(command->toolLabel), wxNullBitmap, toolTipOf(*command),
                itemKind(command->kind));
  }
  bar.Realize();
}

} // namespace trassix
