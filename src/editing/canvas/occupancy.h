#pragma once

#include "editing/canvas/surface.h"
#include "geometry/point.h"

#include <functional>
#include <map>
#include <utility>
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

 private:
  static constexpr double kCellPx = 4;

  template <typename Visit>
  bool visitBox(Point centre, SizePx box, double degrees, Visit visit) const;

  int columns_;
  int rows_;
  std::vector<unsigned char> taken_;
};

/// The same without an edge, in blocks that are made when something in them is taken.
class OpenOccupancy {
 public:
  static constexpr double kBlockPx = 256;

  /// Whether anything of a box lies in a block, told by the block's corner: `visit` gets it, and
  /// returns false to end.
  static bool visitBlocks(Point centre, SizePx box, const std::function<bool(Point)>& visit);

  bool isFree(Point centre, SizePx box, double degrees) const;
  void take(Point centre, SizePx box, double degrees);

 private:
  std::map<std::pair<double, double>, Occupancy> blocks_; ///< by their corners
};

} // namespace trassix
