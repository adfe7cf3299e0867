#include "editing/supports/span_graph.h"

#include "document/layout.h"
#include "document/plan_content.h"
#include "editing/elevation/end_heights.h"
#include "editing/elevation/train_way.h"
#include "editing/track/connector_geometry.h"
#include "editing/track/track_geometry.h"

#include <algorithm>
#include <cmath>

namespace trassix {

namespace {

constexpr double kChordPlay = 0.05; // mm
constexpr double kSampleStep = 20;  // mm, close enough to see the edge of a plate below
constexpr double kFollowed = 3;     // times the longest span

bool isRaised(double height, const Ground& ground) {
  // Off the board there is nothing to stand on, which does not make it less raised.
  return ground.kind == GroundKind::None ? height > kRaised : height - ground.height > kRaised;
}

bool anyRaised(const SpanEdge& edge, const Grounds& grounds) {
  return std::ranges::any_of(edge.line, [&](const RoutePoint& at) {
    const double height = edge.heightAt(at.along);
    return isRaised(height, grounds.below(toWorld(edge.frame, at.position), height));
  });
}

class Walk {
 public:
  Walk(const SpanGraph& graph, TrackSystem system, std::vector<SpanPath>& found)
      : graph_(graph), farthest_(kFollowed * longestSpan(system)), found_(found) {}

  /// From a place on an edge towards one of its ends.
  void go(std::size_t edge, double along, bool onwards) {
    const SpanEdge& at = graph_.edges[edge];
    const std::vector<double>& stops = at.stops;
    if (onwards) {
      const auto next = std::ranges::upper_bound(stops, along);
      if (next != stops.end())
        return finish({edge, along, *next});
    } else {
      const auto next = std::ranges::lower_bound(stops, along);
      if (next != stops.begin())
        return finish({edge, along, *(next - 1)});
    }
    const SpanPath::Part part{edge, along, onwards ? at.length() : 0};
    const SpanJoint& joint = graph_.joints[at.joints[onwards ? 1 : 0]];
    if (joint.held)
      return finish(part);
    cross(part, joint);
  }

 private:
  void cross(const SpanPath::Part& part, const SpanJoint& joint) {
    const PierObstacle before = path_.obstacle;
    path_.parts.push_back(part);
    if (before == PierObstacle::None)
      path_.obstacle = joint.obstacle;
    bool ends = true;
    for (const SpanJoint::Link& link : joint.links) {
      if (graph_.edges[link.edge].piece == graph_.edges[part.edge].piece)
        continue;
      ends = false;
      if (path_.length() > farthest_ || passed(link.edge))
        keep();
      else
        go(link.edge, link.end == 0 ? 0 : graph_.edges[link.edge].length(), link.end == 0);
    }
    if (ends)
      keep();
    path_.parts.pop_back();
    path_.obstacle = before;
  }

  bool passed(std::size_t edge) const {
    return std::ranges::any_of(path_.parts,
                               [edge](const SpanPath::Part& part) { return part.edge == edge; });
  }

  void finish(const SpanPath::Part& last) {
    path_.parts.push_back(last);
    path_.reaches = true;
    keep();
    path_.reaches = false;
    path_.parts.pop_back();
  }

  void keep() {
    const auto reverse = [](const SpanPath::Part& a, const SpanPath::Part& b) {
      return a.edge == b.edge && a.from == b.to && a.to == b.from;
    };
    const auto isBackwards = [&](const SpanPath& other) {
      return std::equal(other.parts.begin(), other.parts.end(), path_.parts.rbegin(),
                        path_.parts.rend(), reverse);
    };
    const auto raised = [&](const SpanPath::Part& part) { return graph_.edges[part.edge].raised; };
    if (path_.length() > 0 && std::ranges::any_of(path_.parts, raised) &&
        std::ranges::none_of(found_, isBackwards))
      found_.push_back(path_);
  }

