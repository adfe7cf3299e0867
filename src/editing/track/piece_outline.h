// The ground that a placed piece covers: what a pointer or a rubber band has to meet.
#pragma once

#include "catalog/piece_def.h"
#include "geometry/box.h"
#include "geometry/pose.h"

#include <vector>

namespace trassix {

/// In the piece's frame: the bed of each route, and for a turntable its whole pit.
struct PieceOutline {
  std::vector<std::vector<Point>> areas; ///< closed polygons
  Box box;                               ///< around all of them
};

/// Derived once for each definition; null stands for an article that is not in the catalogue, which
/// covers a small square about its position so that it can be picked and removed.
const PieceOutline& outlineOf(const PieceDef* definition);

/// True when the point lies on the piece or at most `tolerance` mm beside it.
bool covers(const PieceOutline& outline, const Pose& pose, Point at, double tolerance);

/// True when the box (layout coordinates) and the piece share a point.
bool touches(const PieceOutline& outline, const Pose& pose, const Box& box);

/// True when all of the piece lies in the box.
bool liesIn(const PieceOutline& outline, const Pose& pose, const Box& box);

/// A box in layout coordinates that holds the piece.
Box boundsOf(const PieceOutline& outline, const Pose& pose);

} // namespace trassix
