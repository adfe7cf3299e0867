// Helices as menus and the mouse change them.
#pragma once

#include "editing/canvas/canvas_tool.h"

#include <cstdint>
#include <vector>

namespace trassix {

/// Asks what the helix is to become; told in words when its kit is unknown.
void runEditHelix(ToolSite& site, std::int32_t helix);

/// The rows of a context menu on its track.
std::vector<MenuRow> helixRows(ToolSite& site, std::int32_t helix);

} // namespace trassix
