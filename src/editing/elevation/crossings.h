// Where track leads over other track.
#pragma once

#include "catalog/track_system.h"
#include "geometry/point.h"

#include <cstdint>
#include <vector>

namespace trassix {

class Layout;

/// Vertical figures of the trade, in mm.
inline constexpr double kDeckThickness = 10; ///< of what carries the upper track
double railTop(TrackSystem system);          ///< above what the track lies on
/// The least from the rails to the underside of what is above them.
double leastClearance(TrackSystem system, bool wire = false);

/// One of two tracks that cross.
struct CrossedTrack {
  std::int32_t piece = -1; ///< id
  std::int32_t from = -1;  ///< the route that crosses: its connectors; `to` may be -1
  std::int32_t to = -1;
  double along = 0;  ///< mm of way from the end `from`
  double height = 0; ///< of the track there, as its ends' heights are given

  bool operator==(const CrossedTrack&) const = default;
};

struct TrackCrossing {
  Point at;
  CrossedTrack lower;
  CrossedTrack upper;
  double clearance = 0; ///< from the lower rails to the underside of the upper deck, mm
  double least = 0;     ///< what trains on the lower track need

  bool tooLow() const { return clearance < least - 0.05; }
  bool operator==(const TrackCrossing&) const = default;
};

/// All places where a route of one piece crosses that of another in the plan without being joined
/// to it there, in document order. Track that runs on, or lies along, other track crosses nothing;
/// a place at a joint is told once.
std::vector<TrackCrossing> trackCrossings(const Layout& layout, bool wire = false);

} // namespace trassix
