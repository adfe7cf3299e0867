#pragma once

#include <wx/app.h>

#include <future>

namespace trassix {

class MainFrame;

/// Starts the process and ends it: log, image formats, catalogue, main window, welcome.
class TrassixApp : public wxApp {
 public:
  TrassixApp();

  bool OnInit() override;
  int OnExit() override;

 protected:
  /// The main window, not yet shown; owned by the toolkit.
  virtual MainFrame* makeFrame();

 private:
  void openWindow();

  bool frameOnScreen_ = false;
  std::future<void> fonts_; ///< on their way while the toolkit starts
};

} // namespace trassix
