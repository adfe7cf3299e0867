#include "document/layout.h"
#include "editing/arranging/corner_edits.h"
#include "editing/canvas/canvas_tool.h"
#include "editing/canvas/carried.h"
#include "editing/canvas/helix_command.h"
#include "editing/canvas/tunnel_command.h"
#include "editing/helix/helix_edits.h"
#include "host/command_ids.h"
#include "host/workspace.h"
#include "ui/canvas/canvas_panel.h"
#include "ui/commands/command.h"
#include "ui/commands/desk.h"
#include "ui/dialogs/rectangle_dialog.h"
#include "ui/palette/palette_panel.h"

#include <wx/frame.h>

#include <algorithm>

namespace trassix {

namespace {

using Kind = Command::Kind;

template <ToolMode mode>
bool isMode(const Workspace& workspace) {
  return workspace.switches().mode == mode;
}

/// A second time leaves the mode again.
template <ToolMode mode>
void toggleMode(Desk& desk) {
  Workspace& workspace = desk.workspace;
  if (isMode<mode>(workspace))
    return workspace.setToolMode(ToolMode::Select);
  workspace.selectNothing();
  workspace.setToolMode(mode);
}

const char* noBaseboard(const ToolSite& site) {
  return site.layout().settings().baseboard.empty() ? wxTRANSLATE("The plan has no baseboard yet")
                                                    : nullptr;
}

const char* noLevelOutline(const ToolSite& site) {
  const Outlined active{{}, site.layout().settings().activeLevel};
  return cornersOf(site.layout(), active) ? nullptr
                                          : wxTRANSLATE("The active level has no outline");
}

template <PolygonUse::Kind kind>
bool areCornersOf(const Workspace& workspace) {
  return isMode<ToolMode::BoardCorners>(workspace) && workspace.switches().polygonUse.kind == kind;
}

template <PolygonUse::Kind kind>
void toggleCorners(Desk& desk) {
  Workspace& workspace = desk.workspace;
  const bool leaves = areCornersOf<kind>(workspace);
  workspace.selectNothing();
  workspace.setToolMode(ToolMode::Select);
  if (leaves)
    return;
  const std::int32_t level = workspace.layout().settings().activeLevel;
  workspace.setToolMode(ToolMode::BoardCorners,
                        {kind, kind == PolygonUse::Kind::LevelOutline ? level : -1});
}

void placeRectangle(Desk& desk) {
  Workspace& workspace = desk.workspace;
  RectangleDialog dialog(&desk.window, workspace.layout(), desk.canvasPanel.canvas().centre());
  if (dialog.ShowModal() != wxID_OK || !dialog.place())
    return;
  workspace.setToolMode(ToolMode::Select); // so that it can be moved
  workspace.selectionChanged();
  workspace.changed();
}

const char* noTunnel(const ToolSite& site) {
  const TunnelProblem& problem = tunnelChoiceNow(site.layout()).problem;
  return problem ? problem.brief : nullptr;
}

const char* tunnelLabel(const Workspace& workspace) {
  return tunnelChoiceNow(workspace.layout()).present.empty() ? wxTRANSLATE("Tunnel")
                                                             : wxTRANSLATE("Remove Tunnel");
}

void newHelix(Desk& desk) {
  const std::vector<const HelixKit*> sizes = helixSizes(desk.palette.system());
  const auto pair = std::ranges::find(sizes, 2U, &HelixKit::tracks);
  const HelixKit& kit = sizes.empty()         ? *findHelixKit(kDefaultHelixKit)
                        : pair == sizes.end() ? *sizes.front()
                                              : **pair;
  Workspace& workspace = desk.workspace;
  if (const auto wish = workspace.questions().askHelix(workspace, usualHelix(kit)))
    desk.canvasPanel.pickUp(*wish);
}

const char* noHelix(const ToolSite& site) {
  return selectedHelix(site.layout()) == -1 ? wxTRANSLATE("Select a helix first") : nullptr;
}

void editHelix(Desk& desk) {
  ToolSite& site = desk.canvasPanel.canvas().site();
  runEditHelix(site, selectedHelix(site.layout()));
}

// clang-format off
const Command kCommands[] = {
    {.id = kTunnel, .toolLabel = wxTRANSLATE("Tunnel"),
     .toolTip = wxTRANSLATE("Place tunnel portals on the selected chain (or remove if already in a tunnel)"),
     .unusable = noTunnel, .labelNow = tunnelLabel,
     .run = [](Desk& desk) { runTunnel(desk.canvasPanel.canvas().site()); }},
    {.id = kMeasure, .toolLabel = wxTRANSLATE("Measure"),
     .toolTip = wxTRANSLATE("Measuring tape: click two points on the canvas to lay down a length annotation"),
     .kind = Kind::Check, .checked = isMode<ToolMode::Measure>,
     .run = toggleMode<ToolMode::Measure>},
    {.id = kPolygon, .toolLabel = wxTRANSLATE("Polygon"),
     .toolTip = wxTRANSLATE("Draw a free-form polygon (access hatch, river, mountain, etc.)"),
     .kind = Kind::Check, .checked = isMode<ToolMode::Polygon>,
     .run = toggleMode<ToolMode::Polygon>},
    {.id = kRectangle, .toolLabel = wxTRANSLATE("Rectangle"),
     .toolTip = wxTRANSLATE("Place a rectangle of an exact size -- easier than drawing one by hand"),
     .run = placeRectangle},
    {.id = kHelix, .menuText = wxTRANSLATE("Heli&x..."),
     .menuHelp = wxTRANSLATE("Choose a helix and carry it to the plan"),
     .menu = Command::Menu::Layout, .run = newHelix},
    {.id = kEditHelix, .menuText = wxTRANSLATE("&Edit Helix..."),
     .menuHelp = wxTRANSLATE("Give the selected helix another kit, pitch or hand"),
     .menu = Command::Menu::Layout, .unusable = noHelix, .run = editHelix},
    {.id = kBoardCorners, .menuText = wxTRANSLATE("Baseboard &Corners"),
     .menuHelp = wxTRANSLATE("Drag, add and remove corners of the baseboard on the plan"),
     .menu = Command::Menu::Layout, .kind = Kind::Check,
     .unusable = noBaseboard,
     .checked = areCornersOf<PolygonUse::Kind::Baseboard>,
     .run = toggleCorners<PolygonUse::Kind::Baseboard>},
    {.id = kLevelCorners, .menuText = wxTRANSLATE("Le&vel Corners"),
     .menuHelp = wxTRANSLATE("Drag, add and remove corners of the active level's outline on the plan"),
     .menu = Command::Menu::Layout, .kind = Kind::Check, .unusable = noLevelOutline,
     .checked = areCornersOf<PolygonUse::Kind::LevelOutline>,
     .run = toggleCorners<PolygonUse::Kind::LevelOutline>},
};
// clang-format on

} // namespace

std::span<const Command> toolCommands() {
  return kCommands;
}

} // namespace trassix
