#include "geometry/polygons.h"

#include "geometry/lengths.h"
#include "texts/texts.h"

#include <boost/geometry/algorithms/correct.hpp>
#include <boost/geometry/algorithms/is_simple.hpp>
#include <boost/geometry/algorithms/is_valid.hpp>
#include <boost/geometry/geometries/linestring.hpp>
#include <boost/geometry/geometries/point_xy.hpp>
#include <boost/geometry/geometries/ring.hpp>

#include <algorithm>
#include <cmath>

namespace trassix {

namespace {

namespace bg = boost::geometry;

using RingPoint = bg::model::d2::point_xy<double>;

template <class Line>
Line lineOf(const std::vector<Point>& points) {
  Line line;
  for (const Point& p : points)
    line.push_back({p.x, p.y});
  return line;
}

template <class Test>
bool anyEdge(const Polygon& polygon, Test test) {
  for (std::size_t i = 0, before = polygon.size() - 1; i < polygon.size(); before = i++)
    if (test(polygon[before], polygon[i]))
      return true;
  return false;
}

Box boxOf(const Polygon& polygon) {
  if (polygon.empty())
    return {};
  Box box{polygon[0].x, polygon[0].y, polygon[0].x, polygon[0].y};
  for (const Point& p : polygon)
    box = {std::min(box.minX, p.x), std::min(box.minY, p.y), std::max(box.maxX, p.x),
           std::max(box.maxY, p.y)};
  return box;
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

double signedArea(const Polygon& polygon) {
  double twice = 0;
  for (std::size_t i = 0; i < polygon.size(); ++i) {
    const Point a = polygon[i];
    const Point b = polygon[(i + 1) % polygon.size()];
    twice += a.x * b.y - a.y * b.x;
  }
  return twice / 2;
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

Point nearestOnEdge(Point at, Point a, Point b) {
  const double dx = b.x - a.x;
  const double dy = b.y - a.y;
  const double squared = dx * dx + dy * dy;
  const double t =
      squared > 0 ? std::clamp(((at.x - a.x) * dx + (at.y - a.y) * dy) / squared, 0.0, 1.0) : 0.0;
  return {a.x + t * dx, a.y + t * dy};
}

double distanceToEdge(Point at, Point a, Point b) {
  const Point nearest = nearestOnEdge(at, a, b);
  return std::hypot(at.x - nearest.x, at.y - nearest.y);
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

Point topLeft(const Polygon& polygon) {
  const Box box = boxOf(polygon);
  return {box.minX, box.minY};
}

Polygon turnedOver(Polygon polygon) {
  const Box box = boxOf(polygon);
  for (Point& p : polygon)
    p.x = box.minX + box.maxX - p.x;
  return polygon;
}

Polygon turnedRight(Polygon polygon) {
  const Box box = boxOf(polygon);
  for (Point& p : polygon)
    p = {box.minX + box.maxY - p.y, box.minY + p.x - box.minX};
  return polygon;
}

std::string outlineProblem(const Polygon& corners) {
  if (corners.size() < 3)
    return tr("An outline needs at least three corners.");
  if (!inLimits(corners))
    return tr("The outline reaches beyond the plan, which ends 1,000,000 mm from its origin.");
  auto ring = lineOf<bg::model::ring<RingPoint, true, false>>(corners);
  bg::correct(ring); // either way round is as good
  bg::validity_failure_type failure = bg::no_failure;
  if (bg::is_valid(ring, failure)) // which minds no repeated corner
    return {};
  return failure == bg::failure_self_intersections ? tr("The outline crosses or touches itself.")
                                                   : tr("The outline turns back on itself.");
}

bool crossesItself(const std::vector<Point>& line) {
  return line.size() > 2 && inLimits(line) &&
         !bg::is_simple(lineOf<bg::model::linestring<RingPoint>>(line));
}

} // namespace trassix
