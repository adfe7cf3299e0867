#include "ui/commands/plan_files.h"

#include "app/desktop/path_text.h"
#include "app/desktop/standard_folders.h"
#include "app/desktop/user_paths.h"
#include "app/services/app_prefs.h"
#include "catalog/track_catalog.h"
#include "document/open_plan.h"
#include "host/workspace.h"
#include "texts/texts.h"
#include "ui/canvas/canvas_panel.h"
#include "ui/dialogs/name_dialog.h"
#include "ui/dialogs/saved_layouts.h"
#include "ui/widgets/file_boxes.h"
#include "ui/widgets/utf8.h"

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

/// What the status bar says of a plan just opened.
std::string openedHint(const Layout& layout) {
  const auto& runs = layout.content().gradeRuns;
  if (runs.empty())
    return tr("Ready");
  wxString hint = "[ELEV]";
  for (const GradeRun& run : runs)
    hint += wxString::Format(" %.1f deg", run.deg);
  return toUtf8(hint + "  (right-click piece to stop)");
}

} // namespace

PlanFiles::PlanFiles(wxWindow& window, Workspace& workspace, CanvasPanel& canvasPanel)
    : window_(window), workspace_(workspace), canvasPanel_(canvasPanel) {}

bool PlanFiles::promptUnsaved() {
  if (!workspace_.plan().unsaved())
    return true;
  const int answer =
      wxMessageBox(_("You have unsaved changes. Save before continuing?"), _("Unsaved Changes"),
                   wxYES_NO | wxCANCEL | wxICON_QUESTION, &window_);
  if (answer == wxCANCEL)
    return false;
  if (answer == wxYES) {
    save();
    if (workspace_.plan().unsaved())
      tellAside(writeAside());
  }
  return true;
}

AsideCopy PlanFiles::writeAside() const {
  return trassix::writeAside(workspace_.layout(), workspace_.plan().name(),
                             StandardFolders::asideCopies(), std::time(nullptr));
}

void PlanFiles::tellAside(const AsideCopy& copy) {
  if (copy.problem.empty())
    wxMessageBox(_("The plan was not saved. A copy of it was written to:\n") + toText(copy.file),
                 _("Unsaved Changes"), wxOK | wxICON_INFORMATION, &window_);
  else
    wxMessageBox(_("The plan was not saved, nor could a copy be written:\n") +
                     fromUtf8(copy.problem),
                 _("Unsaved Changes"), wxOK | wxICON_ERROR, &window_);
}

void PlanFiles::startNew() {
  workspace_.plan().startNew(appPrefs().units);
  workspace_.planReplaced();
  canvasPanel_.canvas().resetView();
  workspace_.selectionChanged();
  workspace_.setHint(tr("Ready"));
}

bool PlanFiles::load(const std::filesystem::path& path) {
  const FileResult opened = workspace_.plan().load(path);
  if (opened.failed()) {
    showFailure(&window_, _("Open Failed"), fromUtf8(opened.message), opened.reason);
    return false;
  }
  workspace_.planReplaced();
  workspace_.fileChanged();
  if (holdsSmallTrack(workspace_.layout()))
    canvasPanel_.canvas().resetViewForSmall();
  else
    canvasPanel_.canvas().fit();
  workspace_.selectionChanged();
  workspace_.setHint(openedHint(workspace_.layout()));
  showNotices(&window_, _("Open Layout"), opened.notices);
  return true;
}

void PlanFiles::tellSaved(const FileResult& result) {
  if (result.failed()) {
    showFailure(&window_, _("Save Failed"), fromUtf8(result.message), result.reason);
    return;
  }
  workspace_.fileChanged();
  workspace_.setHint(tr("Saved"));
  tellWay(result.way, workspace_.plan().file());
}

void PlanFiles::tellWay(WriteWay way, const std::filesystem::path& path) {
  if (way == WriteWay::Replaced || !toldInPlace_.insert(path).second)
    return;
  wxMessageBox(
      wxString::Format(_("The folder takes no new files, so this file itself was written over:\n%s"
                         "\n\nThat is less safe: should the computer stop during a save, the file "
                         "is damaged."),
                       toText(path)),
      _("Saved in Place"), wxOK | wxICON_INFORMATION, &window_);
}

void PlanFiles::save() {
  if (workspace_.plan().file().empty())
    saveAs();
  else
    tellSaved(workspace_.plan().save());
}

void PlanFiles::saveAs() {
  const wxString kDefaultName = _("My Layout");
  const wxString offered = fromUtf8(withoutSeparators(workspace_.plan().name()));
  NameDialog dialog(&window_, _("Layout name:"), _("Save Layout"),
                    offered.empty() ? kDefaultName : offered);
  if (dialog.ShowModal() != wxID_OK)
    return;
  wxString name = dialog.GetValue();
  name.Trim(true).Trim(false);
  if (name.empty())
    name = kDefaultName;
  const std::filesystem::path target = layoutFile(UserPaths::layoutsFolder(), toUtf8(name));
  if (confirmReplace(target, name))
    tellSaved(workspace_.plan().saveAs(target, toUtf8(name)));
}

bool PlanFiles::confirmReplace(const std::filesystem::path& target, const wxString& name) {
  std::error_code ignored;
  if (!std::filesystem::exists(target, ignored))
    return true;
  return wxMessageBox(
             wxString::Format(_("A layout named \"%s\" already exists.\n\nReplace it?"), name),
             _("Confirm Replace"), wxYES_NO | wxNO_DEFAULT | wxICON_QUESTION, &window_) == wxYES;
}

} // namespace trassix
