#pragma once

#include "ui/commands/plan_files.h"
#include "ui/print/printing.h"
#include "ui/wizards/layout_wizard.h"
#include "view3d/view3d_frame.h"

class wxFrame;

namespace trassix {

class CanvasPanel;
class DockArea;
class PalettePanel;
class Workspace;

/// What commands have to hand. Windows belong to the toolkit.
struct Desk {
  wxFrame& window; ///< the parent of dialogs
  Workspace& workspace;
  CanvasPanel& canvasPanel;
  PalettePanel& palette;
  DockArea& docks;
  PlanFiles files;
  PrintSettings print = {};
  View3DWindow view3D = {};
  LayoutWizard layoutWizard{workspace};
};

} // namespace trassix
