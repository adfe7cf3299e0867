#include "driver.h"

#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/control.h>
#include <wx/eventfilter.h>
#include <wx/evtloop.h>
#include <wx/stopwatch.h>
#include <wx/uiaction.h>
#include <wx/utils.h>
#include <wx/window.h>

#include <cstdlib>
#include <filesystem>
#include <memory>

namespace trassix::test {

namespace {

constexpr long kPatienceMs = 20'000;
constexpr int kSteps = 8;

/// Writes what the whole screen shows to "ui-screenshots/NAME.png" in the build folder.
void takeScreenshot(const std::string& name) {
  const std::filesystem::path folder = TRASSIX_SCREENSHOT_DIR;
  std::filesystem::create_directories(folder);
  const std::string file = (folder / (name + ".png")).string();
  EXPECT_EQ(std::system(("import -window root '" + file + "'").c_str()), 0) << file;
}

void handleEvents() {
  wxEventLoopBase* loop = wxEventLoopBase::GetActive();
  if (loop == nullptr) { // waiting for another program
    wxMilliSleep(10);
    return;
  }
  loop->DispatchTimeout(10);
  loop->YieldFor(wxEVT_CATEGORY_ALL);
  wxTheApp->ProcessIdle();
}

wxWindow* findIf(const wxWindowList& windows, const std::function<bool(const wxWindow&)>& fits) {
  for (auto node = windows.GetFirst(); node; node = node->GetNext()) {
    wxWindow* window = node->GetData();
    if (!window->IsShownOnScreen())
      continue;
    if (fits(*window))
      return window;
    if (wxWindow* child = findIf(window->GetChildren(), fits))
      return child;
  }
  return nullptr;
}

/// Knows where the last motion was that a window has been told of.
class MotionWatch : public wxEventFilter {
 public:
  MotionWatch() { wxEvtHandler::AddFilter(this); }
  ~MotionWatch() override { wxEvtHandler::RemoveFilter(this); }
  MotionWatch(const MotionWatch&) = delete;
  MotionWatch& operator=(const MotionWatch&) = delete;

  int FilterEvent(wxEvent& event) override {
    if (event.GetEventType() == wxEVT_MOTION)
      if (const auto* window = dynamic_cast<wxWindow*>(event.GetEventObject()))
        told_ = window->ClientToScreen(static_cast<wxMouseEvent&>(event).GetPosition());
    return Event_Skip;
  }
  wxPoint told() const { return told_; }

 private:
  wxPoint told_;
};

void movePointer(wxPoint to) {
  const wxPoint from = wxGetMousePosition();
  wxUIActionSimulator simulator;
  for (int step = 1; step <= kSteps; ++step) {
    const wxPoint next(from.x + (to.x - from.x) * step / kSteps,
                       from.y + (to.y - from.y) * step / kSteps);
    simulator.MouseMove(next);
    waitUntil("the pointer moved", [next] { return wxGetMousePosition() == next; });
  }
}

} // namespace

bool waitUntil(const std::string& what, const std::function<bool()>& condition) {
  for (const wxStopWatch watch; watch.Time() < kPatienceMs;) {
    if (condition())
      return true;
    handleEvents();
  }
  takeScreenshot("gave-up");
  ADD_FAILURE() << "waited in vain until " << what;
  return false;
}

void settle() {
  // Asking for the pointer is a round trip to the display: what was sent before has arrived.
  wxGetMousePosition();
  wxEventLoopBase* loop = wxEventLoopBase::GetActive();
  loop->YieldFor(wxEVT_CATEGORY_ALL);
  while (wxTheApp->ProcessIdle())
    loop->YieldFor(wxEVT_CATEGORY_ALL);
}

Spot::Spot(wxWindow& inWindow)
    : Spot(inWindow, wxPoint(inWindow.GetClientSize().x / 2, inWindow.GetClientSize().y / 2)) {}

wxPoint Spot::onScreen() const {
  return window->ClientToScreen(client);
}

void moveMouse(const Spot& to) {
  const MotionWatch motion;
  const wxPoint target = to.onScreen();
  movePointer(target);
  settle();
  // The display server puts motions together and may keep the last one until there is another. A
  // hand that comes to rest trembles as well.
  constexpr int kTrembles = 3;
  for (int i = 0; i < kTrembles && motion.told() != target; ++i) {
    movePointer(target + wxPoint(1, 0));
    movePointer(target);
    settle();
  }
}

void pressMouse(const Spot& at, int button) {
  moveMouse(at);
  wxUIActionSimulator().MouseDown(button);
  settle();
}

void releaseMouse(int button) {
  wxUIActionSimulator().MouseUp(button);
  settle();
}

void click(const Spot& at) {
  pressMouse(at);
  releaseMouse();
}

void rightClick(const Spot& at) {
  moveMouse(at);
  wxUIActionSimulator().MouseClick(wxMOUSE_BTN_RIGHT);
  settle();
}

void doubleClick(const Spot& at) {
  moveMouse(at);
  wxUIActionSimulator().MouseDblClick();
  settle();
}

void drag(const Spot& from, const std::vector<Spot>& stops, int button) {
  pressMouse(from, button);
  for (const Spot& stop : stops)
    moveMouse(stop);
  releaseMouse(button);
}

void turnWheel(int notches) {
  // The toolkit's simulator has no wheel; on X11 it is buttons 4 (away) and 5.
  const std::string button = notches > 0 ? "4" : "5";
  const std::string command =
      "xdotool click --repeat " + std::to_string(std::abs(notches)) + " --delay 1 " + button;
  EXPECT_EQ(std::system(command.c_str()), 0) << command;
  settle();
}

void pressKey(int keyCode, int modifiers) {
  wxUIActionSimulator().Char(keyCode, modifiers);
  settle();
}

void holdKey(int keyCode) {
  wxUIActionSimulator().KeyDown(keyCode);
  settle();
}

void releaseKey(int keyCode) {
  wxUIActionSimulator().KeyUp(keyCode);
  settle();
}

void typeText(const std::string& text) {
  wxUIActionSimulator().Text(text.c_str());
  settle();
}

wxWindow* findNamed(const std::string& name) {
  return findIf(wxTopLevelWindows,
                [&](const wxWindow& window) { return window.GetName() == name; });
}

wxWindow* findLabelled(const std::string& label) {
  return findIf(wxTopLevelWindows, [&](const wxWindow& window) {
    return wxControl::RemoveMnemonics(window.GetLabel()) == label;
  });
}

} // namespace trassix::test
