#pragma once

#include <wx/app.h>

#include <filesystem>
#include <future>
#include <memory>

namespace trassix {

class FaultGuard;
class MainFrame;

/// Starts the process and ends it: log, image formats, catalogue, main window, welcome.
class TrassixApp : public wxApp {
 public:
  TrassixApp();
  ~TrassixApp() override;

  bool OnInit() override;
  int OnExit() override;
  void OnInitCmdLine(wxCmdLineParser& parser) override;
  bool OnCmdLineParsed(wxCmdLineParser& parser) override;

  // Exceptions of handlers and posted calls, and what the toolkit caught of them itself.
  void CallEventHandler(wxEvtHandler* handler, wxEventFunctor& functor,
                        wxEvent& event) const override;
  void ProcessPendingEvents() override;
  bool OnExceptionInMainLoop() override;

 protected:
  /// The main window, not yet shown; owned by the toolkit.
  virtual MainFrame* makeFrame();

 private:
  void openWindow();
  void followEnd();
  void exceptionCaught() const;

  std::filesystem::path named_; ///< the plan file of the command line; empty for none
  bool started_ = false;        ///< the main window is there: the program goes on whatever happens
  const std::unique_ptr<FaultGuard> faults_;
  std::future<void> fonts_; ///< on their way while the toolkit starts
};

} // namespace trassix
