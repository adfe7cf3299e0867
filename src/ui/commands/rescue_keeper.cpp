#include "ui/commands/rescue_keeper.h"

#include "app/desktop/standard_folders.h"
#include "app/services/diagnostic_log.h"
#include "document/open_plan.h"
#include "host/questions.h"
#include "texts/texts.h"

#include <wx/mousestate.h>
#include <wx/toplevel.h>
#include <wx/utils.h>

#include <utility>

namespace trassix {

namespace {

RescueSchedule::Time now() {
  return std::chrono::steady_clock::now();
}

/// The usual one, or the milliseconds in an environment variable, for tests.
RescueSchedule::Duration interval() {
  wxString text;
  long ms = 0;
  if (wxGetEnv("TRASSIX_RESCUE_INTERVAL", &text) && text.ToCLong(&ms) && ms >= 50 && ms <= 600'000)
    return std::chrono::milliseconds(ms);
  return std::chrono::seconds(20);
}

bool mouseButtonDown() {
  const wxMouseState mouse = wxGetMouseState();
  return mouse.LeftIsDown() || mouse.MiddleIsDown() || mouse.RightIsDown();
}

} // namespace

RescueKeeper::RescueKeeper(wxTopLevelWindow& window, Workspace& workspace)
    : PlanObserver(workspace), window_(window), workspace_(workspace), schedule_(interval()),
      session_(StandardFolders::rescueSessions()) {
  wxEvtHandler::AddFilter(this);
  timer_.SetOwner(&timer_);
  timer_.Bind(wxEVT_TIMER, [this](wxTimerEvent&) { onTimer(); });
}

RescueKeeper::~RescueKeeper() {
  wxEvtHandler::RemoveFilter(this);
}

int RescueKeeper::FilterEvent(wxEvent& event) {
  if (event.GetEventCategory() == wxEVT_CATEGORY_USER_INPUT)
    lastInput_ = now();
  return Event_Skip;
}

void RescueKeeper::planChanged() {
  if (!workspace_.plan().unsaved())
    return;
  givenUp_ = false;
  schedule_.changed(now());
  startTimer();
}

void RescueKeeper::startTimer() {
  if (!timer_.IsRunning())
    timer_.Start(static_cast<int>(
        std::chrono::duration_cast<std::chrono::milliseconds>(schedule_.tick()).count()));
}

void RescueKeeper::planReplaced() {
  if (std::exchange(givenUp_, false))
    session_.discard();
  else if (session_.hasCopy())
    session_.leave();
  written_.reset();
  schedule_.settled();
  followFile();
  if (workspace_.plan().unsaved())
    planChanged();
}

void RescueKeeper::followFile() {
  const PlanOrigin& origin = workspace_.plan().origin();
  if (origin != session_.origin())
    note(session_.belongTo(origin));
}

void RescueKeeper::fileChanged() {
  const OpenPlan& plan = workspace_.plan();
  if (!plan.unsaved()) {
    session_.discard();
    written_.reset();
    schedule_.settled();
  }
  followFile();
}

void RescueKeeper::onTimer() {
  if (schedule_.due(now(), lastInput_, mouseButtonDown())) {
    const std::string problem = write().problem;
    if (!problem.empty())
      schedule_.changed(now()); // it is tried again
    note(problem);
  }
  tell();
  if (!schedule_.waiting() && (problem_.empty() || told_))
    timer_.Stop();
}

WrittenCopy RescueKeeper::write() {
  const OpenPlan& plan = workspace_.plan();
  const std::uint64_t stamp = plan.layout().documentStamp();
  WrittenCopy copy;
  if (stamp != written_ || plan.origin() != session_.origin() || !session_.hasCopy()) {
    if (plan.origin() != session_.origin())
      copy.problem = session_.belongTo(plan.origin());
    if (copy.problem.empty())
      copy.problem = session_.write(plan.layout(), plan.name());
  }
  if (copy.problem.empty())
    written_ = stamp;
  copy.file = session_.copyFile();
  schedule_.copied(now());
  return copy;
}

void RescueKeeper::end() {
  timer_.Stop();
  if (!workspace_.plan().unsaved() || givenUp_)
    return session_.close();
  const WrittenCopy copy = write();
  if (!copy.problem.empty())
    DiagnosticLog::write("No rescue copy at the end: " + copy.problem);
}

void RescueKeeper::note(const std::string& problem) {
  if (problem.empty() || !problem_.empty())
    return;
  problem_ = problem;
  DiagnosticLog::write("No rescue copy: " + problem);
  startTimer();
}

void RescueKeeper::tell() {
  // A box must not come up over another one, nor take the keys from another window.
  if (problem_.empty() || told_ || !window_.IsActive())
    return;
  told_ = true;
  workspace_.questions().show(
      {tr("Rescue Copies"),
       tr("Unsaved changes cannot be kept safe from a crash at present:\n%1%\n\nYou can go on "
          "working. Save often until that is mended.",
          {problem_}),
       Notice::Icon::Warning});
}

} // namespace trassix
