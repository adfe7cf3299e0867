#include "editing/supports/supports.h"

#include "catalog/scenery_catalog.h"
#include "document/layout.h"
#include "document/plan_content.h"
#include "editing/elevation/end_heights.h"
#include "editing/helix/helix_plan.h"
#include "editing/supports/span_graph.h"
#include "editing/track/connector_geometry.h"
#include "editing/track/track_geometry.h"
#include "editing/tunnels/tunnel_figures.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <set>

namespace trassix {

namespace {

constexpr double kH0Span = 360;       // mm
constexpr double kStepShare = 5.0;    // mm in H0 by which a pier is moved to find a place
constexpr double kLongestMove = 90.0; // mm in H0
constexpr int kRounds = 3;            // of filling long spans, each of which may shorten others
constexpr int kTurns = 12;            // directions of a frame that are tried
constexpr double kFarthestLeg = 260;  // mm in H0 from the track's middle
constexpr double kLongestGap = 2;     // longest spans; more is track beside other track
constexpr double kBeam = 20;          // mm in H0
constexpr int kRods = 8;              // around a helix
constexpr double kRodSize = 6;        // mm
constexpr double kRodTurn = 5;        // degrees by which a rod moves aside
constexpr int kRodMoves = 3;
constexpr double kRodTop = 15; // mm by which rods stand out above the top ring

SupportSpan::Reason reasonOf(PierObstacle obstacle) {
  switch (obstacle) {
  case PierObstacle::Road:
    return SupportSpan::Reason::Road;
  case PierObstacle::Ground:
    return SupportSpan::Reason::Ground;
  default:
    return SupportSpan::Reason::Track;
  }
}

class Planner {
 public:
  explicit Planner(const Layout& layout)
      : layout_(layout), grounds_(layout), room_(layout), graph_(layout, grounds_) {}

  SupportPlan run() {
    for (SpanJoint& joint : graph_.joints)
      if (joint.raised)
        holdJoint(joint);
    std::vector<SpanPath> paths = graph_.paths();
    for (int round = 0; round < kRounds && fill(paths); ++round)
      paths = graph_.paths();
    if (frameFlatCrossings())
      paths = graph_.paths();
    for (int round = 0; round < kRounds && frame(paths); ++round)
      paths = graph_.paths();
    for (const SpanPath& path : paths)
      plan_.spans.push_back(spanOf(path));
    for (const PlacedPiece& piece : layout_.pieces())
      holdTurntable(piece);
    for (const Helix& helix : layout_.content().helices)
      hangHelix(helix);
    plan_.posts = deckPosts(layout_, grounds_, room_);
    return std::move(plan_);
  }

 private:
  static double scaleOf(TrackSystem system) { return longestSpan(system) / kH0Span; }

  /// Puts a pier there if one has room, narrow if need be, and returns what is in the way.
  PierObstacle tryPier(const Pose& pose, double head, TrackSystem system,
                       std::span<const std::int32_t> carried) {
    const Ground ground = grounds_.below({pose.x, pose.y}, head);
    if (ground.kind == GroundKind::None)
      return PierObstacle::Ground;
    const PierSize size = pierSize(system);
    PierObstacle obstacle = PierObstacle::None;
    for (const double across : {size.across, 2 * trackHalfWidth(system)}) {
      obstacle = room_.obstacleAt({pose, size.along, across, ground.height, head}, carried);
      if (obstacle == PierObstacle::None) {
        plan_.supports.push_back({SupportKind::Pier, carried.front(), pose, ground.height, head,
                                  size.along, across, ground, 0});
        return obstacle;
      }
    }
    return obstacle;
  }

  std::vector<std::int32_t> carriedBy(const SpanJoint& joint) const {
    std::vector<std::int32_t> pieces;
    for (const SpanJoint::Link& link : joint.links)
      pieces.push_back(graph_.edges[link.edge].piece);
    return pieces;
  }

