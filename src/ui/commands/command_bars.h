#pragma once

#include "host/workspace.h"

#include <map>
#include <string>
#include <vector>

class wxFrame;
class wxMenu;

namespace trassix {

class DockArea;
struct Command;

/// Menu bar and tool bar of the main window, as the table of commands has them. Check marks and
/// labels that change follow the plan, the switches and the docks.
class CommandBars : private PlanObserver {
 public:
  CommandBars(wxFrame& window, Workspace& workspace, DockArea& docks);

  void buildMenuBar();
  void buildToolBar();

  /// Menus and tool bar tell why the command cannot be used; null when it can.
  void tellUnusable(const Command& command, const char* why);

 private:
  void fileChanged() override { listRecent(); }
  void selectionChanged() override { follow(); }
  void planChanged() override { follow(); }
  void unitsChanged() override { follow(); }
  void switchesChanged() override { follow(); }
  void follow();
  void listRecent();
  bool isOn(const Command& command) const;

  wxFrame& window_;
  const Workspace& workspace_;
  const DockArea& docks_;
  std::map<int, const char*> told_; ///< by command, why it cannot be used
  std::vector<std::string> recentLabels_;
  wxMenu* recent_ = nullptr; ///< owned by the menu bar
};

} // namespace trassix
