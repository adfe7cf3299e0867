#include "ui/commands/command_rules.h"

#include "editing/canvas/canvas_tool.h"
#include "editing/selection/selection.h"

#include <wx/intl.h>

namespace trassix {

const char* nothingSelected(const ToolSite& site) {
  return hasSelection(site.layout()) ? nullptr : wxTRANSLATE("Nothing selected");
}

const char* noTrackSelected(const ToolSite& site) {
  return selectedPieces(site.layout()).empty() ? wxTRANSLATE("No track selected") : nullptr;
}

} // namespace trassix
