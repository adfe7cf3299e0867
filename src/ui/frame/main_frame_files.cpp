// The frame's commands on files: what the open plan belongs to, and how nothing of it gets lost.
#include "app/desktop/path_text.h"
#include "app/desktop/standard_folders.h"
#include "app/desktop/user_paths.h"
#include "app/services/app_prefs.h"
#include "catalog/track_catalog.h"
#include "host/command_ids.h"
#include "ui/canvas/canvas_panel.h"
#include "ui/dialogs/name_dialog.h"
#include "ui/dialogs/open_layout_dialog.h"
#include "ui/dialogs/saved_layouts.h"
#include "ui/frame/main_frame.h"
#include "ui/palette/palette_panel.h"
#include "ui/properties/properties_panel.h"
#include "ui/widgets/file_boxes.h"
#include "ui/widgets/utf8.h"

#include <wx/menu.h>
#include <wx/msgdlg.h>

#include <algorithm>
#include <ctime>

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
  if (!plan_.unsaved())
    return true;
  const int answer =
      wxMessageBox(_("You have unsaved changes. Save before continuing?"), _("Unsaved Changes"),
                   wxYES_NO | wxCANCEL | wxICON_QUESTION, this);
  if (answer == wxCANCEL)
    return false;
  if (answer == wxYES) {
    save();
    if (plan_.unsaved())
      tellAside(writeAside());
  }
  return true;
}

AsideCopy MainFrame::writeAside() const {
  return trassix::writeAside(plan_.layout(), plan_.name(), StandardFolders::asideCopies(),
                             std::time(nullptr));
}

void MainFrame::tellAside(const AsideCopy& copy) {
  if (copy.problem.empty())
    wxMessageBox(_("The plan was not saved. A copy of it was written to:\n") + toText(copy.file),
                 _("Unsaved Changes"), wxOK | wxICON_INFORMATION, this);
  else
    wxMessageBox(_("The plan was not saved, nor could a copy be written:\n") +
                     fromUtf8(copy.problem),
                 _("Unsaved Changes"), wxOK | wxICON_ERROR, this);
}

void MainFrame::newLayout() {
  if (!promptUnsaved())
    return;
  plan_.startNew(appPrefs().units);
  SetTitle(kBaseTitle);
  showUnits();
  planReplaced();
  canvas_->canvas().resetView();
  canvas_->update();
  selectionChanged();
  refreshProperties();
  SetStatusText(_("Ready"), kHintField);
  showPieceCount();
}

bool MainFrame::loadLayout(const std::filesystem::path& path) {
  const FileResult opened = plan_.load(path);
  if (opened.failed()) {
    showFailure(this, _("Open Failed"), fromUtf8(opened.message), opened.reason);
    return false;
  }
  refreshTitle();
  showUnits();
  planReplaced();
  if (holdsSmallTrack(plan_.layout()))
    canvas_->canvas().resetViewForSmall();
  else
    canvas_->canvas().fit();
  canvas_->update();
  selectionChanged();
  refreshProperties();
  palette_->followLayout(plan_.layout());
  SetStatusText(openedStatus(), kHintField);
  showPieceCount();
  showNotices(this, _("Open Layout"), opened.notices);
  return true;
}

wxString MainFrame::openedStatus() const {
  const auto& runs = plan_.layout().content().gradeRuns;
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
  OpenLayoutDialog dialog(this, saved, [this](const auto& deleted) { plan_.fileDeleted(deleted); });
  if (dialog.ShowModal() != wxID_OK)
    return;
  if (const auto chosen = dialog.chosen())
    loadLayout(*chosen);
}

void MainFrame::tellSaved(const FileResult& result) {
  if (result.failed()) {
    showFailure(this, _("Save Failed"), fromUtf8(result.message), result.reason);
    return;
  }
  refreshTitle();
  SetStatusText(_("Saved"), kHintField);
  tellWay(result.way, plan_.file());
}

void MainFrame::tellWay(WriteWay way, const std::filesystem::path& path) {
  if (way == WriteWay::Replaced || !toldInPlace_.insert(path).second)
    return;
  wxMessageBox(
      wxString::Format(_("The folder takes no new files, so this file itself was written over:\n%s"
                         "\n\nThat is less safe: should the computer stop during a save, the file "
                         "is damaged."),
                       toText(path)),
      _("Saved in Place"), wxOK | wxICON_INFORMATION, this);
}

void MainFrame::save() {
  if (plan_.file().empty())
    saveAs();
  else
    tellSaved(plan_.save());
}

void MainFrame::saveAs() {
  const wxString kDefaultName = _("My Layout");
  const wxString offered = fromUtf8(withoutSeparators(plan_.name()));
  NameDialog dialog(this, _("Layout name:"), _("Save Layout"),
                    offered.empty() ? kDefaultName : offered);
  if (dialog.ShowModal() != wxID_OK)
    return;
  wxString name = dialog.GetValue();
  name.Trim(true).Trim(false);
  if (name.empty())
    name = kDefaultName;
  const std::filesystem::path target = layoutFile(UserPaths::layoutsFolder(), toUtf8(name));
  if (confirmReplace(target, name))
    tellSaved(plan_.saveAs(target, toUtf8(name)));
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
