// Commands that arrange the selection: what the Edit menu and the context menu do alike.
#pragma once

#include "editing/arranging/aligning.h"
#include "editing/arranging/mirroring.h"
#include "editing/canvas/canvas_tool.h"

#include <vector>

namespace trassix {

/// Asks before graded track is left, and whether pieces without a mirror image stay as they are.
void runMirror(ToolSite& site, MirrorWay way);

/// Asks for side and distance, with the track shown on the plan meanwhile.
void runParallelTrack(ToolSite& site);

/// The rows of the context menu that arrange the selection, with where they can be used.
std::vector<MenuRow> arrangeRows(ToolSite& site);

} // namespace trassix
