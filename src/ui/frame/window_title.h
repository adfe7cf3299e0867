#pragma once

#include "host/workspace.h"

class wxFrame;

namespace trassix {

/// The title of the main window: the program, the plan's name, and a mark while it is unsaved.
class WindowTitle : private PlanObserver {
 public:
  static constexpr const char* kBase = "Trassix v1.7.1 by Quorrail";

  WindowTitle(wxFrame& window, Workspace& workspace);

  void refresh();

 private:
  void planChanged() override { refresh(); }
  void fileChanged() override { refresh(); }
  /// A new plan stands there without the name that the next save offers.
  void planReplaced() override;

  wxFrame& window_;
  Workspace& workspace_;
};

} // namespace trassix