  void holdJoint(SpanJoint& joint) {
    const std::vector<std::int32_t> carried = carriedBy(joint);
    const TrackSystem system = graph_.edges[joint.links.front().edge].definition->system;
    joint.obstacle = tryPier(joint.pose, joint.height, system, carried);
    joint.held = joint.obstacle == PierObstacle::None;
    const double step = kStepShare * scaleOf(system);
    for (double move = step; !joint.held && move <= kLongestMove * scaleOf(system); move += step)
      for (const SpanJoint::Link& link : joint.links)
        if (pierBeside(link, move, system, carried))
          return;
  }

  /// On an edge that leaves the joint, where it does not come nearer to the next one.
  bool pierBeside(const SpanJoint::Link& link, double move, TrackSystem system,
                  std::span<const std::int32_t> carried) {
    const SpanEdge& edge = graph_.edges[link.edge];
    const double along = link.end == 0 ? move : edge.length() - move;
    return !(2 * move > edge.length()) && edge.bridge == BridgeKind::None && edge.raised &&
           !hasStopNear(edge, along, move) &&
           pierOn(link.edge, along, system, carried) == PierObstacle::None;
  }

  static bool hasStopNear(const SpanEdge& edge, double along, double near) {
    return std::ranges::any_of(edge.stops,
                               [&](double stop) { return std::abs(stop - along) < near; });
  }

  PierObstacle pierOn(std::size_t edge, double along, TrackSystem system,
                      std::span<const std::int32_t> carried) {
    const PierObstacle obstacle = tryPier(graph_.edges[edge].poseAt(along),
                                          graph_.edges[edge].heightAt(along), system, carried);
    if (obstacle == PierObstacle::None) {
      plan_.supports.back().piece = graph_.edges[edge].piece;
      graph_.addStop(edge, along);
    }
    return obstacle;
  }

  TrackSystem systemOf(const SpanPath& path) const {
    return graph_.edges[path.parts.front().edge].definition->system;
  }

  /// Puts piers into spans that are too long. Whether any found a place.
  bool fill(const std::vector<SpanPath>& paths) {
    bool any = false;
    std::set<std::size_t> touched;
    for (const SpanPath& path : paths) {
      const auto known = [&](const SpanPath::Part& part) { return touched.contains(part.edge); };
      if (path.length() <= longestSpan(systemOf(path)) || std::ranges::any_of(path.parts, known))
        continue;
      for (const SpanPath::Part& part : path.parts)
        touched.insert(part.edge);
      any = fill(path) || any;
    }
    return any;
  }

  bool fill(const SpanPath& path) {
    const TrackSystem system = systemOf(path);
    const double longest = longestSpan(system);
    const double step = kStepShare * scaleOf(system);
    const double least = pierSize(system).along;
    bool any = false;
    double done = 0;
    for (double left = path.length(); left > longest; left = path.length() - done) {
      const double want = done + left / std::ceil(left / longest);
      std::optional<double> found;
      for (double off = 0; !found && off < longest; off += step)
        for (const double at : {want - off, want + off})
          if (!found && at > done + least && at < done + left - least && pierAt(path, at))
            found = at;
      any = any || found;
      done = found ? *found : done + longest;
    }
    return any;
  }

  /// So far along a path, if a pier can carry the track there.
  bool pierAt(const SpanPath& path, double at) {
    const auto [part, along] = placeOn(path, at);
    const SpanEdge& edge = graph_.edges[part];
    const std::int32_t carried[] = {edge.piece};
    return edge.bridge == BridgeKind::None && edge.raised &&
           pierOn(part, along, edge.definition->system, carried) == PierObstacle::None;
  }

  /// The edge and the place along it.
  std::pair<std::size_t, double> placeOn(const SpanPath& path, double at) const {
    for (const SpanPath::Part& part : path.parts) {
      if (at <= part.length())
        return {part.edge, part.from < part.to ? part.from + at : part.from - at};
      at -= part.length();
    }
    return {path.parts.back().edge, path.parts.back().to};
  }

