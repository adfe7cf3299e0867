#pragma once

#include "catalog/track_system.h"

#include <string>
#include <string_view>

namespace trassix {

/// One sentence that names the adapter piece between two systems, in either order, or says that
/// there is none.
std::string_view adapterAdvice(TrackSystem a, TrackSystem b);

/// What to tell the user when an end of `dropped` was put on an end of `placed`.
std::string incompatibilityText(TrackSystem dropped, TrackSystem placed);

} // namespace trassix
