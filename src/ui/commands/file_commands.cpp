#include "app/desktop/path_text.h"
#include "app/desktop/user_paths.h"
#include "document/open_plan.h"
#include "host/workspace.h"
#include "ui/commands/command.h"
#include "ui/commands/desk.h"
#include "ui/dialogs/open_layout_dialog.h"
#include "ui/dialogs/saved_layouts.h"

#include <wx/frame.h>
#include <wx/msgdlg.h>
#include <wx/printdlg.h>

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
  OpenLayoutDialog dialog(&desk.window, saved, [&desk](const auto& deleted) {
    desk.workspace.plan().fileDeleted(deleted);
  });
  if (dialog.ShowModal() != wxID_OK)
    return;
  if (const auto chosen = dialog.chosen())
    desk.files.load(*chosen);
}

void pageSetup(Desk& desk) {
  PrintSettings& print = desk.print;
  print.page.SetPrintData(print.data);
  wxPageSetupDialog dialog(&desk.window, &print.page);
  if (dialog.ShowModal() != wxID_OK)
    return;
  print.page = dialog.GetPageSetupData();
  print.data = print.page.GetPrintData();
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
     .menuHelp = wxTRANSLATE("Paper and margins"), .run = pageSetup},
    {.id = wxID_PREVIEW, .menuText = wxTRANSLATE("Print Pre&view..."),
     .menuHelp = wxTRANSLATE("See the plan as it would be printed")},
    {.id = wxID_PRINT, .menuText = wxTRANSLATE("&Print...\tCtrl+P"),
     .menuHelp = wxTRANSLATE("Print the plan to scale")},
    {.id = wxID_EXIT, .menuText = wxTRANSLATE("E&xit"), .menuHelp = wxTRANSLATE("End the program"),
     .run = [](Desk& desk) { desk.window.Close(); }},
};
// clang-format on

constexpr int kMarginMm = 15;

} // namespace

PrintSettings::PrintSettings() {
  page.SetPrintData(data);
  page.SetMarginTopLeft({kMarginMm, kMarginMm});
  page.SetMarginBottomRight({kMarginMm, kMarginMm});
}

std::span<const Command> fileCommands() {
  return kCommands;
}

} // namespace trassix