  /// Puts frames under joints of spans that are too long over other track. Whether any found a
  /// place.
  bool frame(const std::vector<SpanPath>& paths) {
    bool any = false;
    for (const SpanPath& path : paths) {
      const TrackSystem system = systemOf(path);
      if (path.length() <= longestSpan(system) || path.unheld)
        continue;
      std::vector<std::pair<double, std::size_t>> joints; // the one in the middle first
      double along = 0;
      for (std::size_t i = 0; i + 1 < path.parts.size(); ++i) {
        const SpanPath::Part& part = path.parts[i];
        along += part.length();
        const std::size_t joint = graph_.edges[part.edge].joints[part.from < part.to ? 1 : 0];
        if (graph_.joints[joint].obstacle == PierObstacle::Track)
          joints.emplace_back(std::abs(along - path.length() / 2), joint);
      }
      std::ranges::sort(joints);
      const bool framed = std::ranges::any_of(joints, [this](const auto& joint) {
        SpanJoint& at = graph_.joints[joint.second];
        return at.held || frameUnder(at);
      });
      any = any || framed ||
            (reasonOf(path.obstacle) == SupportSpan::Reason::Track && frameBetween(path));
    }
    return any;
  }

  /// Joints over track that crosses so flatly that piers of full size would stand too far apart:
  /// narrow ones may find room, but carry no more than their share.
  bool frameFlatCrossings() {
    bool any = false;
    for (SpanJoint& joint : graph_.joints)
      if (joint.raised && !joint.held && joint.obstacle == PierObstacle::Track &&
          joint.links.size() == 2) {
        const TrackSystem system = graph_.edges[joint.links.front().edge].definition->system;
        const double gap = blockedFrom(joint, 0) + blockedFrom(joint, 1);
        if (gap > longestSpan(system) && gap < kLongestGap * longestSpan(system))
          any = frameUnder(joint) || any;
      }
    return any;
  }

  /// mm of way from a joint on where no pier of full size has room; the most where nothing tells.
  double blockedFrom(const SpanJoint& from, std::size_t side) const {
    const TrackSystem system = graph_.edges[from.links.front().edge].definition->system;
    const PierSize size = pierSize(system);
    const double step = kStepShare * scaleOf(system);
    double gone = 0;
    SpanJoint::Link link = from.links[side];
    std::vector<std::int32_t> carried;
    for (const SpanJoint::Link& each : from.links)
      carried.push_back(graph_.edges[each.edge].piece);
    while (gone < kLongestGap * longestSpan(system)) {
      const SpanEdge& edge = graph_.edges[link.edge];
      carried.push_back(edge.piece);
      const SpanJoint& next = graph_.joints[edge.joints[1 - link.end]];
      for (const SpanJoint::Link& each : next.links)
        carried.push_back(graph_.edges[each.edge].piece);
      for (double at = 0; at < edge.length(); at += step) {
        const double along = link.end == 0 ? at : edge.length() - at;
        const Pose pose = edge.poseAt(along);
        const double head = edge.heightAt(along);
        const double foot = grounds_.below({pose.x, pose.y}, head).height;
        if (room_.obstacleAt({pose, size.along, size.across, foot, head}, carried) !=
            PierObstacle::Track)
          return gone + at;
      }
      gone += edge.length();
      if (next.links.size() != 2)
        return kLongestGap * longestSpan(system);
      link = next.links[next.links[0].edge == link.edge ? 1 : 0];
    }
    return gone;
  }

  bool frameUnder(SpanJoint& joint) {
    const std::vector<std::int32_t> carried = carriedBy(joint);
    const TrackSystem system = graph_.edges[joint.links.front().edge].definition->system;
    joint.held = narrowestFrame(joint.pose, joint.height, system, carried);
    return joint.held;
  }

