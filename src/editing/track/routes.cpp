#include "editing/track/routes.h"

#include "catalog/track_catalog.h"

#include <boost/math/quadrature/gauss.hpp>

#include <algorithm>
#include <cmath>
#include <limits>
#include <unordered_map>
#include <utility>

namespace trassix {

namespace {

/// Published ends are rounded to a hundredth of a millimetre, so that the ends of a straight route
/// look past each other by about this much.
constexpr double kLineHeadingPlay = 0.01;

/// A lead shorter than this is rounding noise of the computation, not of the published figures.
constexpr double kNoLength = 1e-9;

/// A tangent arc tighter than this share of the nominal radius is not how the piece is built.
constexpr double kTightestShare = 0.7;

Point operator+(Point a, Point b) {
  return {a.x + b.x, a.y + b.y};
}

Point operator-(Point a, Point b) {
  return {a.x - b.x, a.y - b.y};
}

Point operator*(double factor, Point p) {
  return {factor * p.x, factor * p.y};
}

double cross(Point a, Point b) {
  return a.x * b.y - a.y * b.x;
}

double dot(Point a, Point b) {
  return a.x * b.x + a.y * b.y;
}

double lengthOf(Point p) {
  return std::hypot(p.x, p.y);
}

Point direction(double degrees) {
  return {std::cos(toRadians(degrees)), std::sin(toRadians(degrees))};
}

double headingOf(Point p) {
  return normaliseHeading(toDegrees(std::atan2(p.y, p.x)));
}

/// A point and the direction of travel there.
struct End {
  Point at;
  double heading = 0;
};

// --- Smooth segments -----------------------------------------------------------------------------

Point smoothPoint(const SmoothSegment& s, double t) {
  const double u = 1 - t;
  return u * u * u * s.control[0] + 3 * u * u * t * s.control[1] + 3 * u * t * t * s.control[2] +
         t * t * t * s.control[3];
}

Point smoothVelocity(const SmoothSegment& s, double t) {
  const double u = 1 - t;
  return 3 * u * u * (s.control[1] - s.control[0]) + 6 * u * t * (s.control[2] - s.control[1]) +
         3 * t * t * (s.control[3] - s.control[2]);
}

Point smoothAcceleration(const SmoothSegment& s, double t) {
  return 6 * (1 - t) * (s.control[2] - 2 * s.control[1] + s.control[0]) +
         6 * t * (s.control[3] - 2 * s.control[2] + s.control[1]);
}

double smoothLength(const SmoothSegment& s, double from, double to) {
  return boost::math::quadrature::gauss<double, 15>::integrate(
      [&s](double t) { return lengthOf(smoothVelocity(s, t)); }, from, to);
}

double sharpestCurvature(const SmoothSegment& s) {
  constexpr int kSamples = 40;
  double sharpest = 0;
  for (int i = 0; i <= kSamples; ++i) {
    const double t = static_cast<double>(i) / kSamples;
    const Point v = smoothVelocity(s, t);
    const double speed = std::max(lengthOf(v), 1e-12);
    sharpest =
        std::max(sharpest, std::abs(cross(v, smoothAcceleration(s, t))) / (speed * speed * speed));
  }
  return sharpest;
}

/// The gentlest cubic from `from` to `to`: of a grid of handle lengths the one whose sharpest bend
/// is widest. Handles stay shorter than the chord, which keeps loops out.
SmoothSegment smoothBetween(const End& from, const End& to) {
  const double chord = lengthOf(to.at - from.at);
  SmoothSegment best;
  double bestCurvature = std::numeric_limits<double>::max();
  for (int i = 8; i <= 36; ++i) {
    for (int j = 8; j <= 36; ++j) {
      const SmoothSegment candidate{{from.at, from.at + chord * i / 40.0 * direction(from.heading),
                                     to.at - chord * j / 40.0 * direction(to.heading), to.at}};
      const double curvature = sharpestCurvature(candidate);
      if (curvature < bestCurvature) {
        bestCurvature = curvature;
        best = candidate;
      }
    }
  }
  return best;
}

// --- Fitting a route between two ends ------------------------------------------------------------

/// Straight lead, tangent arc, straight trail (either may be missing) when the two end tangents
/// meet between the ends at a bend no tighter than the piece is meant to have.
std::vector<RouteSegment> tangentArc(const End& from, const End& to, double nominalRadius) {
  const Point leave = direction(from.heading);
  const Point arrive = direction(to.heading);
  const double turn = toDegrees(std::atan2(cross(leave, arrive), dot(leave, arrive)));
  const double sine = cross(leave, arrive);
  if (std::abs(sine) < 1e-9)
    return {};
  const Point gap = to.at - from.at;
  const double before = cross(gap, arrive) / sine; // from the start to where the tangents meet
  const double after = cross(leave, gap) / sine;
  if (before <= 0 || after <= 0)
    return {};
  const double tangent = std::min(before, after);
  const double radius = tangent / std::tan(toRadians(std::abs(turn) / 2));
  if (radius < kTightestShare * nominalRadius)
    return {};

  std::vector<RouteSegment> segments;
  const Point arcFrom =
      before - tangent > kNoLength ? from.at + (before - tangent) * leave : from.at;
  const Point arcTo = after - tangent > kNoLength ? to.at - (after - tangent) * arrive : to.at;
  if (before - tangent > kNoLength)
    segments.push_back(LineSegment{from.at, arcFrom});
  const double side = turn > 0 ? 1.0 : -1.0;
  const Point centre = arcFrom + side * radius * Point{-leave.y, leave.x};
  segments.push_back(ArcSegment{centre, radius, from.heading - side * 90.0, turn});
  if (after - tangent > kNoLength)
    segments.push_back(LineSegment{arcTo, to.at});
  return segments;
}

std::vector<RouteSegment> fit(const End& from, const End& to, double nominalRadius) {
  const Point gap = to.at - from.at;
  const double straight = headingOf(gap);
  if (headingDifference(straight, from.heading) <= kLineHeadingPlay &&
      headingDifference(straight, to.heading) <= kLineHeadingPlay)
    return {LineSegment{from.at, to.at}};
  std::vector<RouteSegment> segments = tangentArc(from, to, nominalRadius);
  if (segments.empty())
    segments.push_back(smoothBetween(from, to));
  return segments;
}

Route routeBetween(const PieceDef& definition, std::int32_t from, std::int32_t to) {
  const Connector& a = definition.connectors[static_cast<std::size_t>(from)];
  const Connector& b = definition.connectors[static_cast<std::size_t>(to)];
  return {from, to,
          fit({{a.x, a.y}, a.heading + 180.0}, {{b.x, b.y}, b.heading}, definition.radius)};
}

std::vector<std::pair<std::int32_t, std::int32_t>> endPairs(const PieceDef& definition) {
  switch (definition.kind) {
  case PieceKind::Crossing:
    return {{0, 1}, {2, 3}};
  case PieceKind::DoubleSlip:
    return {{0, 1}, {2, 3}, {0, 3}, {2, 1}};
  default:
    break;
  }
  std::vector<std::pair<std::int32_t, std::int32_t>> pairs;
  for (std::size_t i = 1; i < definition.connectors.size(); ++i)
    pairs.emplace_back(0, static_cast<std::int32_t>(i));
  return pairs;
}

// --- Sampling ------------------------------------------------------------------------------------

/// Appends `steps` points after the first; `at(t)` gives position, heading and length for t in
/// [0, 1].
template <class At>
void appendSamples(std::vector<RoutePoint>& points, int steps, double along, At at) {
  if (points.empty())
    points.push_back(at(0.0));
  for (int i = 1; i <= steps; ++i) {
    RoutePoint next = at(static_cast<double>(i) / steps);
    next.along += along;
    points.push_back(next);
  }
}

int stepsFor(double exact) {
  return std::clamp(static_cast<int>(std::ceil(exact)), 1, 100000);
}

struct Sampler {
  std::vector<RoutePoint>& points;
  double tolerance;
  double maxStep;
  double along = 0;

