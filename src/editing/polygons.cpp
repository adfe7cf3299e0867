#include "editing/polygons.h"

#include <algorithm>
#include <cmath>

namespace trassix {

namespace {

template <class Test>
bool anyEdge(const Polygon& polygon, Test test) {
  for (std::size_t i = 0, before = polygon.size() - 1; i < polygon.size(); before = i++)
    if (test(polygon[before], polygon[i]))
      return true;
  return false;
}

/// Clips the edge by the four sides of the box and sees whether anything is left.
bool edgeTouches(Point a, Point b, const Box& box) {
  double from = 0;
  double to = 1;
  const auto clip = [&](double start, double way, double low, double high) {
    if (way == 0)
      return start >= low && start <= high;
    const double first = (low - start) / way;
    const double second = (high - start) / way;
    from = std::max(from, std::min(first, second));
    to = std::min(to, std::max(first, second));
    return from <= to;
  };
  return clip(a.x, b.x - a.x, box.minX, box.maxX) && clip(a.y, b.y - a.y, box.minY, box.maxY);
}

} // namespace

bool holds(const Box& box, Point p) {
  return p.x >= box.minX && p.x <= box.maxX && p.y >= box.minY && p.y <= box.maxY;
}

bool inside(const Polygon& polygon, Point at) {
  bool in = false;
  anyEdge(polygon, [&](Point a, Point b) {
    if ((a.y > at.y) != (b.y > at.y) && at.x < (b.x - a.x) * (at.y - a.y) / (b.y - a.y) + a.x)
      in = !in;
    return false;
  });
  return in;
}

double distanceToEdge(Point at, Point a, Point b) {
  const double dx = b.x - a.x;
  const double dy = b.y - a.y;
  const double squared = dx * dx + dy * dy;
  const double t =
      squared > 0 ? std::clamp(((at.x - a.x) * dx + (at.y - a.y) * dy) / squared, 0.0, 1.0) : 0.0;
  return std::hypot(at.x - a.x - t * dx, at.y - a.y - t * dy);
}

bool nearOutline(const Polygon& polygon, Point at, double tolerance) {
  return anyEdge(polygon, [&](Point a, Point b) { return distanceToEdge(at, a, b) <= tolerance; });
}

bool touches(const Polygon& polygon, const Box& box) {
  return inside(polygon, {box.minX, box.minY}) || // the box lies within the area
         anyEdge(polygon, [&](Point a, Point b) { return edgeTouches(a, b, box); });
}

bool liesIn(const Polygon& polygon, const Box& box) {
  return std::all_of(polygon.begin(), polygon.end(), [&](Point p) { return holds(box, p); });
}

} // namespace trassix
