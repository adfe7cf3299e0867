#pragma once

#include "document/layout.h"
#include "geometry/box.h"

#include <optional>

namespace trassix {

/// The box of everything that is drawn of a plan, in mm: track beds, helices, scenery, shapes,
/// labels, measurements and the baseboard. Empty for an empty plan.
std::optional<Box> contentBox(const Layout& layout);

/// The box of what is selected; empty when nothing is.
std::optional<Box> selectedContentBox(const Layout& layout);

/// Where to look when `window` (mm) shows nothing of a plan: the box of what comes into the part of
/// it that `room` is with the shortest move. That is a whole outline where one has room, else a
/// point of one. Empty when something is in the window, and for a plan without visible content.
std::optional<Box> nearestContent(const Layout& layout, const Box& window, const Box& room);

} // namespace trassix
