#include "app/desktop/path_text.h"
#include "app/desktop/standard_folders.h"
#include "app/desktop/user_paths.h"
#include "app/services/text_file.h"
#include "catalog/track_system.h"
#include "document/block_file.h"
#include "document/open_plan.h"
#include "editing/helix/helix_edits.h"
#include "editing/selection/selection.h"
#include "host/command_ids.h"
#include "host/questions.h"
#include "host/workspace.h"
#include "texts/texts.h"
#include "ui/commands/command.h"
#include "ui/commands/desk.h"
#include "ui/dialogs/export_dialog.h"
#include "ui/dialogs/import_dialog.h"
#include "ui/dialogs/name_dialog.h"
#include "ui/dialogs/saved_layouts.h"
#include "ui/palette/palette_panel.h"
#include "ui/widgets/file_boxes.h"
#include "ui/widgets/remembered_folder.h"
#include "ui/widgets/utf8.h"

#include <wx/frame.h>
#include <wx/msgdlg.h>

#include <algorithm>

namespace trassix {

namespace {

/// Byte for byte, and whole or not at all.
bool copyOver(const std::filesystem::path& source, const std::filesystem::path& target,
              FileReport& report) {
  std::string bytes;
  return readTextFile(source, bytes, &report).empty() && writeBytes(target, bytes, &report).empty();
}

/// Blocks are replaced without a question.
NameAdvice adviseOnBlock(const std::filesystem::path& folder, const wxString& typed) {
  NameAdvice advice = adviseOnTyped(typed);
  std::error_code none;
  if (advice.line.empty() && !typed.empty() &&
      std::filesystem::exists(layoutFile(folder, toUtf8(typed)), none))
    advice.line = tr("Replaces the block of that name");
  return advice;
}

void importLayout(Desk& desk) {
  ImportDialog dialog(&desk.window, rememberedFolder("import", StandardFolders::downloads()));
  if (dialog.ShowModal() != wxID_OK)
    return;
  const std::filesystem::path source = dialog.source();
  rememberFolder("import", source.parent_path());
  const wxString name = dialog.layoutName();
  const std::filesystem::path target = layoutFile(UserPaths::layoutsFolder(), toUtf8(name));
  if (!desk.files.confirmReplace(target, name))
    return;
  const ImportResult imported = desk.files.versions().replacing(
      target, [&] { return importPlan(source, target, toUtf8(name)); });
  if (imported.failed()) {
    showFailure(&desk.window, _("Import Failed"),
                imported.step == ImportResult::Step::Read
                    ? _("This file does not appear to be a Trassix layout:\n\n") +
                          fromUtf8(imported.message)
                    : _("Could not copy the file to:\n") + toText(target),
                imported.reason);
    return;
  }
  showNotices(&desk.window, _("Import"), imported.notices);
  desk.files.tellWay(imported.way, target);
  if (wxMessageBox(wxString::Format(_("Imported successfully.\n\nOpen \"%s\" now?"), name),
                   _("Import"), wxYES_NO | wxICON_QUESTION, &desk.window) == wxYES &&
      desk.files.promptUnsaved())
    desk.files.load(target);
}

void exportLayout(Desk& desk) {
  const SavedLayouts saved(UserPaths::layoutsFolder());
  if (saved.empty()) {
    wxMessageBox(_("No layouts to export. Save a layout first."), _("Export Layout"),
                 wxOK | wxICON_INFORMATION, &desk.window);
    return;
  }
  ExportDialog dialog(&desk.window, saved,
                      rememberedFolder("export", StandardFolders::downloads()));
  if (dialog.ShowModal() != wxID_OK)
    return;
  const std::filesystem::path folder = dialog.destination();
  std::error_code none;
  if (!std::filesystem::is_directory(folder, none)) {
    wxMessageBox(_("Destination folder does not exist:\n") + toText(folder), _("Export Failed"),
                 wxOK | wxICON_ERROR, &desk.window);
    return;
  }
  rememberFolder("export", folder);
  const std::filesystem::path target = layoutFile(folder, toUtf8(dialog.fileName()));
  if (std::filesystem::exists(target, none) &&
      wxMessageBox(wxString::Format(_("\"%s\" already exists in that folder.\n\nReplace it?"),
                                    toText(target.filename())),
                   _("Confirm Replace"), wxYES_NO | wxNO_DEFAULT | wxICON_QUESTION,
                   &desk.window) != wxYES)
    return;
  FileReport report;
  if (!copyOver(dialog.source(), target, report)) {
    showFailure(&desk.window, _("Export Failed"),
                _("Could not copy the file to:\n") + toText(target), report.reason);
    return;
  }
  desk.files.tellWay(report.way, target);
  wxMessageBox(_("Exported to:\n") + toText(target), _("Export"), wxOK | wxICON_INFORMATION,
               &desk.window);
}

/// Asks before a helix is saved where heights are not.
bool mayFlattenHelices(Workspace& workspace) {
  return !anyOfHelixSelected(workspace.layout()) ||
         workspace.questions().confirm(
             {tr("Save Block"),
              tr("A library block holds no heights: its helix comes back flat, as "
                 "loose rings of track. Save it all the same?")});
}

void saveSelectionAsBlock(Desk& desk) {
  if (!selectionFitsBlockFile(desk.workspace.layout())) {
    wxMessageBox(_("Select pieces first to save as library block."), _("Save Block"),
                 wxOK | wxICON_INFORMATION, &desk.window);
    return;
  }
  if (!mayFlattenHelices(desk.workspace))
    return;
  const std::filesystem::path folder = desk.palette.libraryFolder();
  NameDialog dialog(&desk.window, _("Block name:"), _("Save Library Block"), wxEmptyString,
                    [&folder](const wxString& typed) { return adviseOnBlock(folder, typed); });
  if (dialog.ShowModal() != wxID_OK || dialog.GetValue().empty())
    return;
  const wxString name = dialog.GetValue();
  // A folder that cannot be made shows as a block that cannot be written.
  std::error_code ignored;
  std::filesystem::create_directories(folder, ignored);
  const std::filesystem::path target = layoutFile(folder, toUtf8(name));
  FileReport report;
  const std::string message = saveBlock(desk.workspace.layout(), target, toUtf8(name), &report);
  if (!message.empty()) {
    showFailure(&desk.window, _("Save Block Failed"), fromUtf8(message), report.reason);
    return;
  }
  desk.palette.reloadLibrary();
  desk.files.tellWay(report.way, target);
  wxMessageBox(_("Block saved: ") + name, _("Save Block"), wxOK | wxICON_INFORMATION, &desk.window);
}

// clang-format off
const Command kCommands[] = {
    {.id = kImportLayout, .menuText = wxTRANSLATE("&Import Layout..."),
     .menuHelp = wxTRANSLATE("Copy a plan from another folder to your plans"),
     .run = importLayout},
    {.id = kExportLayout, .menuText = wxTRANSLATE("&Export Layout..."),
     .menuHelp = wxTRANSLATE("Copy one of your plans to another folder"), .run = exportLayout},
    {.id = kSaveBlock, .menuText = wxTRANSLATE("Save as &Library Block..."),
     .menuHelp = wxTRANSLATE("Keep the selected track for use in other plans"),
     .run = saveSelectionAsBlock},
};
// clang-format on

} // namespace

std::span<const Command> transferCommands() {
  return kCommands;
}

} // namespace trassix
