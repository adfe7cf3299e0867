#pragma once

#include "editing/canvas/surface.h"
#include "wizards/bridge/bridge_plan.h"

namespace trassix {

class Layout;
struct PlanTheme;

/// A bridge from above, as a dialog shows it: the plan as it would be, about what is selected on
/// it, with the piers and what is crossed.
void paintBridgePlan(Surface& surface, SizePx size, const Layout& layout, const BridgePlan& plan,
                     const PlanTheme& theme);

} // namespace trassix
