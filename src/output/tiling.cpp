#include "output/tiling.h"

#include <algorithm>
#include <cmath>

namespace trassix {

namespace {

constexpr double kLargestOverlap = 0.49; ///< of a sheet's shorter side
constexpr double kExact = 1e-9;          ///< of a sheet, by which rounding may exceed it

std::size_t countAlong(double length, double sheet, double overlap) {
  const double needed = (length - overlap) / (sheet - overlap);
  return static_cast<std::size_t>(std::max(1.0, std::ceil(needed - kExact)));
}

double first(double low, double high, std::size_t count, double sheet, double overlap) {
  const double whole = static_cast<double>(count) * (sheet - overlap) + overlap;
  return (low + high - whole) / 2;
}

} // namespace

std::string Tile::name() const {
  std::string letters;
  for (std::size_t left = column + 1; left > 0; left = (left - 1) / 26)
    letters.insert(letters.begin(), static_cast<char>('A' + (left - 1) % 26));
  return letters.append(std::to_string(row + 1));
}

std::vector<Tile> Tiling::tiles() const {
  std::vector<Tile> all;
  const double left = first(area.minX, area.maxX, columns, sheet.width, overlap);
  const double top = first(area.minY, area.maxY, rows, sheet.height, overlap);
  for (std::size_t row = 0; row < rows; ++row)
    for (std::size_t column = 0; column < columns; ++column) {
      const double x = left + static_cast<double>(column) * (sheet.width - overlap);
      const double y = top + static_cast<double>(row) * (sheet.height - overlap);
      all.push_back({column, row, {x, y, x + sheet.width, y + sheet.height}});
    }
  return all;
}

Tiling tilingOf(const Box& area, SizeMm sheet, double overlap) {
  Tiling tiling;
  tiling.area = area;
  tiling.sheet = sheet;
  tiling.overlap = std::clamp(overlap, 0.0, kLargestOverlap * std::min(sheet.width, sheet.height));
  tiling.columns = countAlong(area.maxX - area.minX, sheet.width, tiling.overlap);
  tiling.rows = countAlong(area.maxY - area.minY, sheet.height, tiling.overlap);
  return tiling;
}

} // namespace trassix