  const SpanGraph& graph_;
  double farthest_;
  std::vector<SpanPath>& found_;
  SpanPath path_;
};

} // namespace

Pose SpanEdge::poseAt(double along) const {
  const RoutePoint at = pointAlong(line, along);
  const Point place = toWorld(frame, at.position);
  return {place.x, place.y, normaliseHeading(frame.heading + at.heading)};
}

double SpanPath::length() const {
  double sum = 0;
  for (const Part& part : parts)
    sum += part.length();
  return sum;
}

SpanGraph::SpanGraph(const Layout& layout, const Grounds& grounds) {
  for (const PlacedPiece& piece : layout.pieces()) {
    const PieceDef* definition = definitionOf(piece);
    if (definition == nullptr || definition->kind == PieceKind::Turntable)
      continue;
    for (const Route& route : routesOf(*definition)) {
      SpanEdge edge;
      edge.piece = piece.id;
      edge.definition = definition;
      edge.frame = poseOf(piece);
      edge.line = sampleRoute(route, kChordPlay, kSampleStep);
      edge.from = endHeight(piece, *definition, route.from);
      edge.to = route.to == -1 ? edge.from : endHeight(piece, *definition, route.to);
      edge.bridge = bridgeKindOf(*definition);
      edge.raised = piece.helix < 0 && anyRaised(edge, grounds);
      edge.joints = {jointAt(layout, piece, *definition, route.from, grounds),
                     jointAt(layout, piece, *definition, route.to, grounds)};
      for (std::size_t end = 0; end < 2; ++end)
        joints[edge.joints[end]].links.push_back({edges.size(), end});
      edges.push_back(std::move(edge));
    }
  }
}

std::size_t SpanGraph::jointAt(const Layout& layout, const PlacedPiece& piece,
                               const PieceDef& definition, std::int32_t connector,
                               const Grounds& grounds) {
  const TrackEnd own{piece.id, connector};
  const TrackEnd other = connector == -1 ? TrackEnd{} : beyond(layout, own);
  const auto [place, fresh] = known_.try_emplace(own, joints.size());
  if (!fresh)
    return place->second;
  if (other.piece != -1)
    known_.emplace(other, joints.size());
  SpanJoint joint;
  const WorldConnector end = ConnectorToWorld(piece, definition, std::max(connector, 0));
  joint.pose = {end.x, end.y, end.heading};
  if (connector == -1) { // where a buffer stands
    const Point at = toWorld(joint.pose, {-definition.length, 0});
    joint.pose.x = at.x;
    joint.pose.y = at.y;
  }
  joint.height = endHeight(piece, definition, std::max(connector, 0));
  joint.ground = grounds.below({joint.pose.x, joint.pose.y}, joint.height);
  const PlacedPiece* mate = layout.findPiece(other.piece);
  const bool onRing = piece.helix >= 0 || (mate != nullptr && mate->helix >= 0);
  joint.raised = !onRing && isRaised(joint.height, joint.ground);
  joint.held = !joint.raised;
  joints.push_back(joint);
  return joints.size() - 1;
}

std::vector<SpanPath> SpanGraph::paths() const {
  std::vector<SpanPath> found;
  for (std::size_t i = 0; i < edges.size(); ++i) {
    const SpanEdge& edge = edges[i];
    std::vector<SpanPath> here; // what reaches a support is found from there as well
    Walk walk(*this, edge.definition->system, here);
    if (joints[edge.joints[0]].held)
      walk.go(i, 0, true);
    if (joints[edge.joints[1]].held)
      walk.go(i, edge.length(), false);
    for (const double stop : edge.stops) {
      walk.go(i, stop, true);
      walk.go(i, stop, false);
    }
    for (SpanPath& path : here)
      if (!path.reaches || path.parts.back().edge >= i)
        found.push_back(std::move(path));
  }
  addUnheld(found);
  return found;
}

void SpanGraph::addUnheld(std::vector<SpanPath>& paths) const {
  std::vector<bool> known(edges.size());
  for (const SpanPath& path : paths)
    for (const SpanPath::Part& part : path.parts)
      known[part.edge] = true;
  for (std::size_t first = 0; first < edges.size(); ++first) {
    if (known[first] || !edges[first].raised || !edges[first].stops.empty())
      continue;
    SpanPath path;
    path.unheld = true;
    std::vector<std::size_t> open{first};
    known[first] = true;
    while (!open.empty()) {
      const std::size_t edge = open.back();
      open.pop_back();
      path.parts.push_back({edge, 0, edges[edge].length()});
      for (const std::size_t end : edges[edge].joints) {
        if (path.obstacle == PierObstacle::None)
          path.obstacle = joints[end].obstacle;
        for (const SpanJoint::Link& link : joints[end].links)
          if (!known[link.edge] && edges[link.edge].raised && edges[link.edge].stops.empty()) {
            known[link.edge] = true;
            open.push_back(link.edge);
          }
      }
    }
    paths.push_back(std::move(path));
  }
}

void SpanGraph::addStop(std::size_t edge, double along) {
  const Pose at = edges[edge].poseAt(along);
  const double half = trackHalfWidth(edges[edge].definition->system) / 2;
  const auto put = [](SpanEdge& to, double where) {
    if (where > 0 && where < to.length())
      to.stops.insert(std::ranges::upper_bound(to.stops, where), where);
  };
  put(edges[edge], along);
  std::size_t first = edge; // the edges of a piece stand together
  while (first > 0 && edges[first - 1].piece == edges[edge].piece)
    --first;
  for (std::size_t i = first; i < edges.size() && edges[i].piece == edges[edge].piece; ++i) {
    SpanEdge& other = edges[i];
    if (i == edge)
      continue;
    double nearest = half;
    double where = 0;
    for (const RoutePoint& point : other.line) {
      const Point p = toWorld(other.frame, point.position);
      if (const double d = std::hypot(p.x - at.x, p.y - at.y); d < nearest) {
        nearest = d;
        where = point.along;
      }
    }
    put(other, where);
  }
}

} // namespace trassix
