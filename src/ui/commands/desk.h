#pragma once

#include "ui/commands/plan_files.h"

#include <wx/cmndata.h>

class wxFrame;

namespace trassix {

class CanvasPanel;
class DockArea;
class PalettePanel;
class Workspace;

/// Paper, margins and printer: kept while the window lives.
struct PrintSettings {
  PrintSettings();

  wxPrintData data;
  wxPageSetupDialogData page;
};

/// What commands have to hand. Windows belong to the toolkit.
struct Desk {
  wxFrame& window; ///< the parent of dialogs
  Workspace& workspace;
  CanvasPanel& canvasPanel;
  PalettePanel& palette;
  DockArea& docks;
  PlanFiles files;
  PrintSettings print = {};
};

} // namespace trassix
