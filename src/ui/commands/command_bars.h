#pragma once

#include "host/workspace.h"

class wxFrame;

namespace trassix {

/// Menu bar and tool bar of the main window, as the table of commands has them. Check marks and
/// labels that change follow the plan and the switches.
class CommandBars : private PlanObserver {
 public:
  CommandBars(wxFrame& window, Workspace& workspace);

  void buildMenuBar();
  void buildToolBar();

 private:
  void selectionChanged() override { follow(); }
  void planChanged() override { follow(); }
  void unitsChanged() override { follow(); }
  void switchesChanged() override { follow(); }
  void follow();

  wxFrame& window_;
  const Workspace& workspace_;
};

} // namespace trassix
