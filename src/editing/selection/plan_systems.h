// Which track systems a plan is built of.
#pragma once

#include "catalog/track_system.h"

#include <optional>

namespace trassix {

class Layout;

/// The system that most pieces of a plan belong to; none for a plan without known pieces. Of two
/// with as many pieces the one met first.
std::optional<TrackSystem> chiefSystem(const Layout& layout);

/// Whether there is any track of the system, seen or not.
bool holdsTrackOf(const Layout& layout, TrackSystem system);

} // namespace trassix
