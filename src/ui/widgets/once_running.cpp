#include "ui/widgets/once_running.h"

#include <wx/app.h>
#include <wx/evtloop.h>

#include <deque>
#include <utility>

namespace trassix {

namespace {

std::deque<std::function<void()>>& waiting() {
  static std::deque<std::function<void()>> functions;
  return functions;
}

void callNext(wxIdleEvent& event) {
  event.Skip();
  // Idle events also come from the loop of a dialog that one of them shows.
  static bool calling = false;
  const wxEventLoopBase* main = wxTheApp->GetMainLoop();
  if (calling || main == nullptr || main != wxEventLoopBase::GetActive())
    return;
  const auto function = std::move(waiting().front());
  waiting().pop_front();
  if (waiting().empty())
    wxTheApp->Unbind(wxEVT_IDLE, &callNext);
  struct Calling {
    Calling() { calling = true; }
    ~Calling() {
      calling = false;
      wxWakeUpIdle(); // for the next one
    }
  } const guard;
  function();
}

} // namespace

void onceRunning(std::function<void()> function) {
  if (waiting().empty())
    wxTheApp->Bind(wxEVT_IDLE, &callNext);
  waiting().push_back(std::move(function));
}

} // namespace trassix
