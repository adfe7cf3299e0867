#include "editing/canvas/arrange_commands.h"

#include "editing/selection/selection.h"
#include "host/command_ids.h"
#include "host/workspace.h"
#include "ui/canvas/canvas_panel.h"
#include "ui/commands/command.h"
#include "ui/commands/command_rules.h"
#include "ui/commands/desk.h"

#include <wx/intl.h>

namespace trassix {

namespace {

using Menu = Command::Menu;

constexpr const char* kMirror = wxTRANSLATE("&Mirror");
constexpr const char* kAlign = wxTRANSLATE("Ali&gn");

ToolSite& siteOf(Desk& desk) {
  return desk.canvasPanel.canvas().site();
}

const char* hangsOnNoTrack(const ToolSite& site) {
  if (const char* none = noTrackSelected(site))
    return none;
  return mirrorLine(site.layout(), MirrorWay::AcrossTrack)
             ? nullptr
             : wxTRANSLATE("The selection goes on from no track");
}

const char* nothingToAlign(const ToolSite& site) {
  return canAlign(site.layout()) ? nullptr
                                 : wxTRANSLATE("Select scenery, labels or shapes, two at least");
}

const char* nothingToDistribute(const ToolSite& site) {
  return canDistribute(site.layout())
             ? nullptr
             : wxTRANSLATE("Select scenery, labels or shapes, three at least");
}

template <MirrorWay way>
void mirror(Desk& desk) {
  runMirror(siteOf(desk), way);
}

template <AlignTo to>
void align(Desk& desk) {
  siteOf(desk).report(alignSelection(desk.workspace.layout(), to));
}

template <Axis axis>
void distribute(Desk& desk) {
  siteOf(desk).report(distributeSelection(desk.workspace.layout(), axis));
}

// clang-format off
const Command kCommands[] = {
    {.id = kParallelTrack, .menuText = wxTRANSLATE("Parallel Trac&k...\tCtrl+L"),
     .menuHelp = wxTRANSLATE("Lay a second track beside the selected chain"), .menu = Menu::Edit,
     .unusable = noTrackSelected, .run = [](Desk& desk) { runParallelTrack(siteOf(desk)); }},
    {.id = kMirrorLeftRight, .menuText = wxTRANSLATE("&Left to Right\tCtrl+M"),
     .menuHelp = wxTRANSLATE("Turn the selection over about its middle, left to right"),
     .menu = Menu::Edit, .submenu = kMirror, .unusable = nothingSelected,
     .run = mirror<MirrorWay::LeftToRight>},
    {.id = kMirrorTopBottom, .menuText = wxTRANSLATE("&Top to Bottom\tCtrl+Shift+M"),
     .menuHelp = wxTRANSLATE("Turn the selection over about its middle, top to bottom"),
     .menu = Menu::Edit, .submenu = kMirror, .unusable = nothingSelected,
     .run = mirror<MirrorWay::TopToBottom>},
    {.id = kMirrorAcross, .menuText = wxTRANSLATE("To the &Other Side of Its Track"),
     .menuHelp = wxTRANSLATE("Turn the selection over about the track it goes on from, so that it stays joined"),
     .menu = Menu::Edit, .submenu = kMirror, .unusable = hangsOnNoTrack,
     .run = mirror<MirrorWay::AcrossTrack>},
    {.id = kAlignLeft, .menuText = wxTRANSLATE("&Left"),
     .menuHelp = wxTRANSLATE("Scenery, labels and shapes to the leftmost edge"),
     .menu = Menu::Edit, .submenu = kAlign, .unusable = nothingToAlign, .run = align<AlignTo::Left>},
    {.id = kAlignCentre, .menuText = wxTRANSLATE("&Centre"),
     .menuHelp = wxTRANSLATE("Scenery, labels and shapes one above the other"),
     .menu = Menu::Edit, .submenu = kAlign, .unusable = nothingToAlign, .run = align<AlignTo::Centre>},
    {.id = kAlignRight, .menuText = wxTRANSLATE("&Right"),
     .menuHelp = wxTRANSLATE("Scenery, labels and shapes to the rightmost edge"),
     .menu = Menu::Edit, .submenu = kAlign, .unusable = nothingToAlign, .run = align<AlignTo::Right>},
    {.id = kAlignTop, .menuText = wxTRANSLATE("&Top"),
     .menuHelp = wxTRANSLATE("Scenery, labels and shapes to the topmost edge"),
     .menu = Menu::Edit, .submenu = kAlign, .unusable = nothingToAlign, .run = align<AlignTo::Top>},
    {.id = kAlignMiddle, .menuText = wxTRANSLATE("&Middle"),
     .menuHelp = wxTRANSLATE("Scenery, labels and shapes side by side"),
     .menu = Menu::Edit, .submenu = kAlign, .unusable = nothingToAlign, .run = align<AlignTo::Middle>},
    {.id = kAlignBottom, .menuText = wxTRANSLATE("&Bottom"),
     .menuHelp = wxTRANSLATE("Scenery, labels and shapes to the lowest edge"),
     .menu = Menu::Edit, .submenu = kAlign, .unusable = nothingToAlign, .run = align<AlignTo::Bottom>},
    {.id = kDistributeAcross, .menuText = wxTRANSLATE("Even Gaps &Across"),
     .menuHelp = wxTRANSLATE("Even gaps from left to right between scenery, labels and shapes"),
     .menu = Menu::Edit, .submenu = kAlign, .unusable = nothingToDistribute,
     .run = distribute<Axis::Across>},
    {.id = kDistributeDown, .menuText = wxTRANSLATE("Even Gaps &Down"),
     .menuHelp = wxTRANSLATE("Even gaps from top to bottom between scenery, labels and shapes"),
     .menu = Menu::Edit, .submenu = kAlign, .unusable = nothingToDistribute,
     .run = distribute<Axis::Down>},
};
// clang-format on

} // namespace

std::span<const Command> arrangeCommands() {
  return kCommands;
}

} // namespace trassix
