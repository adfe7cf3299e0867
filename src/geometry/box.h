#pragma once

#include "geometry/point.h"

namespace trassix {

/// Upright, in mm; its edges belong to it.
struct Box {
  double minX = 0;
  double minY = 0;
  double maxX = 0;
  double maxY = 0;

  bool operator==(const Box&) const = default;
};

inline bool holds(const Box& box, Point p) {
  return p.x >= box.minX && p.x <= box.maxX && p.y >= box.minY && p.y <= box.maxY;
}

} // namespace trassix
