// Records with what a test cares for and everything else as it is in a new one.
#pragma once

#include "document/records.h"

#include <string>
#include <utility>
#include <vector>

namespace trassix::test {

inline PlacedPiece loosePiece(std::int32_t id, std::string article, Point at = {},
                              JointTable joints = {}) {
  PlacedPiece piece;
  piece.id = id;
  piece.cat = std::move(article);
  piece.x = at.x;
  piece.y = at.y;
  piece.joints = std::move(joints);
  return piece;
}

inline Shape shapeOf(std::int32_t id, std::vector<Point> points, std::int32_t level = 1,
                     double height = 0) {
  return {id, std::move(points), {}, 255, false, level, height, "", false};
}

} // namespace trassix::test
