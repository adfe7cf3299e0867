// A helix that need not be on the plan, drawn from above.
#pragma once

#include "editing/canvas/piece_painter.h"
#include "editing/helix/helix_plan.h"

#include <cstddef>
#include <cstdint>
#include <optional>

namespace trassix {

/// One turn of its track, which covers all others.
void paintHelixTrack(Surface& surface, const ViewTransform& view, const PlanTheme& theme,
                     const HelixPlan& plan, const PieceLook& look);

/// The way uphill and the ends.
void paintHelixMarks(Surface& surface, const ViewTransform& view, const PlanTheme& theme,
                     const HelixPlan& plan);

/// The same with the heights of the ends, of which one, by its place in the list of ends, may
/// stand out.
void paintHelixMarks(Surface& surface, const ViewTransform& view, const PlanTheme& theme,
                     const HelixPlan& plan, std::optional<std::size_t> joining, std::int32_t units);

} // namespace trassix
