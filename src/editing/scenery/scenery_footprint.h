#pragma once

#include "catalog/scenery_catalog.h"
#include "document/layout.h"

#include <vector>

namespace trassix {

/// The system that a plan is built in: that of its first known piece, C-Track for an empty plan.
/// Scenery stands on it in that system's gauge.
TrackSystem planSystem(const Layout& layout);

/// Scaled size of an item in mm; a small square for a key that the scenery catalogue does not know.
Footprint sceneryFootprint(const Layout& layout, const SceneryItem& item);

/// Its outline on the plan in mm, as a polygon.
std::vector<Point> sceneryOutline(const Layout& layout, const SceneryItem& item);

/// The outline of a catalogue item, for one that is not on the plan yet.
std::vector<Point> sceneryOutline(SceneryForm form, const Footprint& size, Point at,
                                  double heading);

} // namespace trassix
