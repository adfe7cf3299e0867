#include "editing/tunnels/tunnel_chain.h"

#include "document/layout.h"
#include "document/plan_content.h"
#include "editing/joining/joining.h"
#include "editing/track/routes.h"
#include "editing/tunnels/tunnel_figures.h"
#include "geometry/polygons.h"
#include "texts/texts.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <set>
#include <variant>

namespace trassix {

namespace {

constexpr double kSpacingPlay = 1.0;   // mm, as parallel track is laid
constexpr double kFacingPlay = 5.0;    // degrees between them
constexpr double kLineTolerance = 0.1; // mm

constexpr const char* kNoChain = trLater("The selected track is no chain that trains run through");

std::string nameOf(const PlacedPiece& piece) {
  const PieceDef* definition = definitionOf(piece);
  return definition == nullptr ? piece.cat : definition->name;
}

const Route* routeBetween(const PieceDef& definition, std::int32_t a, std::int32_t b) {
  const auto found = std::ranges::find_if(routesOf(definition), [a, b](const Route& route) {
    return (route.from == a && route.to == b) || (route.from == b && route.to == a);
  });
  return found == routesOf(definition).end() ? nullptr : &*found;
}

/// Follows the joints among some pieces.
class ChainFinder {
 public:
  ChainFinder(const Layout& layout, std::span<const std::int32_t> pieces)
      : layout_(layout), pieces_(pieces) {}

  /// The pieces that hang together with this one.
  std::set<std::int32_t> groupOf(std::int32_t piece) const {
    std::set<std::int32_t> group{piece};
    std::vector<std::int32_t> open{piece};
    while (!open.empty()) {
      const PlacedPiece& from = *layout_.findPiece(open.back());
      open.pop_back();
      for (const std::int32_t end : innerEnds(from))
        if (const std::int32_t next = from.joint(static_cast<std::size_t>(end)).target;
            group.insert(next).second)
          open.push_back(next);
    }
    return group;
  }

  /// The way through a group; empty, with the reason in `problem`, when that is no chain.
  TrainWay wayThrough(const std::set<std::int32_t>& group, TunnelProblem& problem) const {
    for (const std::int32_t id : group) {
      problem = problemOf(*layout_.findPiece(id));
      if (problem)
        return {};
    }
    const auto first = std::ranges::find_if(
        group, [this](std::int32_t id) { return innerEnds(*layout_.findPiece(id)).size() < 2; });
    if (first == group.end()) {
      problem =
          TunnelProblem::plain(trLater("The track closes to a ring; a tunnel needs two mouths."));
      return {};
    }
    TrainWay way;
    const PlacedPiece* piece = layout_.findPiece(*first);
    std::vector<std::int32_t> inner = innerEnds(*piece);
    std::int32_t enter = inner.empty() ? 0 : oppositeEnd(*definitionOf(*piece), inner.front());
    for (;;) {
      inner = innerEnds(*piece);
      std::erase(inner, enter);
      const PieceDef& definition = *definitionOf(*piece);
      const std::int32_t leave = inner.empty() ? oppositeEnd(definition, enter) : inner.front();
      const Route* route = routeBetween(definition, enter, leave);
      if (enter == -1 || leave == -1 || route == nullptr) {
        problem = {kNoChain, tr("No train gets out of the tunnel over %1%.", {nameOf(*piece)})};
        return {};
      }
      way.stretches.push_back({piece->id, enter, leave, routeLength(*route),
                               endHeight(*piece, definition, enter),
                               endHeight(*piece, definition, leave)});
      if (inner.empty())
        return way;
      const Joint joint = piece->joint(static_cast<std::size_t>(leave));
      piece = layout_.findPiece(joint.target);
      enter = joint.tconn;
    }
  }

