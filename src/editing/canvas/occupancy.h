#pragma once

#include "editing/canvas/surface.h"
#include "geometry/point.h"

#include <vector>

namespace trassix {

/// A coarse map of the pixels that are taken, so that labels find a place beside the track and
/// beside one another.
class Occupancy {
 public:
  explicit Occupancy(SizePx size);

  /// Marks a line of the given half width.
  void mark(const std::vector<Point>& line, double halfWidth);

  /// The text box centred on `centre` and turned by `degrees` is free.
  bool isFree(Point centre, SizePx box, double degrees) const;
  void take(Point centre, SizePx box, double degrees);

  /// Frees what another map of the same size has taken.
  void without(const Occupancy& other);

 private:
  static constexpr double kCellPx = 4;

  template <typename Visit>
  bool visitBox(Point centre, SizePx box, double degrees, Visit visit) const;

  int columns_;
  int rows_;
  std::vector<unsigned char> taken_;
};

} // namespace trassix
