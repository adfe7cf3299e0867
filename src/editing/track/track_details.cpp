#include "editing/track/routes.h"
#include "editing/track/track_geometry.h"
#include "geometry/pose.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <unordered_map>

namespace trassix {

namespace {

constexpr double kTolerance = 0.05; ///< mm
constexpr double kStep = 1;         ///< mm between samples of rails
/// Rails that lie on one another differ by no more, mm.
constexpr double kSame = 0.02;
/// Of the frog at the end of a turnout set, mm: the length of the piece that has it alone.
constexpr double kFrogLength = 118;

using Samples = std::vector<RoutePoint>;

Point beside(const RoutePoint& at, double offset) {
  const double radians = toRadians(at.heading);
  return {at.position.x - std::sin(radians) * offset, at.position.y + std::cos(radians) * offset};
}

/// How far from the way's middle a point lies that is beside it, not before or beyond it.
std::optional<double> distance(const Samples& way, Point p) {
  std::optional<double> nearest;
  for (std::size_t i = 0; i + 1 < way.size(); ++i) {
    const Point a = way[i].position;
    const Point b = way[i + 1].position;
    const double x = b.x - a.x;
    const double y = b.y - a.y;
    const double t = ((p.x - a.x) * x + (p.y - a.y) * y) / (x * x + y * y);
    if (t < -0.05 || t > 1.05)
      continue;
    const double far = std::hypot(p.x - a.x - x * t, p.y - a.y - y * t);
    if (!nearest || far < *nearest)
      nearest = far;
  }
  return nearest;
}

class Points {
 public:
  explicit Points(const PieceDef& definition) : gauge_(trackGauge(definition.system)) {
    for (const Route& route : deriveRoutes(definition))
      if (Samples way = sampleRoute(route, kTolerance, kStep); way.size() > 1)
        ways_.push_back(std::move(way));
  }

  const std::vector<Samples>& ways() const { return ways_; }

  void addTo(TrackDetails& details) {
    for (const Samples& way : ways_)
      for (const double side : {-1.0, 1.0})
        addRail(details, way, side);
    // The bars by which blades are moved.
    for (std::size_t i = 0; i < tips_.size(); ++i)
      for (std::size_t k = i + 1; k < tips_.size(); ++k)
        if (arePair(tips_[i], tips_[k]))
          details.fittings.push_back({tips_[i].at, tips_[k].at});
  }

 private:
  /// Between the rails of another way, wheels need their room beside them: blades begin and frogs
  /// open where they have it. What lies on a rail of an earlier way is that rail.
  bool isCut(const Samples& own, Point p) const {
    return std::ranges::any_of(ways_, [&](const Samples& other) {
      if (&other == &own)
        return false;
      const std::optional<double> off = distance(other, p);
      if (!off)
        return false;
      return std::abs(*off - gauge_ / 2) < kSame
                 ? &other < &own
                 : *off < gauge_ / 2 && *off > gauge_ * (0.5 - kFlangeway);
    });
  }

  void addRail(TrackDetails& details, const Samples& way, double side) {
    const double offset = side * gauge_ / 2;
    std::vector<Point> rail;
    std::size_t cutAt = 0;
    const auto close = [&] {
      if (rail.size() > 1)
        details.rails.push_back(rail);
      rail.clear();
    };
    bool cut = false;
    for (std::size_t i = 0; i < way.size(); ++i) {
      const Point p = beside(way[i], offset);
      const bool now = isCut(way, p);
      if (now && !cut)
        cutAt = i;
      if (!now && cut)
        opened(details, way, side, {cutAt, i});
      cut = now;
      if (now)
        close();
      else
        rail.push_back(p);
    }
    close();
  }

  struct Gap {
    std::size_t from;
    std::size_t to;
  };
  /// A rail goes on behind a gap: as a blade where it left another rail, else behind a frog, with a
  /// check rail on the other side.
  void opened(TrackDetails& details, const Samples& way, double side, Gap gap) {
    const double offset = side * gauge_ / 2;
    const Point before = beside(way[gap.from > 0 ? gap.from - 1 : 0], offset);
    const Point after = beside(way[gap.to], offset);
    for (const Samples& other : ways_) {
      const std::optional<double> off = &other == &way ? std::nullopt : distance(other, before);
      if (!off || std::abs(*off - gauge_ / 2) > 2 * kSame)
        continue;
      if (distance(other, after).value_or(gauge_) < gauge_ / 2)
        tips_.push_back({after, way[gap.to].heading});
      return;
    }
    std::vector<Point> check;
    const double reach = 0.7 * gauge_;
    for (const RoutePoint& at : way)
      if (at.along > way[gap.from].along - reach && at.along < way[gap.to].along + reach)
        check.push_back(beside(at, -side * gauge_ * (0.5 - kFlangeway)));
    if (check.size() > 1)
      details.fittings.push_back(std::move(check));
  }

