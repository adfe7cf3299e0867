// What the pointer is over, in words and on the plan.
#pragma once

#include "editing/canvas/canvas_tool.h"
#include "editing/selection/picking.h"

#include <string>

namespace trassix {

/// Article and name of a piece, the name of other things; empty for one that is gone.
std::string nameOf(const Layout& layout, const Pick& pick);

/// Marks what a click would select.
void paintHover(Surface& surface, const ToolSite& site, const Pick& pick);

/// Marks a piece that the pointer is over in another picture; it has to be found first.
void paintPointed(Surface& surface, const ToolSite& site, std::int32_t piece);

} // namespace trassix
