#include "app/desktop/path_text.h"
#include "app/desktop/standard_folders.h"
#include "app/desktop/user_paths.h"
#include "app/services/program_memory.h"
#include "document/open_plan.h"
#include "host/command_ids.h"
#include "host/workspace.h"
#include "panels/recent_plans.h"
#include "ui/commands/command.h"
#include "ui/commands/desk.h"
#include "ui/dialogs/older_versions_dialog.h"
#include "ui/dialogs/open_layout_dialog.h"
#include "ui/dialogs/saved_layouts.h"

#include <wx/frame.h>
#include <wx/msgdlg.h>

namespace trassix {

namespace {

void newLayout(Desk& desk) {
  if (desk.files.promptUnsaved())
    desk.files.startNew();
}

void openLayout(Desk& desk) {
  if (!desk.files.promptUnsaved())
    return;
  const SavedLayouts saved(UserPaths::layoutsFolder());
  if (saved.empty()) {
    wxMessageBox(_("No layouts found in\n") + toText(UserPaths::layoutsFolder()), _("Open Layout"),
                 wxOK | wxICON_INFORMATION, &desk.window);
    return;
  }
  OpenLayoutDialog dialog(&desk.window, saved,
                          [&desk](const auto& file) { return desk.files.remove(file); });
  if (dialog.ShowModal() != wxID_OK)
    return;
  if (const auto chosen = dialog.chosen())
    desk.files.load(*chosen);
}

void openOlderVersion(Desk& desk) {
  if (!desk.files.promptUnsaved())
    return;
  std::vector<VersionStore::Plan> plans = desk.files.versions().plans();
  if (plans.empty()) {
    wxMessageBox(_("There are no older versions yet. From now on each save keeps what the file of "
                   "the plan held before."),
                 _("Older Versions"), wxOK | wxICON_INFORMATION, &desk.window);
    return;
  }
  OlderVersionsDialog dialog(&desk.window, std::move(plans), desk.workspace.plan().file());
  if (dialog.ShowModal() == wxID_OK)
    desk.files.openVersion(dialog.chosen());
}

/// The menu shows the list as it was when it opened.
template <std::size_t row>
void openRecent(Desk& desk) {
  const auto recent = RecentPlans::list(ProgramMemory(StandardFolders::memoryFile()));
  if (row < recent.size())
    desk.files.openNamed(recent[row]);
}

// clang-format off
const Command kCommands[] = {
    {.id = wxID_NEW, .menuText = wxTRANSLATE("&New Layout\tCtrl+N"),
     .menuHelp = wxTRANSLATE("Start an empty plan"), .run = newLayout},
    {.id = wxID_OPEN, .menuText = wxTRANSLATE("&Open Layout...\tCtrl+O"),
     .menuHelp = wxTRANSLATE("Open a saved plan"), .run = openLayout},
    {.id = wxID_SAVE, .menuText = wxTRANSLATE("&Save\tCtrl+S"),
     .menuHelp = wxTRANSLATE("Save the plan"), .run = [](Desk& desk) { desk.files.save(); }},
    {.id = wxID_SAVEAS, .menuText = wxTRANSLATE("Save &As...\tCtrl+Shift+S"),
     .menuHelp = wxTRANSLATE("Save the plan under another name"),
     .run = [](Desk& desk) { desk.files.saveAs(); }},
    {.id = wxID_CLOSE, .menuText = wxTRANSLATE("&Close Layout\tCtrl+W"),
     .menuHelp = wxTRANSLATE("Close the plan"), .run = newLayout},
    {.id = wxID_PAGE_SETUP, .menuText = wxTRANSLATE("Page Set&up..."),
     .menuHelp = wxTRANSLATE("Paper and margins"), .run = [](Desk& desk) { setUpPage(desk.window, desk.print); }},
    {.id = wxID_PREVIEW, .menuText = wxTRANSLATE("Print Pre&view..."),
     .menuHelp = wxTRANSLATE("See the plan as it would be printed"),
     .run = [](Desk& desk) { previewPlan(desk.window, desk.workspace, desk.print); }},
    {.id = wxID_PRINT, .menuText = wxTRANSLATE("&Print...\tCtrl+P"),
     .menuHelp = wxTRANSLATE("Print the plan to scale"),
     .run = [](Desk& desk) { printPlan(desk.window, desk.workspace, desk.print); }},
    {.id = wxID_EXIT, .menuText = wxTRANSLATE("E&xit"), .menuHelp = wxTRANSLATE("End the program"),
     .run = [](Desk& desk) { desk.window.Close(); }},
    {.id = kOlderVersions, .menuText = wxTRANSLATE("Ol&der Versions..."),
     .menuHelp = wxTRANSLATE("What plans held before they were saved over or deleted"),
     .menu = Command::Menu::File, .run = openOlderVersion},
    {.id = kExportPicture, .menuText = wxTRANSLATE("Expo&rt Picture..."),
     .menuHelp = wxTRANSLATE("Write the plan as PNG, SVG or PDF"), .menu = Command::Menu::File,
     .run = [](Desk& desk) { exportPicture(desk.window, desk.workspace, desk.print); }},
    {.id = wxID_FILE1, .run = openRecent<0>},
    {.id = wxID_FILE2, .run = openRecent<1>},
    {.id = wxID_FILE3, .run = openRecent<2>},
    {.id = wxID_FILE4, .run = openRecent<3>},
    {.id = wxID_FILE5, .run = openRecent<4>},
    {.id = wxID_FILE6, .run = openRecent<5>},
    {.id = wxID_FILE7, .run = openRecent<6>},
    {.id = wxID_FILE8, .run = openRecent<7>},
    {.id = wxID_FILE9, .run = openRecent<8>},
};
// clang-format on

} // namespace

std::span<const Command> fileCommands() {
  return kCommands;
}

} // namespace trassix