  /// Pieces of the way at which track goes on beside it.
  void addBranches(const TrainWay& way, std::vector<std::int32_t>& branches) const {
    for (const WayStretch& stretch : way.stretches) {
      const PlacedPiece& piece = *layout_.findPiece(stretch.piece);
      for (std::int32_t i = 0; i < static_cast<std::int32_t>(piece.joints.size()); ++i) {
        const PlacedPiece* other = joinedPiece(layout_, piece, static_cast<std::size_t>(i));
        if (i == stretch.enter || i == stretch.leave || other == nullptr)
          continue;
        branches.push_back(piece.id);
        break;
      }
    }
  }

 private:
  std::vector<std::int32_t> innerEnds(const PlacedPiece& piece) const {
    std::vector<std::int32_t> ends;
    for (std::size_t i = 0; i < piece.joints.size(); ++i)
      if (const PlacedPiece* other = joinedPiece(layout_, piece, i);
          other != nullptr && other->id != piece.id && containsId(pieces_, other->id))
        ends.push_back(static_cast<std::int32_t>(i));
    return ends;
  }

  TunnelProblem problemOf(const PlacedPiece& piece) const {
    const PieceDef* definition = definitionOf(piece);
    if (definition == nullptr || definition->kind == PieceKind::Turntable)
      return {kNoChain, tr("A tunnel cannot lead over %1%.", {nameOf(piece)})};
    const std::vector<std::int32_t> ends = innerEnds(piece);
    if (ends.size() > 2)
      return {kNoChain, tr("The selected track branches at %1%. Select one way through it.",
                           {nameOf(piece)})};
    if (ends.size() == 2 && routeBetween(*definition, ends[0], ends[1]) == nullptr)
      return {kNoChain, tr("No train gets over %1% along the selected track.", {nameOf(piece)})};
    return {};
  }