  /// Where no joint can be carried, as where one long piece leads over everything.
  bool frameBetween(const SpanPath& path) {
    const double half = path.length() / 2;
    const double step = kStepShare * scaleOf(systemOf(path));
    for (double off = 0; off < half; off += step)
      for (const double at : {half - off, half + off}) {
        const auto [part, along] = placeOn(path, at);
        const SpanEdge& edge = graph_.edges[part];
        if (edge.bridge != BridgeKind::None || !edge.raised ||
            !narrowestFrame(edge.poseAt(along), edge.heightAt(along), edge.definition->system,
                            {edge.piece}))
          continue;
        graph_.addStop(part, along);
        return true;
      }
    return false;
  }

  /// The frame there that spans least, of those in all directions.
  bool narrowestFrame(Pose pose, double head, TrackSystem system,
                      const std::vector<std::int32_t>& carried) {
    std::optional<Support> narrowest;
    for (int turn = 0; turn < kTurns; ++turn) {
      const std::optional<Support> found = frameAt(pose, head, system, carried);
      if (found && (!narrowest || found->across < narrowest->across - kStepShare))
        narrowest = found;
      pose.heading = normaliseHeading(pose.heading + 180.0 / kTurns);
    }
    if (narrowest)
      plan_.supports.push_back(*narrowest);
    return narrowest.has_value();
  }

  /// A frame whose legs stand beside `pose`, across its heading, as near as there is room.
  std::optional<Support> frameAt(const Pose& pose, double head, TrackSystem system,
                                 const std::vector<std::int32_t>& carried) const {
    const double leg = pierSize(system).along;
    const double step = kStepShare * scaleOf(system);
    Support frame{SupportKind::Portal, carried.front(), pose, 0, head, leg, 0, {},
                  portalBeam(system)};
    double reach[2]{};
    for (int side = 0; side < 2; ++side) {
      double off = leg;
      for (; off <= kFarthestLeg * scaleOf(system); off += step) {
        const Point at = toWorld(pose, {0, side == 0 ? -off : off});
        const Ground ground = grounds_.below(at, head - portalBeam(system));
        if (ground.kind == GroundKind::None || (side == 1 && ground.height != frame.foot))
          continue;
        if (room_.obstacleAt({{at.x, at.y, pose.heading}, leg, leg, ground.height, head},
                             carried) != PierObstacle::None)
          continue;
        frame.foot = ground.height;
        frame.ground = ground;
        reach[side] = off;
        break;
      }
      if (reach[side] == 0)
        return std::nullopt;
    }
    const Point middle = toWorld(pose, {0, (reach[1] - reach[0]) / 2});
    frame.pose = {middle.x, middle.y, pose.heading};
    frame.across = reach[0] + reach[1] + leg;
    const PierSpot beam{frame.pose, leg, frame.across, head - portalBeam(system), head};
    return room_.obstacleAt(beam, carried) == PierObstacle::None ? std::optional(frame)
                                                                 : std::nullopt;
  }

  SupportSpan spanOf(const SpanPath& path) const {
    SupportSpan span;
    span.length = path.length();
    double onBridge = 0;
    for (const SpanPath::Part& part : path.parts) {
      const SpanEdge& edge = graph_.edges[part.edge];
      span.pieces.push_back(edge.piece);
      if (edge.bridge != BridgeKind::None) {
        span.bridge = edge.bridge;
        onBridge += part.length();
      }
    }
    const double longest = longestSpan(systemOf(path));
    if (span.length > longest || path.unheld)
      span.reason = onBridge > longest ? SupportSpan::Reason::Bridge : reasonOf(path.obstacle);
    return span;
  }

