// The frame's commands that copy plans in and out of the user's folder and blocks into the library.
#include "app/desktop/path_text.h"
#include "app/desktop/standard_folders.h"
#include "app/desktop/user_paths.h"
#include "catalog/track_system.h"
#include "document/block_file.h"
#include "document/text_file.h"
#include "editing/selection/selection.h"
#include "ui/dialogs/export_dialog.h"
#include "ui/dialogs/import_dialog.h"
#include "ui/dialogs/name_dialog.h"
#include "ui/dialogs/saved_layouts.h"
#include "ui/frame/main_frame.h"
#include "ui/palette/palette_panel.h"
#include "ui/widgets/file_boxes.h"
#include "ui/widgets/utf8.h"

#include <wx/msgdlg.h>

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
    advice.line = "Replaces the block of that name";
  return advice;
}

} // namespace

void MainFrame::importLayout() {
  ImportDialog dialog(this, StandardFolders::downloads());
  if (dialog.ShowModal() != wxID_OK)
    return;
  const std::filesystem::path source = dialog.source();
  const wxString name = dialog.layoutName();
  const std::filesystem::path target = layoutFile(UserPaths::layoutsFolder(), toUtf8(name));
  if (!confirmReplace(target, name))
    return;
  const ImportResult imported = importPlan(source, target, toUtf8(name));
  if (imported.failed()) {
    showFailure(this, _("Import Failed"),
                imported.step == ImportResult::Step::Read
                    ? _("This file does not appear to be a Trassix layout:\n\n") +
                          fromUtf8(imported.message)
                    : _("Could not copy the file to:\n") + toText(target),
                imported.reason);
    return;
  }
  showNotices(this, _("Import"), imported.notices);
  tellWay(imported.way, target);
  if (wxMessageBox(wxString::Format(_("Imported successfully.\n\nOpen \"%s\" now?"), name),
                   _("Import"), wxYES_NO | wxICON_QUESTION, this) == wxYES &&
      promptUnsaved())
    loadLayout(target);
}

void MainFrame::exportLayout() {
  const SavedLayouts saved(UserPaths::layoutsFolder());
  if (saved.empty()) {
    wxMessageBox(_("No layouts to export. Save a layout first."), _("Export Layout"),
                 wxOK | wxICON_INFORMATION, this);
    return;
  }
  ExportDialog dialog(this, saved, StandardFolders::downloads());
  if (dialog.ShowModal() != wxID_OK)
    return;
  const std::filesystem::path folder = dialog.destination();
  std::error_code none;
  if (!std::filesystem::is_directory(folder, none)) {
    wxMessageBox(_("Destination folder does not exist:\n") + toText(folder), _("Export Failed"),
                 wxOK | wxICON_ERROR, this);
    return;
  }
  const std::filesystem::path target = layoutFile(folder, toUtf8(dialog.fileName()));
  if (std::filesystem::exists(target, none) &&
      wxMessageBox(wxString::Format(_("\"%s\" already exists in that folder.\n\nReplace it?"),
                                    toText(target.filename())),
                   _("Confirm Replace"), wxYES_NO | wxNO_DEFAULT | wxICON_QUESTION, this) != wxYES)
    return;
  FileReport report;
  if (!copyOver(dialog.source(), target, report)) {
    showFailure(this, _("Export Failed"), _("Could not copy the file to:\n") + toText(target),
                report.reason);
    return;
  }
  tellWay(report.way, target);
  wxMessageBox(_("Exported to:\n") + toText(target), _("Export"), wxOK | wxICON_INFORMATION, this);
}

void MainFrame::saveBlock() {
  if (blockFromSelection(plan_.layout()).empty()) {
    wxMessageBox(_("Select pieces first to save as library block."), _("Save Block"),
                 wxOK | wxICON_INFORMATION, this);
    return;
  }
  const std::filesystem::path folder = palette_->libraryFolder();
  NameDialog dialog(this, _("Block name:"), _("Save Library Block"), wxEmptyString,
                    [&folder](const wxString& typed) { return adviseOnBlock(folder, typed); });
  if (dialog.ShowModal() != wxID_OK || dialog.GetValue().empty())
    return;
  const wxString name = dialog.GetValue();
  // A folder that cannot be made shows as a block that cannot be written.
  std::error_code ignored;
  std::filesystem::create_directories(folder, ignored);
  const std::filesystem::path target = layoutFile(folder, toUtf8(name));
  FileReport report;
  const std::string message = trassix::saveBlock(plan_.layout(), target, toUtf8(name), &report);
  if (!message.empty()) {
    showFailure(this, _("Save Block Failed"), fromUtf8(message), report.reason);
    return;
  }
  palette_->reloadLibrary();
  tellWay(report.way, target);
  wxMessageBox(_("Block saved: ") + name, _("Save Block"), wxOK | wxICON_INFORMATION, this);
}

} // namespace trassix
