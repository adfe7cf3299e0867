#pragma once

#include "editing/canvas/canvas_tool.h"
#include "editing/selection/picking.h"

#include <vector>

namespace trassix {

/// The context menu of the plan: what fits the spot and the selection. The rows act on the site.
std::vector<MenuRow> selectionMenu(ToolSite& site, const std::vector<Pick>& under, Point at);

} // namespace trassix
