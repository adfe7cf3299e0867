// The frame's commands that copy plans in and out of the user's folder and blocks into the library.
#include "app/services/path_text.h"
#include "app/services/standard_folders.h"
#include "app/services/user_paths.h"
#include "catalog/track_system.h"
#include "document/block_file.h"
#include "document/layout_reader.h"
#include "document/layout_writer.h"
#include "document/repairs.h"
#include "document/text_file.h"
#include "editing/selection.h"
#include "ui/export_dialog.h"
#include "ui/import_dialog.h"
#include "ui/main_frame.h"
#include "ui/palette_panel.h"
#include "ui/saved_layouts.h"
#include "ui/utf8.h"

#include <wx/msgdlg.h>
#include <wx/textdlg.h>

namespace trassix {

namespace {

bool sameFile(const std::filesystem::path& a, const std::filesystem::path& b) {
  std::error_code none;
  return a == b || std::filesystem::equivalent(a, b, none);
}

/// Byte for byte, and whole or not at all.
bool copyOver(const std::filesystem::path& source, const std::filesystem::path& target) {
  std::string text;
  return readTextFile(source, text).empty() && writeTextFile(target, text).empty();
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
  trassix::Layout scratch;
  std::string storedName;
  std::string text;
  std::string message = readTextFile(source, text);
  if (message.empty())
    message = readLayout(text, scratch, storedName);
  if (message.empty() && !isWholeLayout(text))
    message = _("It does not hold a whole layout.").utf8_string();
  if (!message.empty()) {
    wxMessageBox(_("This file does not appear to be a Trassix layout:\n\n") + fromUtf8(message),
                 _("Import Failed"), wxOK | wxICON_ERROR, this);
    return;
  }
  if (!sameFile(source, target) && !copyOver(source, target)) {
    wxMessageBox(_("Could not copy the file to:\n") + toText(target), _("Import Failed"),
                 wxOK | wxICON_ERROR, this);
    return;
  }
  // The stored name follows the file's. Where that fails the copy is there all the same, under the
  // name it came with.
  if (trassix::loadLayout(target, scratch, storedName).empty()) {
    const std::string mended = describeRepairs(makeSound(scratch));
    saveLayout(scratch, target, toUtf8(name));
    if (!mended.empty())
      wxMessageBox(fromUtf8(mended), _("Import"), wxOK | wxICON_INFORMATION, this);
  }
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
  if (!copyOver(dialog.source(), target)) {
    wxMessageBox(_("Could not copy the file to:\n") + toText(target), _("Export Failed"),
                 wxOK | wxICON_ERROR, this);
    return;
  }
  wxMessageBox(_("Exported to:\n") + toText(target), _("Export"), wxOK | wxICON_INFORMATION, this);
}

void MainFrame::saveBlock() {
  if (blockFromSelection(layout_).empty()) {
    wxMessageBox(_("Select pieces first to save as library block."), _("Save Block"),
                 wxOK | wxICON_INFORMATION, this);
    return;
  }
  wxTextEntryDialog dialog(this, _("Block name:"), _("Save Library Block"), wxEmptyString,
                           wxOK | wxCANCEL | wxCENTRE);
  if (dialog.ShowModal() != wxID_OK || dialog.GetValue().empty())
    return;
  const wxString name = dialog.GetValue();
  const std::filesystem::path folder = palette_->libraryFolder();
  // A folder that cannot be made shows as a block that cannot be written.
  std::error_code ignored;
  std::filesystem::create_directories(folder, ignored);
  const std::string message =
      trassix::saveBlock(layout_, layoutFile(folder, toUtf8(name)), toUtf8(name));
  if (!message.empty()) {
    wxMessageBox(fromUtf8(message), _("Save Block Failed"), wxOK | wxICON_ERROR, this);
    return;
  }
  palette_->reloadLibrary();
  wxMessageBox(_("Block saved: ") + name, _("Save Block"), wxOK | wxICON_INFORMATION, this);
}

} // namespace trassix
