#include "document/block_file.h"
#include "document/layout.h"
#include "editing/canvas/selection_commands.h"
#include "editing/selection/selection.h"
#include "host/command_ids.h"
#include "host/workspace.h"
#include "texts/texts.h"
#include "ui/canvas/canvas_panel.h"
#include "ui/commands/command.h"
#include "ui/commands/command_rules.h"
#include "ui/commands/desk.h"
#include "ui/dialogs/find_dialog.h"

#include <wx/frame.h>
#include <wx/intl.h>

namespace trassix {

namespace {

void undo(Desk& desk) {
  Layout& layout = desk.workspace.layout();
  if (!layout.undo())
    return;
  const bool visible = layout.lastUndoShows();
  deselectHidden(layout);
  desk.workspace.changed();
  if (!visible)
    desk.workspace.setHint(tr("Nothing to be seen: levels and the baseboard are not undone"));
}

void redo(Desk& desk) {
  if (!desk.workspace.layout().redo())
    return;
  deselectHidden(desk.workspace.layout());
  desk.workspace.changed();
}

void selectEverything(Desk& desk) {
  selectAll(desk.workspace.layout());
  desk.workspace.selectionChanged();
}

using Menu = Command::Menu;

const char* nothingToUndo(const ToolSite& site) {
  return site.layout().canUndo() ? nullptr : wxTRANSLATE("Nothing to undo");
}

const char* nothingToRedo(const ToolSite& site) {
  return site.layout().canRedo() ? nullptr : wxTRANSLATE("Nothing to redo");
}

const char* nothingToPaste(const ToolSite& site) {
  return site.clipboard.pastes()
             ? nullptr
             : wxTRANSLATE("Nothing to paste: the clipboard holds no track, scenery or shapes");
}

ToolSite& siteOf(Desk& desk) {
  return desk.canvasPanel.canvas().site();
}

void paste(Desk& desk) {
  const SharedBlock pasted = pastedBlock(siteOf(desk));
  if (isEmpty(*pasted))
    return desk.workspace.setHint(tr("There is nothing on the clipboard that goes onto a plan"));
  siteOf(desk).carry(pasted);
  desk.canvasPanel.SetFocus();
}

// clang-format off
const Command kCommands[] = {
    {.id = kUndo, .menuText = wxTRANSLATE("&Undo\tCtrl+Z"),
     .menuHelp = wxTRANSLATE("Take the last change back"), .toolLabel = wxTRANSLATE("Undo"),
     .unusable = nothingToUndo, .run = undo},
    {.id = kRedo, .menuText = wxTRANSLATE("&Redo\tCtrl+Y"),
     .menuHelp = wxTRANSLATE("Do again what was taken back"), .toolLabel = wxTRANSLATE("Redo"),
     .unusable = nothingToRedo, .run = redo},
    {.id = kDeleteSelection, .menuText = wxTRANSLATE("&Delete\tDel"),
     .menuHelp = wxTRANSLATE("Remove what is selected"), .unusable = nothingSelected,
     .run = [](Desk& desk) { deleteSelected(desk.canvasPanel.canvas().site()); }},
    {.id = kSelectAll, .menuText = wxTRANSLATE("Select &All\tCtrl+A"),
     .menuHelp = wxTRANSLATE("Select everything that is visible"), .run = selectEverything},
    {.id = kFind, .menuText = wxTRANSLATE("&Find...\tCtrl+F"),
     .menuHelp = wxTRANSLATE("Find pieces, scenery and labels on the plan"),
     .menu = Command::Menu::Edit,
     .run = [](Desk& desk) { FindDialog(&desk.window, desk.workspace).ShowModal(); }},
    {.id = kCut, .menuText = wxTRANSLATE("Cu&t\tCtrl+X"),
     .menuHelp = wxTRANSLATE("Take what is selected away, to paste it elsewhere"),
     .menu = Menu::Edit, .unusable = nothingSelected,
     .run = [](Desk& desk) { cutSelection(siteOf(desk)); }},
    {.id = kCopy, .menuText = wxTRANSLATE("&Copy\tCtrl+C"),
     .menuHelp = wxTRANSLATE("Copy what is selected, to paste it elsewhere"), .menu = Menu::Edit,
     .unusable = nothingSelected, .run = [](Desk& desk) { copySelection(siteOf(desk)); }},
    {.id = kPaste, .menuText = wxTRANSLATE("&Paste\tCtrl+V"),
     .menuHelp = wxTRANSLATE("Hang what was copied on the pointer, to be dropped on the plan"),
     .menu = Menu::Edit, .unusable = nothingToPaste, .run = paste},
    {.id = kDuplicate, .menuText = wxTRANSLATE("Dup&licate\tCtrl+D"),
     .menuHelp = wxTRANSLATE("Hang a copy of what is selected on the pointer"), .menu = Menu::Edit,
     .unusable = nothingSelected, .run = [](Desk& desk) { duplicateSelection(siteOf(desk)); }},
};
// clang-format on

} // namespace

std::span<const Command> editCommands() {
  return kCommands;
}

} // namespace trassix