  const Layout& layout_;
  std::span<const std::int32_t> pieces_;
};

TrainWay turnedRound(TrainWay way) {
  std::ranges::reverse(way.stretches);
  for (WayStretch& stretch : way.stretches) {
    std::swap(stretch.enter, stretch.leave);
    std::swap(stretch.from, stretch.to);
  }
  return way;
}

TrackSystem systemOf(const Layout& layout, const TrainWay& way) {
  return definitionOf(*layout.findPiece(way.start().piece))->system;
}

/// How far a point lies beside a polyline.
double distanceTo(const std::vector<Point>& line, Point at) {
  double nearest = std::numeric_limits<double>::infinity();
  for (std::size_t i = 1; i < line.size(); ++i)
    nearest = std::min(nearest, distanceToEdge(at, line[i - 1], line[i]));
  return nearest;
}

std::vector<Point> lineOf(const Layout& layout, const TrainWay& way) {
  std::vector<Point> line;
  for (const Pose& pose : posesAlong(layout, way))
    line.push_back({pose.x, pose.y});
  return line;
}

bool atSpacing(TrackSystem system, double distance) {
  return std::ranges::any_of(doubleTrackSpacings(system), [distance](double spacing) {
    return std::abs(std::abs(distance) - spacing) <= kSpacingPlay;
  });
}

/// Whether the second way runs beside the first from mouth to mouth.
bool runsBeside(const Layout& layout, const TrainWay& first, const TrainWay& second) {
  const TrackSystem system = systemOf(layout, first);
  if (systemOf(layout, second) != system)
    return false;
  const auto beside = [&](TrackEnd own, TrackEnd other, double& right) {
    const WorldConnector end = outerEnd(layout, own);
    const WorldConnector there = outerEnd(layout, other);
    const BesideEnd lies = besideEnd(end, {there.x, there.y});
    right = lies.right;
    return atSpacing(system, lies.right) && std::abs(lies.ahead) <= std::abs(lies.right) &&
           headingDifference(end.heading, there.heading) <= kFacingPlay;
  };
  double atStart = 0;
  double atEnd = 0;
  if (!beside(first.start(), second.start(), atStart) || !beside(first.end(), second.end(), atEnd))
    return false;
  if ((atStart > 0) == (atEnd > 0)) // seen from without, so the tracks have crossed
    return false;
  const std::vector<Point> line = lineOf(layout, first);
  return std::ranges::all_of(second.stretches, [&](const WayStretch& stretch) {
    const WorldConnector end = outerEnd(layout, {stretch.piece, stretch.leave});
    return stretch.leave == second.end().connector && stretch.piece == second.end().piece
               ? true
               : atSpacing(system, distanceTo(line, {end.x, end.y}));
  });
}

} // namespace

TunnelProblem TunnelProblem::plain(const char* why) {
  return {why, tr(why)};
}

TunnelChains tunnelChains(const Layout& layout, std::span<const std::int32_t> pieces) {
  TunnelChains chains;
  if (pieces.empty()) {
    chains.problem = TunnelProblem::plain(trLater("Select a chain of track first."));
    return chains;
  }
  const ChainFinder finder(layout, pieces);
  std::set<std::int32_t> left(pieces.begin(), pieces.end());
  while (!left.empty()) {
    const std::set<std::int32_t> group = finder.groupOf(*left.begin());
    TrainWay way = finder.wayThrough(group, chains.problem);
    if (chains.problem)
      return chains;
    finder.addBranches(way, chains.branches);
    chains.ways.push_back(way.start().piece <= way.end().piece ? std::move(way)
                                                               : turnedRound(std::move(way)));
    for (const std::int32_t id : group)
      left.erase(id);
    if (chains.ways.size() == 2 && !runsBeside(layout, chains.ways[0], chains.ways[1]))
      chains.ways[1] = turnedRound(std::move(chains.ways[1]));
    const bool beside =
        chains.ways.size() < 2 || runsBeside(layout, chains.ways[0], chains.ways[1]);
    if (chains.ways.size() > 2 || !beside) {
      chains.problem = {kNoChain,
                        tr("The selected pieces are neither one chain of joined track nor two side "
                           "by side at the distance of double track.")};
      return chains;
    }
  }
  std::ranges::sort(chains.branches);
  return chains;
}

WorldConnector outerEnd(const Layout& layout, TrackEnd end) {
  const PlacedPiece& piece = *layout.findPiece(end.piece);
  return ConnectorToWorld(piece, *definitionOf(piece), end.connector);
}

std::vector<Pose> posesAlong(const Layout& layout, const TrainWay& way) {
  std::vector<Pose> poses;
  for (const WayStretch& stretch : way.stretches) {
    const PlacedPiece& piece = *layout.findPiece(stretch.piece);
    const Route& route = *routeBetween(*definitionOf(piece), stretch.enter, stretch.leave);
    const bool along = route.from == stretch.enter;
    std::vector<RoutePoint> points = sampleRoute(route, kLineTolerance);
    if (!along)
      std::ranges::reverse(points);
    const RigidMotion motion{{}, poseOf(piece)};
    for (const RoutePoint& point : points)
      poses.push_back(
          motion(Pose{point.position.x, point.position.y, point.heading + (along ? 0 : 180)}));
  }
  return poses;
}

BesideEnd besideEnd(const WorldConnector& end, Point at) {
  const double angle = toRadians(end.heading);
  const double x = at.x - end.x;
  const double y = at.y - end.y;
  return {y * std::cos(angle) - x * std::sin(angle), x * std::cos(angle) + y * std::sin(angle)};
}

double sharpestRadius(const Layout& layout, const TrainWay& way) {
  double sharpest = 0;
  const auto meet = [&sharpest](double radius) {
    if (radius > 0 && (sharpest == 0 || radius < sharpest))
      sharpest = radius;
  };
  for (const WayStretch& stretch : way.stretches) {
    const PieceDef& definition = *definitionOf(*layout.findPiece(stretch.piece));
    for (const RouteSegment& segment :
         routeBetween(definition, stretch.enter, stretch.leave)->segments) {
      if (const auto* arc = std::get_if<ArcSegment>(&segment))
        meet(arc->radius);
      else if (std::holds_alternative<SmoothSegment>(segment))
        meet(definition.radius);
    }
  }
  return sharpest;
}

} // namespace trassix
