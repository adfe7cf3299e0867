#pragma once

#include "document/records_fwd.h"
#include "geometry/polygons.h"

namespace trassix {

class Layout;

/// The foot of the hill over a tunnel, as wide as its portals, in mm; empty for a tunnel whose
/// track is not what a tunnel can cover.
Polygon hillOver(const Layout& layout, const Tunnel& tunnel);

} // namespace trassix
