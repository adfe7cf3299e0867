// Sheets side by side that show a plan, or another rectangle, together.
#pragma once

#include "geometry/box.h"
#include "output/paper.h"

#include <cstddef>
#include <string>
#include <vector>

namespace trassix {

/// One sheet, in mm of the sheets' common frame.
struct Tile {
  std::size_t column = 0; ///< from the left, from 0
  std::size_t row = 0;    ///< from the top, from 0
  Box box;                ///< what it shows, overlaps included

  /// "A1", "B1" and so on along the first row, "A2" below; after Z comes AA.
  std::string name() const;
};

/// Tiles over an area, with the surplus of paper around it on all sides alike.
struct Tiling {
  std::size_t columns = 0;
  std::size_t rows = 0;
  double overlap = 0; ///< mm
  SizeMm sheet;       ///< what a tile shows

  Box area;

  std::size_t count() const { return columns * rows; }
  /// By rows.
  std::vector<Tile> tiles() const;
};

/// The fewest tiles of `sheet` mm that overlap by `overlap` and cover the area: ceil((W - o) /
/// (w - o)) times the same of the heights. An overlap of half a sheet or more is taken for a
/// little less than half.
Tiling tilingOf(const Box& area, SizeMm sheet, double overlap);

} // namespace trassix
