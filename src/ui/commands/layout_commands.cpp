#include "app/desktop/standard_folders.h"
#include "app/services/app_prefs.h"
#include "document/records.h"
#include "editing/canvas/selection_commands.h"
#include "editing/levels/level_edits.h"
#include "editing/selection/property_edits.h"
#include "editing/track/connector_geometry.h"
#include "host/command_ids.h"
#include "host/questions.h"
#include "host/workspace.h"
#include "measures/measure_format.h"
#include "ui/canvas/canvas_panel.h"
#include "ui/commands/command.h"
#include "ui/commands/desk.h"
#include "ui/dialogs/baseboard_shape_dialog.h"
#include "ui/dialogs/level_manager_dialog.h"
#include "ui/palette/palette_panel.h"
#include "ui/wizards/bridge_wizard.h"

#include <wx/frame.h>

#include <algorithm>

namespace trassix {

namespace {

using Kind = Command::Kind;
using Hand = Command::Hand;

template <std::int32_t units>
bool areUnits(const Workspace& workspace) {
  const std::int32_t now = workspace.layout().settings().units;
  return now == units || (units == kMillimetres && (now < kMillimetres || now > kInches));
}

template <std::int32_t units>
void setUnits(Desk& desk) {
  appPrefs().units = units;
  writePrefs(appPrefs(), StandardFolders::prefsFile());
  desk.workspace.setUnits(units);
}

void drawPolygon(Desk& desk, const PolygonUse& use) {
  desk.workspace.layout().clearSelection();
  desk.workspace.selectionChanged();
  // Half a polygon may be on the plan already, for something else.
  desk.workspace.setToolMode(ToolMode::Select);
  desk.workspace.setToolMode(ToolMode::Polygon, use);
}

void manageLevels(Desk& desk) {
  Workspace& workspace = desk.workspace;
  LevelManagerDialog dialog(&desk.window, workspace.layout());
  if (dialog.ShowModal() != wxID_OK)
    return;
  const ChangeResult applied = dialog.apply();
  if (applied.refusal)
    workspace.questions().show(*applied.refusal);
  if (applied) {
    workspace.selectionChanged();
    workspace.changed();
  }
  if (const std::optional<std::int32_t> level = dialog.levelToDraw()) {
    workspace.layout().ensureLevel(*level);
    drawPolygon(desk, {PolygonUse::Kind::LevelOutline, *level});
  }
}

void chooseBaseboard(Desk& desk) {
  Workspace& workspace = desk.workspace;
  BaseboardShapeDialog dialog(&desk.window, workspace.layout());
  const int answer = dialog.ShowModal();
  if (answer == BaseboardShapeDialog::kDraw)
    drawPolygon(desk, {PolygonUse::Kind::Baseboard, -1});
  const bool first = workspace.layout().settings().baseboard.empty();
  if (answer != wxID_OK || !dialog.apply())
    return;
  workspace.selectionChanged();
  workspace.changed();
  // A first board may lie anywhere; a changed one is where the user looks already.
  if (first)
    desk.canvasPanel.canvas().fit();
}

void runLayoutWizard(Desk& desk) {
  desk.layoutWizard.run(desk.window, desk.canvasPanel.canvas(), desk.palette.system());
}

const char* nothingForBridge(const ToolSite& site) {
  const bool known = std::ranges::any_of(site.layout().pieces(), [](const PlacedPiece& piece) {
    return piece.sel && definitionOf(piece) != nullptr;
  });
  return known ? nullptr
               : wxTRANSLATE("Select the track that is to lead over, or a piece with an open end");
}

// clang-format off
const Command kCommands[] = {
    {.id = kUnitsMm, .menuText = wxTRANSLATE("Millimetres (mm)"),
     .menuHelp = wxTRANSLATE("Show lengths in millimetres"), .kind = Kind::Radio,
     .hand = Hand::Keeps, .checked = areUnits<kMillimetres>, .run = setUnits<kMillimetres>},
    {.id = kUnitsCm, .menuText = wxTRANSLATE("Centimetres (cm)"),
     .menuHelp = wxTRANSLATE("Show lengths in centimetres"), .kind = Kind::Radio,
     .hand = Hand::Keeps, .checked = areUnits<kCentimetres>, .run = setUnits<kCentimetres>},
    {.id = kUnitsInch, .menuText = wxTRANSLATE("Inches (in)"),
     .menuHelp = wxTRANSLATE("Show lengths in inches"), .kind = Kind::Radio,
     .hand = Hand::Keeps, .checked = areUnits<kInches>, .run = setUnits<kInches>},
    {.id = kLayoutShape, .menuText = wxTRANSLATE("Layout &Shape..."),
     .menuHelp = wxTRANSLATE("Outline and measures of the baseboard"), .run = chooseBaseboard},
    {.id = kLayoutWizard, .menuText = wxTRANSLATE("Layout &Wizard (Experimental)..."),
     .menuHelp = wxTRANSLATE("Make a loop of track for a table"), .run = runLayoutWizard},
    {.id = kBridgeWizard, .menuText = wxTRANSLATE("&Bridge Wizard (Experimental)..."),
     .menuHelp = wxTRANSLATE("Lead the selected track over other track on a bridge with ramps"),
     .unusable = nothingForBridge,
     .run = [](Desk& desk) { runBridgeWizard(desk.window, desk.canvasPanel.canvas().site()); }},
    {.id = kLevels, .toolLabel = wxTRANSLATE("Levels"),
     .toolTip = wxTRANSLATE("Manage layout levels (decks): height, color, and shape"),
     .run = manageLevels},
    {.id = kElevation, .toolLabel = wxTRANSLATE("Elevation"),
     .toolTip = wxTRANSLATE("Open the Elevation Wizard to set up track grades and inclines"),
     .run = [](Desk& desk) { changeHeights(desk.canvasPanel.canvas().site()); }},
};
// clang-format on

} // namespace

std::span<const Command> layoutCommands() {
  return kCommands;
}

} // namespace trassix
