// The track that a tunnel can be made over.
#pragma once

#include "editing/elevation/train_way.h"
#include "editing/track/connector_geometry.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace trassix {

/// Why no tunnel can be made.
struct TunnelProblem {
  const char* brief = nullptr; ///< marked for translation, for a command that cannot be used
  std::string text;            ///< one sentence that names the place

  static TunnelProblem plain(const char* why);
  explicit operator bool() const { return brief != nullptr; }
};

/// Pieces joined one after another, each once, or two such chains side by side at a distance of
/// double track.
struct TunnelChains {
  /// The first holds the smallest id and starts at that of its two end pieces which has the smaller
  /// one; a second one runs the same way.
  std::vector<TrainWay> ways;
  std::vector<std::int32_t> branches; ///< pieces at which other track leaves the chains, sorted
  TunnelProblem problem;              ///< why there is no such chain
};

/// Chains may lead through turnouts and crossings, whose other ends count as branches where track
/// goes on that is none of these pieces (sorted ids).
TunnelChains tunnelChains(const Layout& layout, std::span<const std::int32_t> pieces);

/// An end of a chain, with where track leaves it.
WorldConnector outerEnd(const Layout& layout, TrackEnd end);

/// Points along the way, closer together in curves, with the direction of travel.
std::vector<Pose> posesAlong(const Layout& layout, const TrainWay& way);

/// How far a point lies to the right of the end and how far before it, in mm.
struct BesideEnd {
  double right = 0;
  double ahead = 0;
};
BesideEnd besideEnd(const WorldConnector& end, Point at);

/// How many mm the radius of the sharpest curve on the way is, 0 when it has none.
double sharpestRadius(const Layout& layout, const TrainWay& way);

} // namespace trassix
