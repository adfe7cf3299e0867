#pragma once

#include "catalog/track_system.h"
#include "host/workspace.h"
#include "wizards/layout/layout_memory.h"

class wxWindow;

namespace trassix {

class Canvas;

/// The Layout Wizard of a window. It knows from what the open plan was made, if it made it.
class LayoutWizard : public PlanObserver {
 public:
  explicit LayoutWizard(Workspace& workspace) : PlanObserver(workspace), workspace_(workspace) {}

  /// Asks, begins with the track system unless the plan is its own, and places what was chosen.
  void run(wxWindow& parent, Canvas& canvas, TrackSystem system);

  void planReplaced() override { memory_.forget(); }
  void fileChanged() override;

 private:
  Workspace& workspace_;
  LayoutMemory memory_;
};

} // namespace trassix
