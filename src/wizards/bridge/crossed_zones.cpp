#include "wizards/bridge/crossed_zones.h"

#include "catalog/scenery_catalog.h"
#include "document/layout.h"
#include "document/plan_content.h"
#include "editing/elevation/crossings.h"
#include "editing/elevation/end_heights.h"
#include "editing/joining/joining.h"
#include "editing/scenery/scenery_footprint.h"
#include "editing/supports/grounds.h"
#include "editing/supports/pier_room.h"
#include "editing/supports/supports.h"
#include "editing/track/connector_geometry.h"
#include "editing/track/track_geometry.h"
#include "editing/tunnels/tunnel_figures.h"
#include "texts/texts.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>
#include <set>

namespace trassix {

namespace {

constexpr double kStepShare = 1.0 / 180; // of a span: how closely zones are looked at
constexpr double kLowerStep = 12;        // mm between points of the track below
constexpr double kReachShare = 60; // free widths along the track below, which a curve may follow
constexpr double kFarthest = 10;   // spans to both sides of a crossing
constexpr double kSame = 1;        // mm
constexpr double kSafe = 0.2;      // mm by which zones are wider, for chords

struct LowerPoint {
  Point at;
  double height = 0;
  double half = 0; ///< of the free width there
  CrossedTrack track;
  std::optional<double> own; ///< where it is on the way above, if it is part of that
};

double radiusOf(const PieceDef& definition, std::int32_t enter, std::int32_t leave) {
  for (const Route& route : routesOf(definition))
    if ((route.from == enter && route.to == leave) || (route.from == leave && route.to == enter))
      for (const RouteSegment& segment : route.segments)
        if (const auto* arc = std::get_if<ArcSegment>(&segment))
          return arc->radius;
  return 0;
}

double halfWidth(TrackSystem system) {
  return std::max(halfFreeWidth(system), trackHalfWidth(system));
}

/// The lower track on both sides of a crossing, as far as the way above can come near.
std::vector<LowerPoint> lowerTrack(const Layout& layout, const CrossedTrack& lower, double reach) {
  std::vector<LowerPoint> points;
  const TrainWay way = lower.to == -1
                           ? TrainWay()
                           : wayThrough(layout, lower.piece, {{lower.piece, lower.to, lower.from}});
  if (way.empty())
    return points;
  const BridgeLine line(layout, way);
  const std::size_t at = line.stretchThrough(lower.piece, lower.from, lower.to);
  if (at == line.stretches())
    return points;
  const WayStretch& stretch = way.stretches[at];
  const double middle = line.joints()[at] +
                        (stretch.enter == lower.from ? lower.along : stretch.length - lower.along);
  const double from = std::max(0.0, middle - reach);
  const double to = std::min(line.length(), middle + reach);
  const auto count = std::max(2.0, std::ceil((to - from) / kLowerStep));
  for (int i = 0; i <= count; ++i) {
    const double along = from + (to - from) * i / count;
    const WayStretch& here = way.stretches[line.stretchAt(along)];
    const PieceDef& definition = *definitionOf(*layout.findPiece(here.piece));
    const Pose pose = line.poseAt(along);
    LowerPoint point;
    point.at = {pose.x, pose.y};
    point.height = line.heightAt(along);
    point.half = halfWidth(definition.system) +
                 sideAddition(definition.system, radiusOf(definition, here.enter, here.leave));
    point.track = {here.piece, here.enter, here.leave, along - line.joints()[line.stretchAt(along)],
                   point.height};
    points.push_back(point);
  }
  return points;
}

class Finder {
 public:
  Finder(const Layout& layout, const BridgeLine& line)
      : layout_(layout), line_(line),
        system_(definitionOf(*layout.findPiece(line.way().stretches.front().piece))->system),
        deck_(trackHalfWidth(system_)), step_(longestSpan(system_) * kStepShare) {}

