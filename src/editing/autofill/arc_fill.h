// Which arcs lead from one open end to another.
#pragma once

#include "editing/track/connector_geometry.h"

#include <vector>

namespace trassix {

inline constexpr double kArcClosure = 2.0; ///< mm

/// An arc that leaves the start end along its heading and arrives facing the other end.
struct ConnectingArc {
  double radius = 0; ///< mm
  double turn = 0;   ///< degrees, positive to the right
  double miss = 0;   ///< mm from where it ends to the other end
};

/// At most one arc to each side. The circle leads through the other end; the arc misses it when
/// that does not face as the circle does there. Ends a micrometre apart have none.
std::vector<ConnectingArc> connectingArcs(const WorldConnector& start, const WorldConnector& end);

} // namespace trassix
