#include "app/trassix_app.h"

#include "app/desktop/path_text.h"
#include "app/desktop/standard_folders.h"
#include "app/desktop/user_paths.h"
#include "app/fault_guard.h"
#include "app/services/app_prefs.h"
#include "app/services/diagnostic_log.h"
#include "app/services/text_file.h"
#include "catalog/track_catalog.h"
#include "document/rescue/version_store.h"
#include "texts/texts.h"
#include "ui/commands/plan_files.h"
#include "ui/dialogs/splash_dialog.h"
#include "ui/frame/main_frame.h"
#include "ui/widgets/once_running.h"
#include "ui/widgets/utf8.h"

#include <wx/cmdline.h>
#include <wx/evtloop.h>
#include <wx/image.h>
#include <wx/stopwatch.h>
#ifdef __WXGTK__
#include <fontconfig/fontconfig.h>
#endif

#include <csignal>
#include <cstdlib>
#include <ctime>
#include <exception>
#include <filesystem>
#include <string>
#include <system_error>

namespace trassix {

namespace {

/// Handles events until `done`, for a limited time.
template <typename Condition>
void dispatchUntil(Condition done, long atMostMs) {
  wxGUIEventLoop loop;
  const wxEventLoopActivator activate(&loop);
  for (const wxStopWatch watch; !done() && watch.Time() < atMostMs;) {
    loop.DispatchTimeout(50);
  }
}

/// Takes away what a crash during a save left among the user's files.
void tidyUserFolders() {
  removeLeftovers(UserPaths::layoutsFolder());
  const std::filesystem::path library = UserPaths::libraryRoot();
  removeLeftovers(library);
  std::error_code error;
  for (std::filesystem::directory_iterator folder(library, error), end; !error && folder != end;
       folder.increment(error))
    removeLeftovers(folder->path());
  VersionStore(StandardFolders::olderVersions()).tidy(std::time(nullptr));
}

void keepUnsaved() noexcept {
  try {
    if (auto* frame = dynamic_cast<MainFrame*>(wxTheApp->GetTopWindow()))
      frame->keepUnsaved();
  } catch (...) {
    DiagnosticLog::write("EXCEPTION at the end");
  }
}

#ifdef __UNIX__
void endBySignal(int signal) {
  keepUnsaved();
  DiagnosticLog::write("Ended by signal " + std::to_string(signal));
  std::signal(signal, SIG_DFL);
  std::raise(signal);
}
#endif

} // namespace

TrassixApp::TrassixApp() : faults_(std::make_unique<FaultGuard>()) {
  // The per-user folders are named after the program, whatever the executable is called.
  SetAppName("trassix");
  SetAppDisplayName("Trassix");
#ifdef __WXGTK__
  // Reading the font set-up takes a good part of the start; nothing needs it until the first text.
  fonts_ = std::async(std::launch::async, [] { FcInit(); });
  // Scroll bars that fade in and out have all that they lie on painted anew for each step.
  setenv("GTK_OVERLAY_SCROLLING", "0", 0);
#endif
}

TrassixApp::~TrassixApp() = default;

bool TrassixApp::OnInit() {
  if (!wxApp::OnInit()) {
    return false;
  }
  setTranslator({[](const char* english) { return toUtf8(wxGetTranslation(fromUtf8(english))); },
                 [](const char* one, const char* many, std::uint64_t count) {
                   return toUtf8(wxGetTranslation(fromUtf8(one), fromUtf8(many),
                                                  static_cast<unsigned>(count)));
                 }});
  DiagnosticLog::open(StandardFolders::logs());
  DiagnosticLog::write("=== Trassix starting ===");
  wxInitAllImageHandlers();
  DiagnosticLog::write("Image handlers registered");
  DiagnosticLog::write("Built-in catalog loaded - " +
                       std::to_string(TrackCatalog::instance().count()) + " pieces");
  try {
    openWindow();
  } catch (const std::exception& error) {
    DiagnosticLog::write(std::string("EXCEPTION: ") + error.what());
    return false;
  } catch (...) {
    DiagnosticLog::write("UNKNOWN EXCEPTION in MainFrame");
    return false;
  }
  return true;
}

void TrassixApp::OnInitCmdLine(wxCmdLineParser& parser) {
  wxApp::OnInitCmdLine(parser);
  parser.AddParam(_("plan file"), wxCMD_LINE_VAL_STRING, wxCMD_LINE_PARAM_OPTIONAL);
}

bool TrassixApp::OnCmdLineParsed(wxCmdLineParser& parser) {
  if (parser.GetParamCount() > 0)
    named_ = std::filesystem::absolute(toPath(parser.GetParam(0)));
  return wxApp::OnCmdLineParsed(parser);
}

/// What ends the program without asking it. A crash and a lost display are not among that: then
/// the last rescue copy counts.
void TrassixApp::followEnd() {
#ifdef __UNIX__
  for (const int signal : {SIGTERM, SIGHUP, SIGINT})
    SetSignalHandler(signal, endBySignal); // called by the event loop
#endif
  Bind(wxEVT_QUERY_END_SESSION, [](wxCloseEvent&) { keepUnsaved(); });
  Bind(wxEVT_END_SESSION, [](wxCloseEvent&) { keepUnsaved(); });
}

void TrassixApp::openWindow() {
  DiagnosticLog::write("Creating MainFrame...");
  MainFrame* frame = makeFrame();
  RethrowStoredException(); // of a handler that ran meanwhile
  started_ = true;
  followEnd();
  DiagnosticLog::write("MainFrame created OK");
  frame->Show();
  DiagnosticLog::write("Show OK");
  frame->layout().ensureLevel();
  readPrefsOrMigrate(appPrefs(), StandardFolders::prefsFile(), StandardFolders::legacyPrefsFile());
  if (appPrefs().playful) {
    // Some window managers put a dialog below a parent that came later.
    dispatchUntil([frame] { return frame->IsActive(); }, 300);
    SplashDialog(frame).ShowModal();
  }
  frame->refreshProperties();
  tidyUserFolders();
  onceRunning([frame, named = named_] { frame->files().startWith(named); });
}

MainFrame* TrassixApp::makeFrame() {
  return new MainFrame;
}

void TrassixApp::CallEventHandler(wxEvtHandler* handler, wxEventFunctor& functor,
                                  wxEvent& event) const {
  try {
    wxApp::CallEventHandler(handler, functor, event);
  } catch (...) {
    exceptionCaught();
  }
}

void TrassixApp::ProcessPendingEvents() {
  try {
    wxApp::ProcessPendingEvents();
  } catch (...) {
    exceptionCaught();
    WakeUpIdle(); // for the events behind that one
  }
}

bool TrassixApp::OnExceptionInMainLoop() {
  exceptionCaught();
  return true;
}

void TrassixApp::exceptionCaught() const {
  if (!started_)
    throw; // which ends the start
  faults_->caught(dynamic_cast<MainFrame*>(GetTopWindow()));
}

int TrassixApp::OnExit() {
  DiagnosticLog::write("OnExit");
  DiagnosticLog::close();
  return wxApp::OnExit();
}

} // namespace trassix
