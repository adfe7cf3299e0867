// The frame's commands on files: what the open plan belongs to, and how nothing of it gets lost.
#include "app/services/path_text.h"
#include "app/services/user_paths.h"
#include "catalog/track_catalog.h"
#include "document/layout_reader.h"
#include "document/layout_writer.h"
#include "document/repairs.h"
#include "document/text_file.h"
#include "ui/canvas_panel.h"
#include "ui/command_ids.h"
#include "ui/main_frame.h"
#include "ui/open_layout_dialog.h"
#include "ui/palette_panel.h"
#include "ui/properties_panel.h"
#include "ui/saved_layouts.h"
#include "ui/utf8.h"

#include <wx/menu.h>
#include <wx/msgdlg.h>
#include <wx/textdlg.h>

#include <algorithm>

namespace trassix {

namespace {

bool holdsSmallTrack(const Layout& layout) {
  return std::any_of(layout.pieces().begin(), layout.pieces().end(), [](const PlacedPiece& piece) {
    const PieceDef* definition = TrackCatalog::instance().find(piece.cat);
    return definition && definition->system == TrackSystem::ZTrack;
  });
}

} // namespace

bool MainFrame::promptUnsaved() {
  if (!dirty_)
    return true;
  const int answer =
      wxMessageBox(_("You have unsaved changes. Save before continuing?"), _("Unsaved Changes"),
                   wxYES_NO | wxCANCEL | wxICON_QUESTION, this);
  if (answer == wxCANCEL)
    return false;
  if (answer == wxYES)
    save();
  return true;
}

void MainFrame::newLayout() {
  if (!promptUnsaved())
    return;
  const std::int32_t units = layout_.settings().units;
  layout_.clear();
  layout_.editSettings().units = units;
  layout_.ensureLevel();
  layout_.editSettings().activeLevel = 1;
  currentPath_.clear();
  dirty_ = false;
  SetTitle(kBaseTitle);
  planReplaced();
  canvas_->canvas().resetView();
  canvas_->update();
  selectionChanged();
  refreshProperties();
  SetStatusText(_("Ready"), kHintField);
  showPieceCount();
}

bool MainFrame::loadLayout(const std::filesystem::path& path) {
  // Read beside the open plan, which is replaced only by a plan that was read to its end.
  trassix::Layout loaded;
  std::string name;
  std::string text;
  std::string message = readTextFile(path, text);
  if (message.empty())
    message = readLayout(text, loaded, name);
  if (!message.empty()) {
    wxMessageBox(fromUtf8(message), _("Open Failed"), wxOK | wxICON_ERROR, this);
    return false;
  }
  const bool whole = isWholeLayout(text);
  const std::string mended = describeRepairs(makeSound(loaded));
  layout_ = std::move(loaded);
  layout_.ensureLevel();
  // A damaged file is not written over unasked: its rest may still be saved by other means.
  currentPath_ = whole ? path : std::filesystem::path();
  currentName_ = fromUtf8(name);
  dirty_ = false;
  refreshTitle();
  showUnits();
  planReplaced();
  if (holdsSmallTrack(layout_))
    canvas_->canvas().resetViewForSmall();
  else
    canvas_->canvas().fit();
  canvas_->update();
  selectionChanged();
  refreshProperties();
  palette_->followLayout(layout_);
  SetStatusText(openedStatus(), kHintField);
  showPieceCount();
  if (!whole)
    wxMessageBox(
        _("This file is damaged: it does not hold a whole layout.\n\nWhat could be read is "
          "shown. Saving will ask for a name, so that the file can stay as it is."),
        _("Open Layout"), wxOK | wxICON_WARNING, this);
  if (!mended.empty())
    wxMessageBox(fromUtf8(mended), _("Open Layout"), wxOK | wxICON_INFORMATION, this);
  return true;
}

wxString MainFrame::openedStatus() const {
  const auto& runs = layout_.content().gradeRuns;
  if (runs.empty())
    return _("Ready");
  wxString status = "[ELEV]";
  for (const GradeRun& run : runs)
    status += wxString::Format(" %.1f deg", run.deg);
  return status + "  (right-click piece to stop)";
}

void MainFrame::openLayout() {
  if (!promptUnsaved())
    return;
  const SavedLayouts saved(UserPaths::layoutsFolder());
  if (saved.empty()) {
    wxMessageBox(_("No layouts found in\n") + toText(UserPaths::layoutsFolder()), _("Open Layout"),
                 wxOK | wxICON_INFORMATION, this);
    return;
  }
  OpenLayoutDialog dialog(this, saved, [this](const std::filesystem::path& deleted) {
    if (deleted == currentPath_)
      currentPath_.clear();
  });
  if (dialog.ShowModal() != wxID_OK)
    return;
  if (const auto chosen = dialog.chosen())
    loadLayout(*chosen);
}

bool MainFrame::write(const std::filesystem::path& path) {
  const std::string message = saveLayout(layout_, path, toUtf8(currentName_));
  if (!message.empty()) {
    wxMessageBox(fromUtf8(message), _("Save Failed"), wxOK | wxICON_ERROR, this);
    return false;
  }
  dirty_ = false;
  refreshTitle();
  SetStatusText(_("Saved"), kHintField);
  return true;
}

void MainFrame::save() {
  if (currentPath_.empty())
    saveAs();
  else
    write(currentPath_);
}

void MainFrame::saveAs() {
  const wxString kDefaultName = _("My Layout");
  wxTextEntryDialog dialog(this, _("Layout name:"), _("Save Layout"),
                           currentName_.empty() ? kDefaultName : currentName_,
                           wxOK | wxCANCEL | wxCENTRE);
  if (dialog.ShowModal() != wxID_OK)
    return;
  wxString name = dialog.GetValue();
  name.Trim(true).Trim(false);
  if (name.empty())
    name = kDefaultName;
  const std::filesystem::path target = layoutFile(UserPaths::layoutsFolder(), toUtf8(name));
  if (!confirmReplace(target, name))
    return;
  currentPath_ = target;
  currentName_ = name;
  write(target);
}

bool MainFrame::confirmReplace(const std::filesystem::path& target, const wxString& name) {
  std::error_code ignored;
  if (!std::filesystem::exists(target, ignored))
    return true;
  return wxMessageBox(
             wxString::Format(_("A layout named \"%s\" already exists.\n\nReplace it?"), name),
             _("Confirm Replace"), wxYES_NO | wxNO_DEFAULT | wxICON_QUESTION, this) == wxYES;
}

void MainFrame::exit() {
  Close();
}

} // namespace trassix
