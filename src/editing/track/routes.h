// What a train can take through a piece: the one truth for drawing, hit tests, lengths and 3D.
#pragma once

#include "catalog/piece_def.h"
#include "geometry/pose.h"

#include <array>
#include <cstdint>
#include <variant>
#include <vector>

namespace trassix {

/// A straight stretch in the piece's frame.
struct LineSegment {
  Point from;
  Point to;
};

/// A circular stretch in the piece's frame: the point at angle t is centre + radius (cos t, sin t),
/// t in degrees from `start` by `sweep` (positive turns right, clockwise on the screen).
struct ArcSegment {
  Point centre;
  double radius = 0;
  double start = 0;
  double sweep = 0;
};

/// A cubic Bezier stretch, where published ends do not lie on one tangent arc.
struct SmoothSegment {
  std::array<Point, 4> control;
};

using RouteSegment = std::variant<LineSegment, ArcSegment, SmoothSegment>;

/// A way through a piece between two of its ends. Starts exactly on connector `from` and ends
/// exactly on connector `to`, leaving along their headings. A piece with one end (track ends) has a
/// route with `to` = -1 that runs for the piece's length; the turntable has one from each end to
/// the centre.
struct Route {
  std::int32_t from = -1;
  std::int32_t to = -1;
  std::vector<RouteSegment> segments;
};

/// A sampled point of a route in the piece's frame.
struct RoutePoint {
  Point position;
  double heading = 0; ///< direction of travel
  double along = 0;   ///< mm from the route's start
};

/// Routes of a definition in a fixed order, the main route first.
std::vector<Route> deriveRoutes(const PieceDef& definition);

double routeLength(const Route& route);

/// Points along the route, both ends included, such that no chord leaves the curve by more than
/// `tolerance` mm and no two points are more than `maxStep` mm apart.
std::vector<RoutePoint> sampleRoute(const Route& route, double tolerance, double maxStep = 1e9);

/// Interpolated between the points of a sampled route around it; beyond its ends the last ones.
RoutePoint pointAlong(const std::vector<RoutePoint>& line, double along);

/// The routes of a catalogue definition, derived once and kept for the life of the process. The
/// reference must be to a record owned by the catalogue.
const std::vector<Route>& routesOf(const PieceDef& definition);

} // namespace trassix
