// Which tools the canvas has.
#pragma once

#include "editing/canvas/carried.h"
#include "host/editor_switches.h"

#include <memory>

namespace trassix {

class CanvasTool;
class CarryTool;
class ToolSite;

/// The tool of a mode.
std::unique_ptr<CanvasTool> makeTool(ToolMode mode, ToolSite& site);

/// Null for what cannot be carried. `before` is what hangs on the pointer yet, if anything.
std::unique_ptr<CarryTool> makeCarryTool(ToolSite& site, const Carried& what, bool held,
                                         const CarryTool* before);

} // namespace trassix
