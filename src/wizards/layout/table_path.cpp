#include "wizards/layout/table_path.h"

#include "editing/track/track_geometry.h"

#include <algorithm>
#include <cmath>

namespace trassix {

namespace {

constexpr double kChordPlay = 0.2; ///< mm by which a drawn bed may bulge out at an inside corner

int directionOf(Point from, Point to) {
  if (std::abs(to.x - from.x) > std::abs(to.y - from.y))
    return to.x > from.x ? 0 : 2;
  return to.y > from.y ? 1 : 3;
}

} // namespace

TablePath pathOf(const LayoutTask& task) {
  Polygon outline = task.outline;
  const bool reversed = signedArea(outline) < 0;
  if (reversed)
    std::ranges::reverse(outline);
  const std::size_t n = outline.size();
  TablePath path;
  for (std::size_t i = 0; i < n; ++i) {
    const Point from = outline[i];
    const Point to = outline[(i + 1) % n];
    PathSide side;
    side.direction = directionOf(from, to);
    const int before = directionOf(outline[(i + n - 1) % n], from);
    side.turnsLeft = (side.direction + 1) % 4 == before;
    side.edge = toMicrometres(side.level() ? from.y : from.x);
    side.asked = reversed ? (2 * n - 2 - i) % n : i;
    path.sides.push_back(side);
    path.corners.push_back(toMicrometres(from.x));
    path.corners.push_back(toMicrometres(from.y));
  }
  const bool two = task.tracks() == 2;
  path.leftRadius = toMicrometres(task.radius);
  path.rightRadius = toMicrometres(two ? task.secondRadius : task.radius);
  path.spacing = path.rightRadius - path.leftRadius;
  path.halfBed = toMicrometres(trackHalfWidth(task.system));
  path.margin = toMicrometres(std::max(task.distance, 0.0)) + path.halfBed;
  return path;
}

Micrometres TablePath::clearing(Micrometres other) const {
  const double radius = toMillimetres(leftRadius);
  const double room = radius - toMillimetres(margin) - kChordPlay;
  const double across = std::max(radius - toMillimetres(other), 0.0);
  if (room <= 0)
    return std::max(margin, leftRadius);
  if (across >= room)
    return leftRadius;
  const double off = radius - std::sqrt(room * room - across * across);
  return std::max(margin, static_cast<Micrometres>(std::ceil(off * 1000)));
}

std::vector<FacingSides> TablePath::facing() const {
  const std::size_t n = count();
  const auto range = [&](std::size_t side) {
    const std::size_t along = sides[side].level() ? 0 : 1;
    const Micrometres a = corners[2 * side + along];
    const Micrometres b = corners[2 * after(side) + along];
    return std::pair(std::min(a, b), std::max(a, b));
  };
  std::vector<FacingSides> pairs;
  for (std::size_t low = 0; low < n; ++low)
    for (std::size_t high = 0; high < n; ++high) {
      if (sides[low].level() != sides[high].level() || !sides[low].tableBeyond() ||
          sides[high].tableBeyond() || sides[low].edge >= sides[high].edge)
        continue;
      const auto a = range(low);
      const auto b = range(high);
      if (std::max(a.first, b.first) < std::min(a.second, b.second))
        pairs.push_back({low, high});
    }
  return pairs;
}

} // namespace trassix
