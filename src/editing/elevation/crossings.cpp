#include "editing/elevation/crossings.h"

#include "document/layout.h"
#include "document/plan_content.h"
#include "editing/elevation/end_heights.h"
#include "editing/joining/joining.h"
#include "editing/track/connector_geometry.h"
#include "editing/track/routes.h"
#include "geometry/box_tree.h"
#include "geometry/pose.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <unordered_map>

namespace trassix {

namespace {

constexpr double kChordPlay = 0.1;  // mm by which a chord may leave its curve
constexpr double kSamePlace = 1.0;  // mm, and mm of height: ends that meet
constexpr double kLeastAngle = 3;   // degrees; less is track along other track
constexpr double kJointPlay = 0.01; // mm that lines are longer, so that none slips through

/// A route of a piece as it lies in the plan.
struct LaidRoute {
  std::uint32_t piece = 0; ///< position
  const Route* route = nullptr;
  TrackSystem system{};
  std::vector<Point> points;
  std::vector<double> along;
  double from = 0; ///< height of its ends
  double to = 0;
  Box box;

  double length() const { return along.back(); }
  double heightAt(double at) const { return from + (to - from) * at / length(); }
  bool endsNear(double at) const {
    return at < kSamePlace || (route->to != -1 && at > length() - kSamePlace);
  }
};

using Samples = std::unordered_map<const Route*, std::vector<RoutePoint>>;

LaidRoute lay(const PlacedPiece& piece, const PieceDef& definition, const Route& route,
              Samples& samples) {
  auto [known, fresh] = samples.try_emplace(&route);
  if (fresh)
    known->second = sampleRoute(route, kChordPlay);
  LaidRoute laid;
  laid.route = &route;
  laid.system = definition.system;
  laid.from = endHeight(piece, definition, route.from);
  laid.to = route.to == -1 ? laid.from : endHeight(piece, definition, route.to);
  const PoseFrame frame({piece.x, piece.y, piece.heading});
  for (const RoutePoint& point : known->second) {
    laid.points.push_back(frame(point.position));
    laid.along.push_back(point.along);
  }
  const auto [minX, maxX] = std::ranges::minmax(laid.points, {}, &Point::x);
  const auto [minY, maxY] = std::ranges::minmax(laid.points, {}, &Point::y);
  laid.box = {minX.x - kJointPlay, minY.y - kJointPlay, maxX.x + kJointPlay, maxY.y + kJointPlay};
  return laid;
}

std::vector<LaidRoute> layRoutes(const Layout& layout) {
  std::vector<LaidRoute> routes;
  Samples samples;
  for (std::uint32_t i = 0; i < layout.pieces().size(); ++i) {
    const PlacedPiece& piece = layout.pieces()[i];
    const PieceDef* definition = definitionOf(piece);
    if (definition == nullptr || definition->kind == PieceKind::Turntable)
      continue;
    for (const Route& route : routesOf(*definition)) {
      routes.push_back(lay(piece, *definition, route, samples));
      routes.back().piece = i;
    }
  }
  return routes;
}

/// Where two lines cross, as mm along each; none for lines that are nearly parallel.
struct Meeting {
  double first = 0;
  double second = 0;
};
std::optional<Meeting> meet(Point a, Point b, Point c, Point d) {
  static const double leastSine = std::sin(toRadians(kLeastAngle));
  const Point u{b.x - a.x, b.y - a.y};
  const Point v{d.x - c.x, d.y - c.y};
  const double lengthU = std::hypot(u.x, u.y);
  const double lengthV = std::hypot(v.x, v.y);
  const double cross = u.x * v.y - u.y * v.x;
  if (std::abs(cross) <= leastSine * lengthU * lengthV)
    return std::nullopt;
  const Point w{c.x - a.x, c.y - a.y};
  const Meeting at{(w.x * v.y - w.y * v.x) / cross * lengthU,
                   (w.x * u.y - w.y * u.x) / cross * lengthV};
  const auto on = [](double along, double length) {
    return along >= -kJointPlay && along <= length + kJointPlay;
  };
  return on(at.first, lengthU) && on(at.second, lengthV) ? std::optional(at) : std::nullopt;
}

class Search {
 public:
  Search(const Layout& layout, bool wire)
      : layout_(layout), wire_(wire), routes_(layRoutes(layout)) {}

  std::vector<TrackCrossing> run() {
    std::vector<BoxTree::Entry> entries;
    for (std::uint32_t i = 0; i < routes_.size(); ++i)
      entries.emplace_back(routes_[i].box, i);
    const BoxTree tree(entries);
    std::vector<std::uint32_t> near;
    for (std::uint32_t i = 0; i < routes_.size(); ++i) {
      near.clear();
      tree.query(routes_[i].box, [&](const BoxTree::Entry& entry) {
        if (routes_[entry.second].piece > routes_[i].piece)
          near.push_back(entry.second);
      });
      std::ranges::sort(near); // the tree has no order
      for (const std::uint32_t other : near)
        compare(routes_[i], routes_[other]);
    }
    return std::move(found_);
  }

