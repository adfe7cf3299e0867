#include "ui/commands/plan_files.h"

#include "app/desktop/path_text.h"
#include "app/desktop/standard_folders.h"
#include "app/desktop/user_paths.h"
#include "app/services/app_prefs.h"
#include "app/services/local_time.h"
#include "app/services/program_memory.h"
#include "document/open_plan.h"
#include "editing/elevation/grade_runs.h"
#include "editing/selection/plan_systems.h"
#include "host/questions.h"
#include "host/workspace.h"
#include "panels/recent_plans.h"
#include "texts/texts.h"
#include "ui/canvas/canvas_panel.h"
#include "ui/dialogs/name_dialog.h"
#include "ui/dialogs/rescue_dialog.h"
#include "ui/dialogs/saved_layouts.h"
#include "ui/widgets/file_boxes.h"
#include "ui/widgets/utf8.h"

#include <wx/msgdlg.h>
#include <wx/toplevel.h>

#include <ctime>

namespace trassix {

namespace {

ProgramMemory memory() {
  return ProgramMemory(StandardFolders::memoryFile());
}

} // namespace

PlanFiles::PlanFiles(wxTopLevelWindow& window, Workspace& workspace, CanvasPanel& canvasPanel)
    : window_(window), workspace_(workspace), canvasPanel_(canvasPanel), rescue_(window, workspace),
      versions_(StandardFolders::olderVersions()) {}

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
      tellAside(rescue_.write());
  } else {
    rescue_.giveUp();
  }
  return true;
}

void PlanFiles::tellAside(const WrittenCopy& copy) {
  if (copy.problem.empty())
    wxMessageBox(_("The plan was not saved. A copy of it was written to:\n") + toText(copy.file) +
                     _("\n\nIt will be offered at the next start."),
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
  return offer(findRescued(StandardFolders::rescueSessions(), rescue_.session(), path)) ||
         open(path);
}

bool PlanFiles::open(const std::filesystem::path& path) {
  if (take(workspace_.plan().load(path)))
    return true;
  std::error_code error;
  if (!std::filesystem::exists(path, error))
    RecentPlans::forget(memory(), path);
  return false;
}

void PlanFiles::openNamed(const std::filesystem::path& path) {
  if (promptUnsaved())
    load(path);
}

void PlanFiles::startWith(const std::filesystem::path& named) {
  offer(findRescued(StandardFolders::rescueSessions(), rescue_.session()));
  // What was rescued of it was offered just now.
  if (!named.empty() && promptUnsaved())
    open(named);
}

bool PlanFiles::offer(RescuedPlans found) {
  showNotices(&window_, _("Rescued Plans"), found.problems);
  if (found.plans.empty())
    return false;
  RescueDialog dialog(&window_, std::move(found.plans));
  return dialog.ShowModal() == wxID_OK && openRescued(dialog.chosen());
}

bool PlanFiles::openRescued(RescuedPlan& rescued) {
  if (!take(workspace_.plan().loadCopy(rescued.copy, rescued.origin)))
    return false;
  // At no moment is there none.
  if (rescue_.write().problem.empty())
    rescued.throwAway();
  return true;
}

bool PlanFiles::openVersion(const std::filesystem::path& copy) {
  return take(workspace_.plan().loadCopy(copy, {}));
}

void PlanFiles::startFrom(std::string_view text) {
  take(workspace_.plan().startFrom(std::string(text)));
}

bool PlanFiles::take(FileResult opened) {
  if (opened.failed()) {
    showFailure(&window_, _("Open Failed"), fromUtf8(opened.message), opened.reason);
    return false;
  }
  workspace_.planReplaced();
  rememberRecent();
  workspace_.fileChanged();
  if (holdsTrackOf(workspace_.layout(), TrackSystem::ZTrack))
    canvasPanel_.canvas().resetViewForSmall();
  else
    canvasPanel_.canvas().fit();
  workspace_.selectionChanged();
  // Open grade runs stand before any hint, and alone until there is another one.
  workspace_.setHint(elevationStatus(workspace_.layout()).empty() ? tr("Ready") : "");
  const std::filesystem::path& file = workspace_.plan().file();
  if (!file.empty() && openElsewhere(StandardFolders::rescueSessions(), rescue_.session(), file))
    opened.notices.push_back(tr("This plan is also open in another window of the program. What "
                                "one of them saves, the other one does not show."));
  showNotices(&window_, _("Open Layout"), opened.notices);
  return true;
}

void PlanFiles::tellSaved(const FileResult& result) {
  if (result.failed()) {
    showFailure(&window_, _("Save Failed"), fromUtf8(result.message), result.reason);
    return;
  }
  rememberRecent();
  workspace_.fileChanged();
  workspace_.setHint(tr("Saved"));
  tellWay(result.way, workspace_.plan().file());
}

void PlanFiles::rememberRecent() {
  if (!workspace_.plan().file().empty())
    RecentPlans::add(memory(), workspace_.plan().file());
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
  OpenPlan& plan = workspace_.plan();
  if (plan.file().empty())
    saveAs();
  else if (!plan.origin().changedElsewhere() || confirmChangedElsewhere())
    tellSaved(versions_.replacing(plan.file(), [&plan] { return plan.save(); }));
}

bool PlanFiles::confirmChangedElsewhere() {
  const PlanOrigin& origin = workspace_.plan().origin();
  return workspace_.questions().confirm(
      {tr("File Changed"),
       tr("The file of this plan was changed by another program or another window:\n%1%\n\n"
          "Opened or saved here: %2%\nChanged: %3%\n\nReplace it by the plan as it is here? What "
          "it holds now stays among its older versions.",
          {pathText(origin.file), localTimeText(origin.since),
           localTimeText(writtenAt(origin.file))}),
       true});
}

std::error_code PlanFiles::remove(const std::filesystem::path& path) {
  const std::time_t now = std::time(nullptr);
  bool kept = false;
  const std::error_code error = versions_.remove(path, now, kept);
  if (error)
    return error;
  RecentPlans::forget(memory(), path);
  if (workspace_.plan().file() == path) {
    workspace_.plan().fileDeleted(path);
    workspace_.fileChanged();
  }
  if (kept)
    workspace_.setHint(
        tr("Deleted. Its versions are kept until %1%: see Older Versions in the File menu.",
           {localDateText(now + VersionStore::kKeptAfterDelete)}));
  return {};
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
    tellSaved(versions_.replacing(target,
                                  [&] { return workspace_.plan().saveAs(target, toUtf8(name)); }));
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
