#include "wizards/layout/layout_checks.h"

#include "document/records.h"
#include "editing/track/connector_geometry.h"
#include "editing/track/piece_outline.h"
#include "editing/track/routes.h"
#include "geometry/box_tree.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace trassix {

namespace {

constexpr double kArmsReach = 800; ///< mm from an edge, at most
constexpr double kSample = 10;     ///< mm along a route
constexpr double kTouching = 0.01; ///< mm that rounding may lay beds on each other

std::vector<Polygon> bedsOf(const PlacedPiece& piece) {
  std::vector<Polygon> beds = outlineOf(definitionOf(piece)).areas;
  const PoseFrame frame(poseOf(piece));
  for (Polygon& bed : beds)
    for (Point& corner : bed)
      corner = frame(corner);
  return beds;
}

template <class Visit>
void forEachEdge(const Polygon& polygon, Visit visit) {
  for (std::size_t i = 0, before = polygon.size() - 1; i < polygon.size(); before = i++)
    visit(polygon[before], polygon[i]);
}

double side(Point a, Point b, Point p) {
  return ((b.x - a.x) * (p.y - a.y) - (b.y - a.y) * (p.x - a.x)) / std::hypot(b.x - a.x, b.y - a.y);
}

bool cross(Point a, Point b, Point c, Point d) {
  const auto apart = [](double first, double second) {
    return (first > kTouching && second < -kTouching) || (first < -kTouching && second > kTouching);
  };
  return apart(side(a, b, c), side(a, b, d)) && apart(side(c, d, a), side(c, d, b));
}

bool overlap(const Polygon& first, const Polygon& second) {
  bool crossing = false;
  forEachEdge(first, [&](Point a, Point b) {
    forEachEdge(second, [&](Point c, Point d) { crossing = crossing || cross(a, b, c, d); });
  });
  const auto deepIn = [](const Polygon& area, Point at) {
    return inside(area, at) && !nearOutline(area, at, kTouching);
  };
  return crossing || std::ranges::any_of(first, [&](Point p) { return deepIn(second, p); }) ||
         std::ranges::any_of(second, [&](Point p) { return deepIn(first, p); });
}

/// Joined to each other or to one piece: where track branches, beds have to lie on each other.
bool areNeighbours(const PlacedPiece& a, const PlacedPiece& b) {
  for (std::size_t i = 0; i < a.joints.size(); ++i) {
    const Joint own = a.joint(i);
    if (own.target == b.id)
      return true;
    for (std::size_t k = 0; k < b.joints.size() && !own.open(); ++k)
      if (b.joint(k).target == own.target)
        return true;
  }
  return false;
}

} // namespace

double leastEdgeDistance(const std::vector<PlacedPiece>& pieces, const Polygon& table) {
  double least = std::numeric_limits<double>::max();
  for (const PlacedPiece& piece : pieces)
    for (const Polygon& bed : bedsOf(piece)) {
      for (const Point& p : bed) {
        double distance = std::numeric_limits<double>::max();
        forEachEdge(table, [&](Point a, Point b) {
          distance = std::min(distance, distanceToEdge(p, a, b));
        });
        least = std::min(least, inside(table, p) ? distance : -distance);
      }
      for (const Point& corner : table)
        forEachEdge(
            bed, [&](Point a, Point b) { least = std::min(least, distanceToEdge(corner, a, b)); });
    }
  return least;
}

bool anyOverlap(const std::vector<PlacedPiece>& pieces) {
  std::vector<BoxTree::Entry> boxes;
  std::vector<std::vector<Polygon>> beds;
  for (const PlacedPiece& piece : pieces) {
    boxes.push_back({boundsOf(outlineOf(definitionOf(piece)), poseOf(piece)),
                     static_cast<std::uint32_t>(boxes.size())});
    beds.push_back(bedsOf(piece));
  }
  const BoxTree tree(boxes);
  bool found = false;
  for (const BoxTree::Entry& own : boxes)
    tree.query(own.first, [&](const BoxTree::Entry& other) {
      if (found || other.second <= own.second ||
          areNeighbours(pieces[own.second], pieces[other.second]))
        return;
      for (const Polygon& first : beds[own.second])
        for (const Polygon& second : beds[other.second])
          found = found || overlap(first, second);
    });
  return found;
}

double lengthBeyondReach(const std::vector<PlacedPiece>& pieces, const Polygon& table) {
  double length = 0;
  for (const PlacedPiece& piece : pieces) {
    const PoseFrame frame(poseOf(piece));
    const std::vector<RoutePoint> way =
        sampleRoute(routesOf(*definitionOf(piece)).front(), 1, kSample);
    for (std::size_t i = 0; i + 1 < way.size(); ++i) {
      const Point at = frame(way[i].position);
      double nearest = std::numeric_limits<double>::max();
      forEachEdge(table,
                  [&](Point a, Point b) { nearest = std::min(nearest, distanceToEdge(at, a, b)); });
      if (nearest > kArmsReach)
        length += way[i + 1].along - way[i].along;
    }
  }
  return length;
}

} // namespace trassix