  std::vector<CrossedZone> find(const std::vector<bool>& meant) {
    for (const TrackCrossing& crossing : trackCrossings(layout_)) {
      const std::optional<double> a = alongOf(crossing.lower);
      const std::optional<double> b = alongOf(crossing.upper);
      const bool selfCrossing = a && b;
      const auto within = [&](double at) { // which may be at a joint
        return meant[line_.stretchAt(at - kSame)] || meant[line_.stretchAt(at + kSame)];
      };
      // Of the way's own stretches the later one is below, unless only that one is meant.
      if (b && within(*b) && !(selfCrossing && within(*a) && *a < *b && crossing.tooLow()))
        addTrack(crossing.at, crossing.lower, *b);
      else if (a && within(*a) && crossing.tooLow())
        addTrack(crossing.at, crossing.upper, *a);
    }
    addNear(meant);
    addFlat(meant);
    std::ranges::sort(zones_, {}, [](const CrossedZone& zone) { return zone.thing.along; });
    return std::move(zones_);
  }

 private:
  static bool crossesAbove(const TrackCrossing& crossing) { return !crossing.tooLow(); }

  std::optional<double> alongOf(const CrossedTrack& track) const {
    const std::size_t at = line_.stretchThrough(track.piece, track.from, track.to);
    if (at == line_.stretches())
      return std::nullopt;
    const WayStretch& stretch = line_.way().stretches[at];
    return line_.joints()[at] +
           (stretch.enter == track.from ? track.along : stretch.length - track.along);
  }

  std::array<Point, 3> acrossDeck(double along) const {
    const Pose pose = line_.poseAt(along);
    return {toWorld(pose, {0, -deck_}), {pose.x, pose.y}, toWorld(pose, {0, deck_})};
  }

  /// The highest of the lower track whose free width the deck comes over there.
  std::optional<double> topUnder(const std::vector<LowerPoint>& lower, double along,
                                 std::vector<std::int32_t>& met) const {
    std::optional<double> top;
    for (const Point p : acrossDeck(along))
      for (std::size_t i = 0; i + 1 < lower.size(); ++i) {
        const double half = std::max(lower[i].half, lower[i + 1].half) + kSafe;
        // Track is near to itself; only where it comes back it leads over itself.
        if (lower[i].own && std::abs(*lower[i].own - along) < 4 * (half + deck_))
          continue;
        if (std::hypot(p.x - lower[i].at.x, p.y - lower[i].at.y) > half + 2 * kLowerStep ||
            distanceToEdge(p, lower[i].at, lower[i + 1].at) >= half)
          continue;
        top = std::max({top.value_or(-1e9), lower[i].height, lower[i + 1].height});
        met.push_back(lower[i].track.piece);
        met.push_back(lower[i + 1].track.piece);
      }
    return top;
  }

  void addTrack(Point at, const CrossedTrack& other, double along) {
    const PlacedPiece& piece = *layout_.findPiece(other.piece);
    CrossedZone zone;
    zone.system = definitionOf(piece)->system;
    zone.thing.kind = CrossedThing::Kind::Track;
    zone.thing.id = other.piece;
    zone.thing.name = piece.cat;
    zone.thing.at = at;
    zone.thing.along = along;
    const double reach = kReachShare * halfWidth(zone.system);
    std::vector<LowerPoint> lower = lowerTrack(layout_, other, reach);
    for (LowerPoint& point : lower)
      point.own = alongOf(point.track);
    zone.thing.angle = angleBetween(lower, at, along);
    std::vector<std::int32_t> met;
    const auto look = [&](double place) { return topUnder(lower, place, met); };
    spread(zone, along, other.height, look);
    setOwn(zone, met);
    met_.insert(met.begin(), met.end());
    zones_.push_back(std::move(zone));
  }

