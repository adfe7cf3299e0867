#include "document/limits.h"

namespace trassix {

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
