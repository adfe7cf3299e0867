#include "document/limits.h"

#include <algorithm>

namespace trassix {

bool inLimits(Point p) {
  return isLength(p.x) && isLength(p.y);
}

bool inLimits(const std::vector<Point>& points) {
  return std::ranges::all_of(points, [](Point p) { return inLimits(p); });
}

bool inLimits(const PlacedPiece& piece) {
  return isLength(piece.x) && isLength(piece.y) && isLength(piece.z) &&
         std::isfinite(piece.heading) && std::isfinite(piece.grade);
}

bool inLimits(const SceneryItem& item) {
  return isLength(item.x) && isLength(item.y) && std::isfinite(item.heading) &&
         isScale(item.scalex) && isScale(item.scaley);
}

bool inLimits(const Label& label) {
  return isLength(label.x) && isLength(label.y);
}

bool inLimits(const Shape& shape) {
  return inLimits(shape.points) && isLength(shape.height);
}

bool inLimits(const Level& level) {
  return inLimits(level.outline) && isLength(level.height);
}

} // namespace trassix