  /// Track that the way never crosses, but whose free width the deck comes over: it ends beside the
  /// way, or bends away from it.
  void addNear(const std::vector<bool>& meant) {
    std::vector<double> places;
    for (std::size_t i = 0; i < meant.size(); ++i)
      for (double at = line_.joints()[i]; meant[i] && at < line_.joints()[i + 1]; at += 10 * step_)
        places.push_back(at);
    std::vector<Point> points;
    for (const double at : places) {
      const Pose pose = line_.poseAt(at);
      points.push_back({pose.x, pose.y});
    }
    for (const PlacedPiece& piece : layout_.pieces()) {
      const PieceDef* definition = definitionOf(piece);
      if (definition == nullptr || definition->kind == PieceKind::Turntable ||
          met_.contains(piece.id) || isOfWay(piece.id))
        continue;
      const double reach =
          trackGeometryOf(*definition).radius + 2 * halfWidth(definition->system) + 10 * step_;
      const Point centre = toWorld(poseOf(piece), trackGeometryOf(*definition).centre);
      for (std::size_t i = 0; i < points.size() && !met_.contains(piece.id); ++i)
        if (std::hypot(points[i].x - centre.x, points[i].y - centre.y) < reach)
          lookBeside(piece, *definition, places[i]);
    }
  }

  void lookBeside(const PlacedPiece& piece, const PieceDef& definition, double place) {
    for (const Route& route : routesOf(definition)) {
      if (route.to == -1)
        continue;
      const double length = routeLength(route);
      const CrossedTrack track{piece.id, route.from, route.to, length / 2,
                               endHeight(piece, definition, route.from)};
      const std::vector<LowerPoint> lower = lowerTrack(layout_, track, length / 2);
      std::vector<std::int32_t> met;
      for (double at = place; at < place + 10 * step_; at += step_)
        if (const std::optional<double> top = topUnder(lower, at, met);
            top && *top <= line_.heightAt(at) + kSame && !hangsOn(piece.id, line_.stretchAt(at)))
          return addTrack({piece.x, piece.y}, track, at);
    }
  }

  bool isOfWay(std::int32_t piece) const {
    return std::ranges::find(line_.way().stretches, piece, &WayStretch::piece) !=
           line_.way().stretches.end();
  }

  /// Whether the piece is part of the track that branches off there, which is always near.
  bool hangsOn(std::int32_t piece, std::size_t stretch) const {
    constexpr int kNeighbours = 4;
    std::set<std::int32_t> met{line_.way().stretches[stretch].piece};
    for (int i = 0; i < kNeighbours; ++i)
      for (const std::int32_t id : std::set(met)) {
        const PlacedPiece& here = *layout_.findPiece(id);
        for (std::size_t k = 0; k < here.joints.size(); ++k)
          if (const PlacedPiece* next = joinedPiece(layout_, here, k))
            met.insert(next->id);
      }
    return met.contains(piece);
  }

  double angleBetween(const std::vector<LowerPoint>& lower, Point at, double along) const {
    double best = std::numeric_limits<double>::infinity();
    double angle = 90;
    for (std::size_t i = 0; i + 1 < lower.size(); ++i) {
      const double distance = distanceToEdge(at, lower[i].at, lower[i + 1].at);
      if (distance >= best)
        continue;
      best = distance;
      const double heading = toDegrees(
          std::atan2(lower[i + 1].at.y - lower[i].at.y, lower[i + 1].at.x - lower[i].at.x));
      const double difference =
          headingDifference(normaliseHeading(heading), line_.poseAt(along).heading);
      angle = std::min(difference, 180 - difference);
    }
    return angle;
  }

