#pragma once

#include "editing/canvas/record_pictures.h"
#include "editing/helix/helix_rings.h"

namespace trassix {

class Occupancy;

/// What stands on the ring of a helix: its kit and turns in the middle, an arrow that climbs with
/// it, and the heights of its ends. Left out where there is no room; what there is takes its place
/// in `taken`, if given.
void paintHelixTexts(const PictureSite& site, const HelixRing& ring, Occupancy* taken);

} // namespace trassix