  void operator()(const LineSegment& s) {
    const Point way = s.to - s.from;
    const double length = lengthOf(way);
    const double heading = headingOf(way);
    appendSamples(points, stepsFor(length / maxStep), along, [&](double t) {
      return RoutePoint{t < 1 ? s.from + t * way : s.to, heading, t * length};
    });
    along += length;
  }

  void operator()(const ArcSegment& s) {
    const double length = s.radius * toRadians(std::abs(s.sweep));
    const double side = s.sweep > 0 ? 90.0 : -90.0;
    const double chordTurn =
        2 * std::acos(std::clamp(1 - tolerance / s.radius, -1.0, 1.0)); // radians
    const double steps =
        std::max(toRadians(std::abs(s.sweep)) / std::max(chordTurn, 1e-6), length / maxStep);
    appendSamples(points, stepsFor(steps), along, [&](double t) {
      const double angle = s.start + t * s.sweep;
      return RoutePoint{s.centre + s.radius * direction(angle), normaliseHeading(angle + side),
                        t * length};
    });
    along += length;
  }

  void operator()(const SmoothSegment& s) {
    const double length = smoothLength(s, 0, 1);
    // A cubic leaves its chord over 1/n of the parameter by at most |second derivative| / (8 n^2).
    const double bend =
        std::max(lengthOf(smoothAcceleration(s, 0)), lengthOf(smoothAcceleration(s, 1)));
    const double speed =
        3 * std::max({lengthOf(s.control[1] - s.control[0]), lengthOf(s.control[2] - s.control[1]),
                      lengthOf(s.control[3] - s.control[2])});
    const double steps = std::max(std::sqrt(bend / (8 * tolerance)), speed / maxStep);
    appendSamples(points, stepsFor(steps), along, [&](double t) {
      return RoutePoint{smoothPoint(s, t), headingOf(smoothVelocity(s, t)), smoothLength(s, 0, t)};
    });
    along += length;
  }
};

} // namespace

std::vector<Route> deriveRoutes(const PieceDef& definition) {
  std::vector<Route> routes;
  if (definition.connectors.empty())
    return routes;
  if (definition.kind == PieceKind::Turntable) {
    for (std::size_t i = 0; i < definition.connectors.size(); ++i) {
      const Connector& end = definition.connectors[i];
      routes.push_back({static_cast<std::int32_t>(i), -1, {LineSegment{{end.x, end.y}, {0, 0}}}});
    }
    return routes;
  }
  if (definition.connectors.size() == 1) {
    const Connector& end = definition.connectors.front();
    const Point from{end.x, end.y};
    const Point to = from + definition.length * direction(end.heading + 180.0);
    routes.push_back({0, -1, {LineSegment{from, to}}});
    return routes;
  }
  for (const auto& [from, to] : endPairs(definition))
    if (static_cast<std::size_t>(std::max(from, to)) < definition.connectors.size())
      routes.push_back(routeBetween(definition, from, to));
  return routes;
}

double routeLength(const Route& route) {
  double length = 0;
  for (const RouteSegment& segment : route.segments) {
    if (const auto* line = std::get_if<LineSegment>(&segment))
      length += lengthOf(line->to - line->from);
    else if (const auto* arc = std::get_if<ArcSegment>(&segment))
      length += arc->radius * toRadians(std::abs(arc->sweep));
    else
      length += smoothLength(std::get<SmoothSegment>(segment), 0, 1);
  }
  return length;
}

std::vector<RoutePoint> sampleRoute(const Route& route, double tolerance, double maxStep) {
  std::vector<RoutePoint> points;
  Sampler sampler{points, tolerance, maxStep};
  for (const RouteSegment& segment : route.segments)
    std::visit(sampler, segment);
  return points;
}

RoutePoint pointAlong(const std::vector<RoutePoint>& line, double along) {
  const auto after =
      std::ranges::lower_bound(line, along, {}, [](const RoutePoint& p) { return p.along; });
  if (after == line.begin() || after == line.end())
    return after == line.end() ? line.back() : line.front();
  const RoutePoint& a = *(after - 1);
  const double t = (along - a.along) / (after->along - a.along);
  return {{a.position.x + (after->position.x - a.position.x) * t,
           a.position.y + (after->position.y - a.position.y) * t},
          a.heading + std::remainder(after->heading - a.heading, 360.0) * t,
          along};
}

const std::vector<Route>& routesOf(const PieceDef& definition) {
  static const auto known = [] {
    std::unordered_map<const PieceDef*, std::vector<Route>> routes;
    const TrackCatalog& catalog = TrackCatalog::instance();
    for (std::int32_t i = 0; i < catalog.count(); ++i)
      routes.emplace(catalog.at(i), deriveRoutes(*catalog.at(i)));
    return routes;
  }();
  return known.at(&definition);
}

} // namespace trassix
