// Ends of a carried group that will be joined where it is, marked and counted. Those of its
// meetings that are off in height stay open.
#pragma once

#include "editing/canvas/surface.h"
#include "editing/canvas/view_transform.h"
#include "editing/joining/snapping.h"

#include <span>
#include <string>

namespace trassix {

struct PlanTheme;

void paintMeetings(Surface& surface, const ViewTransform& view, const PlanTheme& theme,
                   std::span<const EndContact> meetings);

std::size_t joiningEnds(std::span<const EndContact> meetings);

/// "2 ends join"; empty when none does.
std::string meetingsHint(std::span<const EndContact> meetings);

} // namespace trassix
