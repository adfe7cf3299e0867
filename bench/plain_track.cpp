#include "plain_track.h"

#include "editing/track/routes.h"
#include "geometry/polygons.h"

#include <algorithm>
#include <cmath>

namespace trassix::bench {

namespace {

constexpr double kChordTolerance = 0.05;
constexpr double kSleeperSpacing = 8.58;
constexpr double kSleeperLength = 28.875;

Point beside(const RoutePoint& at, double offset) {
  const double radians = toRadians(at.heading);
  return {at.position.x - std::sin(radians) * offset, at.position.y + std::cos(radians) * offset};
}

Line parallel(const std::vector<RoutePoint>& route, double offset) {
  Line line;
  for (const RoutePoint& at : route)
    line.push_back(beside(at, offset));
  return line;
}

void addSleepers(Line& ends, const std::vector<RoutePoint>& route) {
  const double length = route.back().along;
  const double count = std::max(1.0, std::round(length / kSleeperSpacing));
  auto next = route.begin() + 1;
  for (double i = 0.5; i < count; ++i) {
    const double along = i * length / count;
    next = std::find_if(next, route.end() - 1,
                        [along](const RoutePoint& p) { return p.along >= along; });
    const RoutePoint& before = *(next - 1);
    const double t = (along - before.along) / (next->along - before.along);
    const auto between = [t](double a, double b) { return a + (b - a) * t; };
    RoutePoint at = before;
    at.position = {between(before.position.x, next->position.x),
                   between(before.position.y, next->position.y)};
    at.heading += std::remainder(next->heading - before.heading, 360.0) * t;
    ends.push_back(beside(at, kSleeperLength / 2));
    ends.push_back(beside(at, -kSleeperLength / 2));
  }
}

/// Where the corners of the bed lie: of curves every one and a half degrees or closer.
std::vector<RoutePoint> bandOf(const PieceDef& definition, const Route& route) {
  if (definition.kind != PieceKind::Curve)
    return sampleRoute(route, kChordTolerance);
  const double chords = std::max(std::trunc(std::abs(definition.angle) / 1.5), 16.0);
  return sampleRoute(route, routeLength(route), routeLength(route) / chords + 1e-6);
}

/// Piece by piece of a millimetre on pieces with several routes, whose beds overlap.
void addEdges(PlainTrack& track, const std::vector<Route>& routes) {
  for (std::size_t i = 0; i < routes.size(); ++i) {
    const std::vector<RoutePoint> line = routes.size() == 1
                                             ? sampleRoute(routes[i], kChordTolerance)
                                             : sampleRoute(routes[i], kChordTolerance, 1);
    for (const double side : {kTrackHalfWidth, -kTrackHalfWidth}) {
      bool shown = false;
      for (const RoutePoint& at : line) {
        bool covered = false;
        for (std::size_t other = 0; other < routes.size(); ++other)
          covered = covered || (other != i && inside(track.beds[other], beside(at, side * 1.003)));
        if (!covered && !shown)
          track.edges.emplace_back();
        if (!covered)
          track.edges.back().push_back(beside(at, side));
        shown = !covered;
      }
    }
  }
}

} // namespace

PlainTrack plainTrack(const PieceDef& definition) {
  PlainTrack track;
  const std::vector<Route> routes = deriveRoutes(definition);
  for (const Route& route : routes) {
    const std::vector<RoutePoint> line = sampleRoute(route, kChordTolerance);
    track.centreLines.push_back(parallel(line, 0));
    const std::vector<RoutePoint> band = bandOf(definition, route);
    Line bed = parallel(band, kTrackHalfWidth);
    const Line back = parallel(band, -kTrackHalfWidth);
    bed.insert(bed.end(), back.rbegin(), back.rend());
    track.beds.push_back(bed);
    for (const RoutePoint& end : {line.front(), line.back()})
      for (const double side : {kTrackHalfWidth, -kTrackHalfWidth})
        track.ends.push_back(beside(end, side));
    for (const double side : {kTrackGauge / 2, -kTrackGauge / 2})
      track.rails.push_back(parallel(line, side));
    addSleepers(track.sleepers, line);
  }
  addEdges(track, routes);
  return track;
}

} // namespace trassix::bench
