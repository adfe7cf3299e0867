#include "editing/track/track_geometry.h"

#include "editing/track/routes.h"
#include "geometry/polygons.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>
#include <unordered_map>

namespace trassix {

namespace {

/// Chords of drawn curves stay this close to the curve, fine enough for the closest view.
constexpr double kDrawTolerance = 0.045; // mm, so that the outer edge stays within 0.05

/// Sleeper figures as shares of the gauge: distance between sleepers and their length.
constexpr double kSleeperSpacing = 0.52;
constexpr double kSleeperLength = 1.75;

Point beside(const RoutePoint& at, double offset) {
  const double radians = toRadians(at.heading);
  return {at.position.x - std::sin(radians) * offset, at.position.y + std::cos(radians) * offset};
}

std::vector<Point> parallel(const std::vector<RoutePoint>& line, double offset) {
  std::vector<Point> points;
  points.reserve(line.size());
  for (const RoutePoint& at : line)
    points.push_back(beside(at, offset));
  return points;
}

std::vector<Point> bed(const std::vector<RoutePoint>& line, double halfWidth) {
  std::vector<Point> outline = parallel(line, halfWidth);
  const std::vector<Point> back = parallel(line, -halfWidth);
  outline.insert(outline.end(), back.rbegin(), back.rend());
  return outline;
}

/// The band of a curved piece: outwards along its outer arc, back along the inner one.
std::vector<Point> curvedBed(const ArcSegment& arc, double halfWidth) {
  constexpr double kDegreesEach = 1.5;
  constexpr int kFewest = 16;
  const int count = std::max(static_cast<int>(std::abs(arc.sweep) / kDegreesEach), kFewest);
  std::vector<Point> outline;
  outline.reserve(2 * static_cast<std::size_t>(count + 1));
  const auto add = [&](double radius, int k) {
    const double t = toRadians(arc.start + arc.sweep * k / count);
    outline.push_back({arc.centre.x + radius * std::cos(t), arc.centre.y + radius * std::sin(t)});
  };
  for (int k = 0; k <= count; ++k)
    add(arc.radius + halfWidth, k);
  for (int k = count; k >= 0; --k)
    add(arc.radius - halfWidth, k);
  return outline;
}

/// Sleepers at even spacing along the route, leaving half a space at both ends so that joined
/// pieces continue one another.
void addSleepers(std::vector<Point>& ends, const Route& route, double gauge) {
  const double length = routeLength(route);
  const auto count =
      static_cast<int>(std::max(1.0, std::round(length / (kSleeperSpacing * gauge))));
  const double step = length / count;
  const std::vector<RoutePoint> line = sampleRoute(route, kDrawTolerance, step / 2.0);
  std::size_t next = 0;
  for (int i = 0; i < count; ++i) {
    const double along = (i + 0.5) * step;
    while (next + 1 < line.size() && line[next + 1].along < along)
      ++next;
    const RoutePoint& a = line[next];
    const RoutePoint& b = line[std::min(next + 1, line.size() - 1)];
    const double span = b.along - a.along;
    const double t = span > 0 ? (along - a.along) / span : 0;
    RoutePoint at = a;
    at.position = {a.position.x + (b.position.x - a.position.x) * t,
                   a.position.y + (b.position.y - a.position.y) * t};
    ends.push_back(beside(at, gauge * kSleeperLength / 2.0));
    ends.push_back(beside(at, -gauge * kSleeperLength / 2.0));
  }
}

RoutePoint middleOf(const std::vector<RoutePoint>& line) {
  const double half = line.back().along / 2.0;
  const auto after = std::find_if(line.begin(), line.end(),
                                  [half](const RoutePoint& p) { return p.along >= half; });
  if (after == line.begin() || after == line.end())
    return line.front();
  const RoutePoint& a = *(after - 1);
  const double t = (half - a.along) / (after->along - a.along);
  return {{a.position.x + (after->position.x - a.position.x) * t,
           a.position.y + (after->position.y - a.position.y) * t},
          a.heading,
          half};
}

/// The side of a bed, without the parts that `covered` tells of.
template <class Covered>
void addEdge(TrackLines& lines, const std::vector<RoutePoint>& line, double offset,
             const Covered& covered) {
  constexpr double kStep = 1;       // mm
  constexpr double kOutward = 0.05; // edges that lie on one another both show
  const double length = line.back().along;
  const int steps = std::max(1, static_cast<int>(length / kStep));
  const double outside = offset + (offset < 0 ? -kOutward : kOutward);
  double from = -1;
  const auto close = [&](double to) {
    std::vector<Point>& edge = lines.edges.emplace_back();
    edge.push_back(beside(pointAlong(line, from), offset));
    for (const RoutePoint& at : line)
      if (at.along > from && at.along < to)
        edge.push_back(beside(at, offset));
    edge.push_back(beside(pointAlong(line, to), offset));
    from = -1;
  };
  for (int i = 0; i <= steps; ++i) {
    const double along = length * i / steps;
    const bool shows = !covered(beside(pointAlong(line, along), outside));
    if (shows && from < 0)
      from = along;
    else if (!shows && from >= 0)
      close(along);
  }
  if (from >= 0 && from < length)
    close(length);
}

constexpr int kPitPoints = 180;

/// A turntable is seen as its pit with the bridge across it, and a stub of rails at each track end.
/// The routes to the centre would only hide one another.
std::vector<Point> pitOf(const PieceDef& definition) {
  std::vector<Point> pit;
  for (int i = 0; i < kPitPoints; ++i) {
    const double t = 2 * kPi * i / kPitPoints;
    pit.push_back({definition.radius * std::cos(t), definition.radius * std::sin(t)});
  }
  return pit;
}

double bridgeReach(const PieceDef& definition) {
  return definition.radius * 0.93;
}

TrackLines turntableLines(const PieceDef& definition) {
  TrackLines lines;
  std::vector<Point> pit = pitOf(definition);
  pit.push_back(pit.front());
  lines.centreLines.push_back(pit);
  lines.edges.push_back(std::move(pit));

  const double half = trackGauge(definition.system) / 2;
  const double reach = bridgeReach(definition);
  const double edge = trackHalfWidth(definition.system);
  lines.rails.push_back({{-reach, -half}, {reach, -half}});
  lines.rails.push_back({{-reach, half}, {reach, half}});
  lines.rails.push_back(
      {{-reach, -edge}, {reach, -edge}, {reach, edge}, {-reach, edge}, {-reach, -edge}});
  std::vector<Point> ring; // on which the bridge rolls
  for (int i = 0; i <= kPitPoints; ++i) {
    const double t = 2 * kPi * i / kPitPoints;
    ring.push_back({reach * 0.94 * std::cos(t), reach * 0.94 * std::sin(t)});
  }
  lines.edges.push_back(std::move(ring));
  for (const Connector& end : definition.connectors) {
    const Pose at{end.x, end.y, end.heading};
    for (const double side : {-half, half})
      lines.rails.push_back(
          {toWorld(at, {-definition.radius * 0.05, side}), toWorld(at, {0, side})});
  }
  return lines;
}

void drawTurntable(TrackGeometry& geometry, const PieceDef& definition) {
  geometry.beds.push_back(pitOf(definition));
  const double reach = bridgeReach(definition);
  const int sleepers = static_cast<int>(2 * reach / (kSleeperSpacing * geometry.gauge));
  for (int i = 0; i < sleepers; ++i) {
    const double x = -reach + (i + 0.5) * 2 * reach / sleepers;
    geometry.sleepers.push_back({x, -geometry.gauge * kSleeperLength / 2});
    geometry.sleepers.push_back({x, geometry.gauge * kSleeperLength / 2});
  }
  geometry.mainLength = 2 * definition.radius;
  const double edge = geometry.halfWidth;
  geometry.decks.push_back({{-reach, -edge}, {reach, -edge}, {reach, edge}, {-reach, edge}});
  // The cabin beside it.
  const double near = edge;
  const double far = edge + geometry.gauge;
  const double from = reach * 0.55;
  const double to = from + 2 * geometry.gauge;
  geometry.decks.push_back({{from, near}, {to, near}, {to, far}, {from, far}});
}

void enclose(TrackGeometry& geometry) {
  constexpr double kFar = std::numeric_limits<double>::max();
  Point low{kFar, kFar};
  Point high{-kFar, -kFar};
  for (const auto& outline : geometry.beds) {
    for (const Point& p : outline) {
      low = {std::min(low.x, p.x), std::min(low.y, p.y)};
      high = {std::max(high.x, p.x), std::max(high.y, p.y)};
    }
  }
  if (low.x > high.x)
    return;
  geometry.centre = {(low.x + high.x) / 2, (low.y + high.y) / 2};
  for (const auto& outline : geometry.beds)
    for (const Point& p : outline)
      geometry.radius =
          std::max(geometry.radius, std::hypot(p.x - geometry.centre.x, p.y - geometry.centre.y));
}

} // namespace

double trackHalfWidth(TrackSystem system) {
  switch (system) {
  case TrackSystem::ZTrack:
    return 6.0;
  case TrackSystem::Gauge1:
    return 31.5;
  default:
    return 18.7;
  }
}

double trackGauge(TrackSystem system) {
  switch (system) {
  case TrackSystem::ZTrack:
    return 6.5;
  case TrackSystem::Gauge1:
    return 45.0;
  default:
    return 16.5;
  }
}

TrackGeometry deriveTrackGeometry(const PieceDef& definition) {
  TrackGeometry geometry;
  geometry.halfWidth = trackHalfWidth(definition.system);
  geometry.gauge = trackGauge(definition.system);
  if (definition.kind == PieceKind::Turntable) {
    drawTurntable(geometry, definition);
    enclose(geometry);
    return geometry;
  }
  for (const Route& route : deriveRoutes(definition)) {
    const std::vector<RoutePoint> line = sampleRoute(route, kDrawTolerance);
    if (line.size() < 2)
      continue;
    if (geometry.beds.empty()) {
      const RoutePoint middle = middleOf(line);
      geometry.labelSpot = middle.position;
      geometry.labelHeading = middle.heading;
      geometry.mainLength = line.back().along;
    }
    const auto* arc =
        route.segments.size() == 1 ? std::get_if<ArcSegment>(&route.segments.front()) : nullptr;
    geometry.beds.push_back(definition.kind == PieceKind::Curve && arc != nullptr
                                ? curvedBed(*arc, geometry.halfWidth)
                                : bed(line, geometry.halfWidth));
    addSleepers(geometry.sleepers, route, geometry.gauge);
  }
  enclose(geometry);
  return geometry;
}

TrackLines deriveTrackLines(const PieceDef& definition, double tolerance) {
  if (definition.kind == PieceKind::Turntable)
    return turntableLines(definition);
  TrackLines lines;
  const double halfWidth = trackHalfWidth(definition.system);
  const double gauge = trackGauge(definition.system);
  const TrackGeometry geometry = deriveTrackGeometry(definition);
  std::size_t own = 0;
  for (const Route& route : deriveRoutes(definition)) {
    const std::vector<RoutePoint> line = sampleRoute(route, tolerance);
    if (line.size() < 2)
      continue;
    lines.centreLines.push_back(parallel(line, 0));
    lines.rails.push_back(parallel(line, gauge / 2));
    lines.rails.push_back(parallel(line, -gauge / 2));
    const auto covered = [&](Point p) {
      for (std::size_t i = 0; i < geometry.beds.size(); ++i)
        if (i != own && inside(geometry.beds[i], p))
          return true;
      return false;
    };
    for (const double side : {halfWidth, -halfWidth})
      addEdge(lines, line, side, covered);
    for (const RoutePoint& end : {line.front(), line.back()})
      for (const double side : {halfWidth, -halfWidth})
        lines.ends.push_back(beside(end, side));
    ++own;
  }
  return lines;
}

const TrackLines& trackLinesOf(const PieceDef& definition, double tolerance) {
  constexpr double kFinest = 1.0 / 128;
  constexpr int kGrades = 10; // each twice as coarse as the one before
  static std::unordered_map<const PieceDef*, std::array<std::optional<TrackLines>, kGrades>> known;
  const int grade =
      std::clamp(static_cast<int>(std::floor(std::log2(tolerance / kFinest))), 0, kGrades - 1);
  std::optional<TrackLines>& lines = known[&definition][static_cast<std::size_t>(grade)];
  if (!lines)
    lines = deriveTrackLines(definition, std::ldexp(kFinest, grade));
  return *lines;
}

const TrackGeometry& trackGeometryOf(const PieceDef& definition) {
  static std::unordered_map<const PieceDef*, TrackGeometry> known;
  const auto [entry, isNew] = known.try_emplace(&definition);
  if (isNew)
    entry->second = deriveTrackGeometry(definition);
  return entry->second;
}

} // namespace trassix
