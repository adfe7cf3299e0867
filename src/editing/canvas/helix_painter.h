#pragma once

#include "editing/canvas/article_places.h"
#include "editing/canvas/record_pictures.h"
#include "editing/helix/helix_rings.h"

#include <vector>

namespace trassix {

/// What stands on the ring of a helix: its kit and turns in the middle, an arrow that climbs with
/// it, and the heights of its ends. Left out where there is no room. Returns the places of the
/// texts, px.
std::vector<ArticlePlaces::Place> paintHelixTexts(const PictureSite& site, const HelixRing& ring);

} // namespace trassix
