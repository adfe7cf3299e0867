// A bridge from its side, as a dialog shows it.
#pragma once

#include "editing/canvas/surface.h"
#include "wizards/bridge/bridge_plan.h"

namespace trassix {

struct PlanTheme;

/// What of it a picture shows.
enum class BridgePart : std::uint8_t {
  Whole,   ///< both ramps too, with heights drawn larger than lengths
  Crossing ///< the bridge itself where it has the least room to spare, true to scale
};

/// Ramps, spans and piers with their heights, and below them, cut through, what is crossed, with
/// the clearance in numbers. A bridge that is not possible leaves the picture without any.
void paintBridgeSide(Surface& surface, SizePx size, const BridgePlan& plan, BridgePart part,
                     const PlanTheme& theme, std::int32_t units);

} // namespace trassix
