#include "editing/canvas/occupancy.h"

#include "editing/track/connector_geometry.h"

#include <algorithm>
#include <cmath>

namespace trassix {

Occupancy::Occupancy(SizePx size)
    : columns_(std::max(1, static_cast<int>(size.width / kCellPx) + 1)),
      rows_(std::max(1, static_cast<int>(size.height / kCellPx) + 1)),
      taken_(static_cast<std::size_t>(columns_) * static_cast<std::size_t>(rows_)) {}

void Occupancy::mark(const std::vector<Point>& line, double halfWidth) {
  const double reach = halfWidth / kCellPx;
  const auto stamp = [&](Point p) {
    const double column = p.x / kCellPx - 0.5;
    const double row = p.y / kCellPx - 0.5;
    const int top = std::max(static_cast<int>(std::ceil(row - reach)), 0);
    const int bottom = std::min(static_cast<int>(std::floor(row + reach)), rows_ - 1);
    for (int y = top; y <= bottom; ++y) {
      const double half = std::sqrt(std::max(0.0, reach * reach - (y - row) * (y - row)));
      const int left = std::max(static_cast<int>(std::ceil(column - half)), 0);
      const int right = std::min(static_cast<int>(std::floor(column + half)), columns_ - 1);
      for (int x = left; x <= right; ++x)
        taken_[static_cast<std::size_t>(y * columns_ + x)] = 1;
    }
  };
  for (std::size_t i = 0; i + 1 < line.size(); ++i) {
    const double length = std::hypot(line[i + 1].x - line[i].x, line[i + 1].y - line[i].y);
    const double strideInPx = std::max(kCellPx, halfWidth / 2);
    const int steps = std::clamp(static_cast<int>(length / strideInPx) + 1, 1, 400);
    for (int k = 0; k <= steps; ++k) {
      const double t = static_cast<double>(k) / steps;
      stamp({line[i].x + (line[i + 1].x - line[i].x) * t,
             line[i].y + (line[i + 1].y - line[i].y) * t});
    }
  }
}

template <typename Visit>
bool Occupancy::visitBox(Point centre, SizePx box, double degrees, Visit visit) const {
  const double c = std::cos(toRadians(degrees));
  const double s = std::sin(toRadians(degrees));
  const int across = static_cast<int>(box.width / kCellPx) + 1;
  const int down = static_cast<int>(box.height / kCellPx) + 1;
  for (int j = 0; j <= down; ++j) {
    for (int i = 0; i <= across; ++i) {
      const double u = (static_cast<double>(i) / across - 0.5) * box.width;
      const double v = (static_cast<double>(j) / down - 0.5) * box.height;
      const int x = static_cast<int>(std::floor((centre.x + u * c - v * s) / kCellPx));
      const int y = static_cast<int>(std::floor((centre.y + u * s + v * c) / kCellPx));
      if (x < 0 || y < 0 || x >= columns_ || y >= rows_)
        continue;
      if (!visit(static_cast<std::size_t>(y * columns_ + x)))
        return false;
    }
  }
  return true;
}

bool Occupancy::isFree(Point centre, SizePx box, double degrees) const {
  return visitBox(centre, box, degrees, [this](std::size_t cell) { return taken_[cell] == 0; });
}

void Occupancy::take(Point centre, SizePx box, double degrees) {
  visitBox(centre, box, degrees, [this](std::size_t cell) {
    taken_[cell] = 1;
    return true;
  });
}

bool OpenOccupancy::visitBlocks(Point centre, SizePx box, const std::function<bool(Point)>& visit) {
  const double reach = std::hypot(box.width, box.height) / 2;
  const auto first = [](double px) { return std::floor(px / kBlockPx) * kBlockPx; };
  for (double y = first(centre.y - reach); y <= centre.y + reach; y += kBlockPx)
    for (double x = first(centre.x - reach); x <= centre.x + reach; x += kBlockPx)
      if (!visit({x, y}))
        return false;
  return true;
}

bool OpenOccupancy::isFree(Point centre, SizePx box, double degrees) const {
  return visitBlocks(centre, box, [&](Point corner) {
    const auto block = blocks_.find({corner.x, corner.y});
    return block == blocks_.end() ||
           block->second.isFree({centre.x - corner.x, centre.y - corner.y}, box, degrees);
  });
}

void OpenOccupancy::take(Point centre, SizePx box, double degrees) {
  visitBlocks(centre, box, [&](Point corner) {
    blocks_.try_emplace({corner.x, corner.y}, SizePx{kBlockPx, kBlockPx})
        .first->second.take({centre.x - corner.x, centre.y - corner.y}, box, degrees);
    return true;
  });
}

} // namespace trassix
