// Where a pier can stand without being in anybody's way. Lengths in mm.
#pragma once

#include "catalog/track_system.h"
#include "editing/supports/grounds.h"
#include "geometry/box_tree.h"
#include "geometry/pose.h"

#include <cstdint>
#include <span>
#include <vector>

namespace trassix {

/// What keeps a pier from standing somewhere.
enum class PierObstacle : std::uint8_t { None, Track, Road, Ground };

/// A pier as it would stand; `along` and `across` are its size in the direction of the track that
/// it carries.
struct PierSpot {
  Pose pose;
  double along = 0;
  double across = 0;
  double foot = 0;
  double head = 0;
};

/// Half the width that trains need on straight track.
double halfFreeWidth(TrackSystem system);

/// The clearances of all track of a plan, and its roads.
class PierRoom {
 public:
  explicit PierRoom(const Layout& layout);

  /// `carried` are the pieces that stand on the pier.
  PierObstacle obstacleAt(const PierSpot& spot, std::span<const std::int32_t> carried) const;

 private:
  struct Reach { ///< a stretch of lower track with what has to stay free about it
    std::int32_t piece = -1;
    Point from;
    Point to;
    double half = 0;
    double bottom = 0;
    double top = 0;
  };
  struct Road {
    Polygon outline;
    double height = 0;
  };

  void addTrack(const PlacedPiece& piece);
  void addTurntable(const PlacedPiece& piece);

  std::vector<Reach> reaches_;
  std::vector<Road> roads_;
  BoxTree tree_;
};

} // namespace trassix
