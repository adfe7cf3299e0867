#pragma once

#include "document/layout.h"
#include "editing/selection.h"

#include <optional>

namespace trassix {

/// The box of everything that is drawn of a plan, in mm: track beds, helices, scenery, shapes,
/// labels, measurements and the baseboard. Empty for an empty plan.
std::optional<Box> contentBox(const Layout& layout);

} // namespace trassix
