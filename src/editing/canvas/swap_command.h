#pragma once

#include "editing/canvas/canvas_tool.h"

#include <cstdint>

namespace trassix {

/// Whether something fits in the piece's place.
bool canSwap(const Layout& layout, std::int32_t piece);

/// Lets the user choose what takes the piece's place, each way shown on the plan while it is
/// highlighted.
void runSwap(ToolSite& site, std::int32_t piece);

} // namespace trassix