  struct Tip {
    Point at;
    double heading;
  };
  /// Opposite to one another, nearly a gauge apart.
  bool arePair(const Tip& a, const Tip& b) const {
    const double x = b.at.x - a.at.x;
    const double y = b.at.y - a.at.y;
    const double along = x * std::cos(toRadians(a.heading)) + y * std::sin(toRadians(a.heading));
    const double apart = std::hypot(x, y);
    return std::abs(along) < 0.2 * gauge_ && apart > 0.5 * gauge_ && apart < gauge_;
  }

  double gauge_;
  std::vector<Samples> ways_;
  std::vector<Tip> tips_; ///< of blades
};

/// A truss seen from above, which swells towards its middle as an arch does.
void addGirders(TrackDetails& details, const Samples& way, double halfWidth) {
  constexpr double kBay = 9; // mm
  const double length = way.back().along;
  for (const double side : {-1.0, 1.0}) {
    std::vector<Point> outer;
    std::vector<Point> inner;
    std::vector<Point> braces;
    double next = 0;
    for (const RoutePoint& at : way) {
      const double in = halfWidth * (0.9 - 0.1 * std::sin(kPi * at.along / length));
      outer.push_back(beside(at, side * halfWidth));
      inner.push_back(beside(at, side * in));
      if (at.along < next)
        continue;
      braces.push_back(braces.size() % 2 == 0 ? outer.back() : inner.back());
      next = at.along + kBay / 2;
    }
    details.girders.push_back(std::move(outer));
    details.girders.push_back(std::move(inner));
    details.girders.push_back(std::move(braces));
  }
}

/// Strokes down the shoulders, long and short in turns, as on maps.
void addHachures(TrackDetails& details, const Samples& way, double halfWidth, double gauge) {
  const double apart = gauge * 0.3;
  double next = apart / 2;
  int count = 0;
  for (const RoutePoint& at : way) {
    if (at.along < next)
      continue;
    next += apart;
    const double length = gauge * (count++ % 2 == 0 ? 0.26 : 0.15);
    for (const double side : {-1.0, 1.0}) {
      details.hachures.push_back(beside(at, side * halfWidth));
      details.hachures.push_back(beside(at, side * (halfWidth - length)));
    }
  }
}

/// Two of them near the upper end, off the middle where the article stands.
void addClimb(std::vector<std::vector<Point>>& heads, Samples way, double gauge, bool reversed) {
  const double length = way.back().along;
  if (reversed)
    std::ranges::reverse(way);
  const auto at = [&](double along) {
    return *std::ranges::min_element(way, {}, [&](const RoutePoint& p) {
      return std::abs((reversed ? length - p.along : p.along) - along);
    });
  };
  for (const double tip : {0.78 * length, 0.78 * length + 0.35 * gauge}) {
    const RoutePoint back = at(tip - 0.35 * gauge);
    heads.push_back({beside(back, 0.3 * gauge), at(tip).position, beside(back, -0.3 * gauge)});
  }
}

void addAcross(std::vector<Point>& pairs, const RoutePoint& at, double reach) {
  pairs.push_back(beside(at, reach));
  pairs.push_back(beside(at, -reach));
}

} // namespace

TrackDetails deriveTrackDetails(const PieceDef& definition) {
  TrackDetails details;
  if (definition.kind == PieceKind::Turntable)
    return details;
  const double halfWidth = trackHalfWidth(definition.system);
  const double gauge = trackGauge(definition.system);
  Points points(definition);
  if (points.ways().empty())
    return details;
  if (points.ways().size() > 1)
    points.addTo(details);
  for (const Samples& way : points.ways()) {
    if (definition.ramp) {
      addHachures(details, way, halfWidth, gauge);
      addClimb(details.climbs[0], way, gauge, false);
      addClimb(details.climbs[1], way, gauge, true);
    } else if (definition.bridge)
      addGirders(details, way, halfWidth);
    // A set is laid of two parts, of which the second is the frog.
    const double seam = way.back().along - kFrogLength;
    if (const auto at = std::ranges::find_if(way, [&](const auto& p) { return p.along >= seam; });
        definition.turnoutSet && seam > 0)
      addAcross(details.hachures, *at, halfWidth);
    // Alone it has a plate under its nose.
    if (definition.frogPiece) {
      const RoutePoint& middle = way[way.size() / 2];
      addAcross(details.hachures, middle, gauge / 2);
      addAcross(details.hachures, way.back(), gauge / 2);
    }
  }
  if (definition.kind == PieceKind::TrackEnd) {
    RoutePoint end = points.ways().front().back();
    end.position.x -= gauge * 0.2;
    addAcross(details.beams, end, gauge * 0.8);
  }
  return details;
}

const TrackDetails& trackDetailsOf(const PieceDef& definition) {
  static std::unordered_map<const PieceDef*, TrackDetails> known;
  const auto [entry, isNew] = known.try_emplace(&definition);
  if (isNew)
    entry->second = deriveTrackDetails(definition);
  return entry->second;
}

} // namespace trassix
