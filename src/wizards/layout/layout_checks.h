// What can be measured of laid track. Lengths in mm.
#pragma once

#include "document/records_fwd.h"
#include "geometry/polygons.h"

#include <vector>

namespace trassix {

/// From the beds to the edges of the table; negative where a bed is not on it.
double leastEdgeDistance(const std::vector<PlacedPiece>& pieces, const Polygon& table);

/// Whether two beds lie on each other of pieces that are not joined, neither to each other nor to
/// the same piece.
bool anyOverlap(const std::vector<PlacedPiece>& pieces);

/// How much of the track lies farther than an arm reaches from every edge.
double lengthBeyondReach(const std::vector<PlacedPiece>& pieces, const Polygon& table);

} // namespace trassix
