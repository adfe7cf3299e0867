// Helices as menus and the mouse make and change them.
#pragma once

#include "editing/canvas/canvas_tool.h"
#include "editing/helix/helix_plan.h"

#include <cstdint>
#include <vector>

namespace trassix {

/// Asks for a helix, beginning with this one, and hangs it on the pointer.
void runNewHelix(ToolSite& site, const HelixWish& from);

/// Asks what the helix is to become; told in words when its kit is unknown.
void runEditHelix(ToolSite& site, std::int32_t helix);

/// The rows of a context menu on its track.
std::vector<MenuRow> helixRows(ToolSite& site, std::int32_t helix);

} // namespace trassix
