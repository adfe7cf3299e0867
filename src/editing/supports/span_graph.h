// Track as joints and what leads from one to another, to walk from support to support. Lengths in
// mm.
#pragma once

#include "catalog/piece_def.h"
#include "editing/supports/bridge_kind.h"
#include "editing/supports/supports.h"
#include "editing/track/routes.h"
#include "editing/track/track_end.h"

#include <array>
#include <cstdint>
#include <map>
#include <vector>

namespace trassix {

class Layout;

struct SpanJoint {
  Pose pose; ///< with the direction of the track
  double height = 0;
  Ground ground;
  bool raised = false;
  bool held = false; ///< by the ground, a ring deck, or a support
  PierObstacle obstacle = PierObstacle::None;
  struct Link {
    std::size_t edge = 0;
    std::size_t end = 0;
  };
  std::vector<Link> links;
};

/// A way through a piece.
struct SpanEdge {
  std::int32_t piece = -1;
  const PieceDef* definition = nullptr;
  Pose frame;
  std::vector<RoutePoint> line;
  std::array<std::size_t, 2> joints{};
  double from = 0; ///< heights of its ends
  double to = 0;
  BridgeKind bridge = BridgeKind::None;
  bool raised = false;       ///< anywhere
  std::vector<double> stops; ///< where supports stand between the ends, in order

  double length() const { return line.back().along; }
  double heightAt(double along) const { return from + (to - from) * along / length(); }
  Pose poseAt(double along) const;
};

/// A walk through edges from one support to the next.
struct SpanPath {
  struct Part {
    std::size_t edge = 0;
    double from = 0; ///< along the edge; larger than `to` when walked backwards
    double to = 0;

    double length() const { return from < to ? to - from : from - to; }
  };
  std::vector<Part> parts;
  PierObstacle obstacle = PierObstacle::None; ///< the first that kept a pier from a joint on it
  bool reaches = false;                       ///< another support, not only an open end
  bool unheld = false;                        ///< nothing holds it anywhere

  double length() const;
};

struct SpanGraph {
  std::vector<SpanJoint> joints;
  std::vector<SpanEdge> edges;

  SpanGraph(const Layout& layout, const Grounds& grounds);

  /// Every raised stretch between neighbouring supports, once. Track that has none for far too long
  /// is not followed any farther: what is left of it comes in one path for each part that hangs
  /// together.
  std::vector<SpanPath> paths() const;

  /// Puts a support between the ends of an edge, and of the others of its piece that run there.
  void addStop(std::size_t edge, double along);

 private:
  void addUnheld(std::vector<SpanPath>& paths) const;
  std::size_t jointAt(const Layout& layout, const PlacedPiece& piece, const PieceDef& definition,
                      std::int32_t connector, const Grounds& grounds);

  std::map<TrackEnd, std::size_t> known_;
};

} // namespace trassix