  /// Turntables stand on four piers.
  void holdTurntable(const PlacedPiece& piece) {
    const PieceDef* definition = definitionOf(piece);
    if (definition == nullptr || definition->kind != PieceKind::Turntable)
      return;
    const Ground ground = grounds_.below({piece.x, piece.y}, piece.z);
    if (ground.kind == GroundKind::None || piece.z - ground.height <= kRaised)
      return;
    const std::int32_t carried[] = {piece.id};
    for (const double turn : {45, 135, 225, 315}) {
      const Point at =
          toWorld({piece.x, piece.y, piece.heading + turn}, {definition->radius / 2, 0});
      tryPier({at.x, at.y, normaliseHeading(piece.heading + turn)}, piece.z, definition->system,
              carried);
    }
  }

  void hangHelix(const Helix& record) {
    const std::optional<HelixPlan> helix = planOfHelix(layout_, record);
    if (!helix)
      return;
    std::vector<std::int32_t> own;
    for (const PlacedPiece& piece : layout_.pieces())
      if (piece.helix == record.id)
        own.push_back(piece.id);
    if (own.empty()) // a file may say that its pieces are of none
      return;
    const TrackSystem system = helix->kit->system;
    const auto beside = [&](const PieceDef& curve) {
      return std::max(halfFreeWidth(system), trackHalfWidth(system)) +
             sideAddition(system, curve.radius) + kRodSize;
    };
    for (int i = 0; i < kRods; ++i) {
      const double turn = 360.0 / kRods * (i + 0.5);
      rodAt(*helix, own, helix->kit->outermost().radius + beside(helix->kit->outermost()), turn);
      rodAt(*helix, own, helix->kit->inner->radius - beside(*helix->kit->inner), turn);
    }
  }

  void rodAt(const HelixPlan& helix, const std::vector<std::int32_t>& own, double radius,
             double turn) {
    for (int move = 0; move <= 2 * kRodMoves; ++move) {
      const double aside = (move % 2 == 0 ? 1 : -1) * kRodTurn * ((move + 1) / 2);
      const Pose spoke{helix.centre.x, helix.centre.y, helix.centre.heading + turn + aside};
      const Point at = toWorld(spoke, {radius, 0});
      const Ground ground = grounds_.below(at, helix.height);
      const double head = helix.height + helix.climb() + kRodTop * scaleOf(helix.kit->system);
      const Pose pose{at.x, at.y, normaliseHeading(spoke.heading)};
      if (ground.kind == GroundKind::None ||
          room_.obstacleAt({pose, kRodSize, kRodSize, ground.height, head}, own) !=
              PierObstacle::None)
        continue;
      plan_.supports.push_back({SupportKind::Rod, own.front(), pose, ground.height, head, kRodSize,
                                kRodSize, ground, 0});
      return;
    }
  }

  const Layout& layout_;
  Grounds grounds_;
  PierRoom room_;
  SpanGraph graph_;
  SupportPlan plan_;
};

} // namespace

double portalBeam(TrackSystem system) {
  return kBeam * longestSpan(system) / kH0Span;
}

std::vector<Support> standingParts(const Support& support) {
  if (support.kind != SupportKind::Portal)
    return {support};
  std::vector<Support> legs;
  for (const double side : {-1, 1}) {
    Support leg = support;
    const Point at = toWorld(support.pose, {0, side * (support.across - support.along) / 2});
    leg.pose = {at.x, at.y, support.pose.heading};
    leg.across = support.along;
    legs.push_back(leg);
  }
  return legs;
}

PierSize pierSize(TrackSystem system) {
  const Footprint size = findScenery("br.pier")->footprint(system);
  return {size.depth, size.width}; // the item's width lies across the track
}

double longestSpan(TrackSystem system) {
  switch (gaugeOf(system)) {
  case Gauge::Z:
    return 140;
  case Gauge::Gauge1:
    return 980;
  case Gauge::H0:
    break;
  }
  return kH0Span;
}

SupportPlan supportsOf(const Layout& layout) {
  return Planner(layout).run();
}

} // namespace trassix
