#include "ui_test.h"

#include "app/trassix_app.h"
#include "driver.h"
#include "ui/canvas/canvas_panel.h"
#include "ui/frame/main_frame.h"

#include <gmock/gmock.h>
#include <wx/evtloop.h>
#include <wx/init.h>

#include <cstdlib>
#include <utility>

namespace trassix::test {

namespace {

/// The program's application, whose main loop a test turns by hand.
class TestedApp : public TrassixApp {
 public:
  std::function<void()> beforeFrame;

  void enterMainLoop() {
    m_mainLoop = CreateMainLoop();
    wxEventLoopBase::SetActive(m_mainLoop);
    OnEventLoopEnter(m_mainLoop);
  }
  void leaveMainLoop() {
    wxEventLoopBase::SetActive(nullptr);
    wxDELETE(m_mainLoop);
  }

 protected:
  MainFrame* makeFrame() override {
    if (beforeFrame)
      beforeFrame();
    return TrassixApp::makeFrame();
  }
};

void failOnAssert(const wxString& file, int line, const wxString& function,
                  const wxString& condition, const wxString& message) {
  ADD_FAILURE() << file << ":" << line << " " << function << ": assertion \"" << condition
                << "\" failed. " << message;
}

TestedApp& app() {
  return static_cast<TestedApp&>(*wxTheApp);
}

} // namespace

UiTest::UiTest() {
  setenv("HOME", home().c_str(), 1);
  for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
    unsetenv(name);
  wxSetAssertHandler(failOnAssert);
  wxApp::SetInstance(new TestedApp);
  int count = 0;
  wxEntryStart(count, static_cast<wxChar**>(nullptr));
}

UiTest::~UiTest() {
  finish();
  wxEntryCleanup();
}

void UiTest::beforeFrame(std::function<void()> action) {
  app().beforeFrame = std::move(action);
}

void UiTest::startWith(const AppPrefs& prefs) {
  writePrefs(prefs, prefsFile());
  ASSERT_TRUE(startAsIs());
}

void UiTest::startLaidOut() {
  start();
  waitUntil("the side panels are there", [] { return findNamed("pieces") && findNamed("tally"); });
  wxRect last;
  int same = 0;
  waitUntil("the plan has its size and place", [&] {
    const wxRect now = frame().canvasPanel().GetScreenRect();
    same = now == last && now.width > 500 ? same + 1 : 0;
    last = now;
    return same > 3;
  });
}

bool UiTest::startAsIs() {
  testing::internal::CaptureStderr();
  const bool started = app().CallOnInit();
  if (started) {
    frame_ = dynamic_cast<MainFrame*>(app().GetTopWindow());
    app().enterMainLoop();
    waitUntil("the main window is active",
              [this] { return frame_->IsActive() || !dialogs.finished(); });
  }
  // The toolkit's own warnings, about windows that are too small for what is in them.
  EXPECT_THAT(testing::internal::GetCapturedStderr(),
              testing::Not(testing::ContainsRegex("Gtk-|Gdk-|pixman")));
  return started;
}

void UiTest::finish() {
  if (frame_ == nullptr)
    return;
  frame_->Close(true);
  frame_ = nullptr;
  waitUntil("all windows are closed", [] { return wxTopLevelWindows.IsEmpty(); });
  app().OnExit();
  app().leaveMainLoop();
}

} // namespace trassix::test
