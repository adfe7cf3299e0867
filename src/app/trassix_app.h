#pragma once

#include <wx/app.h>

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
};

} // namespace trassix
