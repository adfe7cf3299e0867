#include "host/command_ids.h"
#include "host/workspace.h"
#include "ui/canvas/canvas_panel.h"
#include "ui/commands/command.h"
#include "ui/commands/command_rules.h"
#include "ui/commands/desk.h"
#include "ui/docks/profile_panel.h"
#include "ui/widgets/remembered_look.h"

#include <wx/frame.h>
#include <wx/intl.h>

namespace trassix {

namespace {

using Kind = Command::Kind;
using Hand = Command::Hand;

constexpr double kZoomInStep = 1.25;
constexpr double kZoomOutStep = 0.8;

template <bool EditorSwitches::*which>
bool isOn(const Workspace& workspace) {
  return workspace.switches().*which;
}

template <bool EditorSwitches::*which>
void flip(Desk& desk) {
  EditorSwitches switches = desk.workspace.switches();
  switches.*which = !(switches.*which);
  desk.workspace.setSwitches(switches);
}

template <bool EditorSwitches::*which>
void flipForGood(Desk& desk) {
  flip<which>(desk);
  rememberLook(desk.workspace.switches());
}

// clang-format off
const Command kCommands[] = {
    {.id = kZoomIn, .menuText = wxTRANSLATE("Zoom &In\t+"),
     .menuHelp = wxTRANSLATE("Show the plan larger"), .hand = Hand::Keeps,
     .run = [](Desk& desk) { desk.canvasPanel.canvas().zoomStep(kZoomInStep); }},
    {.id = kZoomOut, .menuText = wxTRANSLATE("Zoom &Out\t-"),
     .menuHelp = wxTRANSLATE("Show the plan smaller"), .hand = Hand::Keeps,
     .run = [](Desk& desk) { desk.canvasPanel.canvas().zoomStep(kZoomOutStep); }},
    {.id = kZoomFit, .menuText = wxTRANSLATE("Zoom to &Fit\tCtrl+0"),
     .menuHelp = wxTRANSLATE("Show the whole plan"), .toolLabel = wxTRANSLATE("Fit"),
     .hand = Hand::Keeps, .run = [](Desk& desk) { desk.canvasPanel.canvas().fit(); }},
    {.id = kShowGrid, .menuText = wxTRANSLATE("Show &Grid\tCtrl+G"),
     .menuHelp = wxTRANSLATE("Grid lines behind the plan"), .kind = Kind::Check,
     .hand = Hand::Keeps, .checked = isOn<&EditorSwitches::grid>,
     .run = flip<&EditorSwitches::grid>},
    {.id = kSnap, .menuText = wxTRANSLATE("&Snap\tCtrl+Shift+G"),
     .menuHelp = wxTRANSLATE("Track ends snap to each other"), .kind = Kind::Check,
     .hand = Hand::Keeps, .checked = isOn<&EditorSwitches::snap>,
     .run = flip<&EditorSwitches::snap>},
    {.id = kShowRails, .menuText = wxTRANSLATE("Show &Rails"),
     .menuHelp = wxTRANSLATE("Draw rails and sleepers"), .kind = Kind::Check, .hand = Hand::Keeps,
     .checked = isOn<&EditorSwitches::rails>, .run = flip<&EditorSwitches::rails>},
    {.id = kShowPalette, .menuText = wxTRANSLATE("&Palette\tF9"),
     .menuHelp = wxTRANSLATE("Fold the palette away or back, as a double-click on its edge does"),
     .menu = Command::Menu::View, .kind = Kind::Check, .hand = Hand::Keeps,
     .checked = isOn<&EditorSwitches::palette>, .run = flip<&EditorSwitches::palette>},
    {.id = kShowProperties, .menuText = wxTRANSLATE("Properties and &Tally\tShift+F9"),
     .menuHelp = wxTRANSLATE("Fold properties and tally away or back, as a double-click on their edge does"),
     .menu = Command::Menu::View, .kind = Kind::Check, .hand = Hand::Keeps,
     .checked = isOn<&EditorSwitches::properties>, .run = flip<&EditorSwitches::properties>},
    {.id = kHideLabels, .toolLabel = wxTRANSLATE("Hide Labels"),
     .toolTip = wxTRANSLATE("Toggle track labels and join dots"), .kind = Kind::Check,
     .hand = Hand::Keeps,
     .checked = [](const Workspace& workspace) { return !workspace.switches().labels; },
     .labelNow = [](const Workspace& workspace) {
       return workspace.switches().labels ? wxTRANSLATE("Hide Labels") : wxTRANSLATE("Show Labels");
     },
     .run = flip<&EditorSwitches::labels>},
    {.id = kZoomSelection, .menuText = wxTRANSLATE("Zoom to Se&lection\tCtrl+1"),
     .menuHelp = wxTRANSLATE("Show what is selected as large as it goes"),
     .menu = Command::Menu::View, .hand = Hand::Keeps, .unusable = nothingSelected,
     .run = [](Desk& desk) { desk.canvasPanel.canvas().fitSelection(); }},
    {.id = kShowGrades, .menuText = wxTRANSLATE("Show Gra&des\tF8"),
     .menuHelp = wxTRANSLATE("Grades in colours, heights, and clearances where track crosses track"),
     .menu = Command::Menu::View, .kind = Kind::Check, .hand = Hand::Keeps,
     .checked = isOn<&EditorSwitches::grades>, .run = flipForGood<&EditorSwitches::grades>},
    {.id = kHeightProfile, .menuText = wxTRANSLATE("&Height Profile\tCtrl+Shift+H"),
     .menuHelp = wxTRANSLATE("The heights along the way through the selected track, to be changed by hand"),
     .menu = Command::Menu::View, .kind = Kind::Check, .hand = Hand::Keeps,
     .panel = &kProfilePanel},
    {.id = kShowHidden, .menuText = wxTRANSLATE("Show Hidden Trac&k\tShift+F8"),
     .menuHelp = wxTRANSLATE("Track in tunnels; while it is hidden it cannot be picked either"),
     .menu = Command::Menu::View, .kind = Kind::Check, .hand = Hand::Keeps,
     .checked = isOn<&EditorSwitches::hidden>, .run = flipForGood<&EditorSwitches::hidden>},
    {.id = kView3D, .menuText = wxTRANSLATE("3D &View\tF7"),
     .menuHelp = wxTRANSLATE("The layout as it will stand in the room, in a window of its own"),
     .toolLabel = wxTRANSLATE("3D View"),
     .menu = Command::Menu::View, .hand = Hand::Keeps,
     .run = [](Desk& desk) { desk.view3D.show(desk.window, desk.workspace); }},
};
// clang-format on

} // namespace

std::span<const Command> viewCommands() {
  return kCommands;
}

} // namespace trassix
