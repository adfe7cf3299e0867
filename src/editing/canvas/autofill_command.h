#pragma once

#include "editing/canvas/canvas_tool.h"

namespace trassix {

/// Offers the fills of the gap between the two selected pieces, shows the highlighted one on the
/// plan and places the one that is taken; says why when there is none.
void runAutofill(ToolSite& site);

} // namespace trassix