  /// Both ways from a place until the deck comes over nothing any more for a whole span: where the
  /// way runs beside what it crosses it may come near once more.
  template <class Look>
  void spread(CrossedZone& zone, double along, double height, const Look& look) {
    zone.profile.push_back({along, height});
    double ends[2];
    for (int side = 0; side < 2; ++side) {
      double at = along;
      double last = along;
      while (std::abs(at - last) < longestSpan(system_) &&
             std::abs(at - along) < kFarthest * longestSpan(system_)) {
        at += side == 0 ? -step_ : step_;
        if (const std::optional<double> top = look(at)) {
          zone.profile.push_back({at, *top});
          last = at;
        }
      }
      ends[side] = last + (side == 0 ? -step_ : step_);
    }
    zone.from = ends[0];
    zone.to = ends[1];
    std::ranges::sort(zone.profile, {}, &CrossedZone::Below::along);
    zone.top = std::ranges::max_element(zone.profile, {}, &CrossedZone::Below::top)->top;
    zone.thing.halfWidth = (zone.to - zone.from) / 2;
    zone.thing.height = zone.top + zone.rails();
  }

  void setOwn(CrossedZone& zone, const std::vector<std::int32_t>& met) const {
    const auto above = [&](std::size_t i) {
      return line_.joints()[i + 1] > zone.from && line_.joints()[i] < zone.to;
    };
    const auto& stretches = line_.way().stretches;
    for (std::size_t i = 0; i < stretches.size(); ++i) {
      if (above(i) || std::ranges::find(met, stretches[i].piece) == met.end())
        continue;
      zone.own.push_back(i);
    }
  }

  /// Roads and water, which are areas.
  void addFlat(const std::vector<bool>& meant) {
    const Grounds grounds(layout_);
    for (const SceneryItem& item : layout_.content().scenery) {
      const SceneryDef* definition = findScenery(item.item);
      if (definition != nullptr && definition->category == SceneryCategory::Road)
        addArea(CrossedThing::Kind::Road, item.id, tr("Road"), sceneryOutline(layout_, item),
                grounds.standing({item.x, item.y}, item.level), meant);
    }
    for (const Shape& shape : layout_.content().shapes)
      if (isWater(shape) && shape.points.size() >= 3)
        addArea(CrossedThing::Kind::Water, shape.id, tr("Water"), shape.points,
                layout_.levelHeight(shape.level), meant);
  }

  void addArea(CrossedThing::Kind kind, std::int32_t id, const std::string& name,
               const Polygon& area, double height, const std::vector<bool>& meant) {
    const auto over = [&](double at) -> std::optional<double> {
      const auto points = acrossDeck(at);
      return std::ranges::any_of(points, [&](Point p) { return inside(area, p); })
                 ? std::optional(height)
                 : std::nullopt;
    };
    for (double at = 0; at <= line_.length(); at += step_) {
      if (!meant[line_.stretchAt(at)] || !over(at) || line_.heightAt(at) < height - kRaised)
        continue;
      CrossedZone zone;
      zone.system = system_;
      zone.thing.kind = kind;
      zone.thing.id = id;
      zone.thing.name = name;
      spread(zone, at, height, over);
      zone.thing.along = (zone.from + zone.to) / 2;
      const Pose middle = line_.poseAt(zone.thing.along);
      zone.thing.at = {middle.x, middle.y};
      at = zone.to;
      zones_.push_back(std::move(zone));
    }
  }

  const Layout& layout_;
  const BridgeLine& line_;
  TrackSystem system_;
  double deck_;
  double step_;
  std::vector<CrossedZone> zones_;
  std::set<std::int32_t> met_; ///< track that is in the zones
};

} // namespace

double CrossedZone::rails() const {
  return isTrack() ? railTop(system) : 0;
}

std::vector<CrossedZone> zonesOf(const Layout& layout, const BridgeLine& line,
                                 const std::vector<bool>& meant) {
  return line.way().empty() ? std::vector<CrossedZone>() : Finder(layout, line).find(meant);
}

double clearanceOver(const CrossedZone& zone, const BridgeLine& line) {
  double least = std::numeric_limits<double>::infinity();
  for (const CrossedZone::Below& below : zone.profile)
    least = std::min(least, line.heightAt(below.along) - kDeckThickness - below.top - zone.rails());
  return least;
}

} // namespace trassix