 private:
  void compare(const LaidRoute& a, const LaidRoute& b) {
    for (std::size_t i = 0; i + 1 < a.points.size(); ++i)
      for (std::size_t k = 0; k + 1 < b.points.size(); ++k)
        if (const auto at = meet(a.points[i], a.points[i + 1], b.points[k], b.points[k + 1]))
          take(a, std::clamp(a.along[i] + at->first, 0.0, a.length()), b,
               std::clamp(b.along[k] + at->second, 0.0, b.length()));
  }

  void take(const LaidRoute& a, double alongA, const LaidRoute& b, double alongB) {
    const double heightA = a.heightAt(alongA);
    const double heightB = b.heightAt(alongB);
    if (a.endsNear(alongA) && b.endsNear(alongB) && std::abs(heightA - heightB) < kSamePlace &&
        !leadThrough(a, alongA, b, alongB))
      return;
    const bool aBelow = heightA <= heightB;
    TrackCrossing crossing;
    crossing.at = pointAt(a, alongA);
    crossing.lower = aBelow ? trackOf(a, alongA) : trackOf(b, alongB);
    crossing.upper = aBelow ? trackOf(b, alongB) : trackOf(a, alongA);
    const TrackSystem below = aBelow ? a.system : b.system;
    crossing.clearance = std::abs(heightA - heightB) - railTop(below) - kDeckThickness;
    crossing.least = leastClearance(below, wire_);
    if (std::ranges::none_of(
            found_, [&crossing](const TrackCrossing& other) { return isSame(crossing, other); }))
      found_.push_back(crossing);
  }

  /// Whether both tracks go on where they meet, each with other track.
  bool leadThrough(const LaidRoute& a, double alongA, const LaidRoute& b, double alongB) const {
    const auto next = [this](const LaidRoute& laid, double along) {
      const std::int32_t end = along < kSamePlace ? laid.route->from : laid.route->to;
      return joinedPiece(layout_, layout_.pieces()[laid.piece], static_cast<std::size_t>(end));
    };
    const PlacedPiece* pieceA = next(a, alongA);
    const PlacedPiece* pieceB = next(b, alongB);
    return pieceA != nullptr && pieceB != nullptr && pieceA != &layout_.pieces()[b.piece] &&
           pieceB != &layout_.pieces()[a.piece];
  }

  static Point pointAt(const LaidRoute& laid, double along) {
    const auto next = std::ranges::upper_bound(laid.along, along);
    const auto last = std::min<std::size_t>(static_cast<std::size_t>(next - laid.along.begin()),
                                            laid.along.size() - 1);
    const Point from = laid.points[last - 1];
    const Point to = laid.points[last];
    const double share = (along - laid.along[last - 1]) / (laid.along[last] - laid.along[last - 1]);
    return {from.x + (to.x - from.x) * share, from.y + (to.y - from.y) * share};
  }

  CrossedTrack trackOf(const LaidRoute& laid, double along) const {
    return {layout_.pieces()[laid.piece].id, laid.route->from, laid.route->to, along,
            laid.heightAt(along)};
  }

  /// Told already: at the point between two chords, or on the other side of a joint.
  static bool isSame(const TrackCrossing& a, const TrackCrossing& b) {
    const auto sameRoute = [](const CrossedTrack& one, const CrossedTrack& other) {
      return one.piece == other.piece && one.from == other.from && one.to == other.to;
    };
    const auto nextPiece = [](const CrossedTrack& one, const CrossedTrack& other) {
      return one.piece != other.piece && std::abs(one.height - other.height) < kSamePlace;
    };
    if (std::hypot(a.at.x - b.at.x, a.at.y - b.at.y) > kSamePlace)
      return false;
    const bool lower = sameRoute(a.lower, b.lower);
    const bool upper = sameRoute(a.upper, b.upper);
    const bool lowerGoesOn = nextPiece(a.lower, b.lower);
    const bool upperGoesOn = nextPiece(a.upper, b.upper);
    return (lower || lowerGoesOn) && (upper || upperGoesOn);
  }

  const Layout& layout_;
  bool wire_;
  std::vector<LaidRoute> routes_;
  std::vector<TrackCrossing> found_;
};

} // namespace

double railTop(TrackSystem system) {
  switch (system) {
  case TrackSystem::CTrack:
  case TrackSystem::TrixCTrack:
    return 10;
  case TrackSystem::ZTrack:
    return 3;
  case TrackSystem::Gauge1:
    return 18;
  default:
    return 8;
  }
}

double leastClearance(TrackSystem system, bool wire) {
  switch (system) {
  case TrackSystem::ZTrack:
    return wire ? 37 : 24;
  case TrackSystem::Gauge1:
    return wire ? 220 : 150;
  default:
    return wire ? 90 : 60;
  }
}

std::vector<TrackCrossing> trackCrossings(const Layout& layout, bool wire) {
  return Search(layout, wire).run();
}

} // namespace trassix
