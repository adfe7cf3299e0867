// The way that a train takes from one end of track to another.
#pragma once

#include "editing/elevation/end_heights.h"

#include <cstdint>
#include <vector>

namespace trassix {

class Layout;

/// A piece that the way leads through. Lengths in mm, as long as the route.
struct WayStretch {
  std::int32_t piece = -1; ///< id
  std::int32_t enter = -1; ///< its connectors
  std::int32_t leave = -1;
  double length = 0;
  double from = 0; ///< height of the end where the train enters
  double to = 0;   ///< and where it leaves

  /// Rise over length of way.
  double slope() const { return length > 0 ? (to - from) / length : 0; }
};

struct TrainWay {
  std::vector<WayStretch> stretches;

  bool empty() const { return stretches.empty(); }
  double length() const;
  double rise() const { return empty() ? 0 : stretches.back().to - stretches.front().from; }
  TrackEnd start() const { return {stretches.front().piece, stretches.front().enter}; }
  TrackEnd end() const { return {stretches.back().piece, stretches.back().leave}; }

  /// Whether it leads through a piece twice, as through both lines of a crossing.
  bool crossesItself() const;
};

/// The ways from one end to another, the shortest first, at most `most`: through each piece along
/// one of its routes, over joints, never back. It starts through the piece of the end `from` or
/// beyond its joint, and likewise ends on either side of the joint at `to`. The shortest is exact;
/// the others each turn off a way that is there, as onto the other track of a station.
std::vector<TrainWay> trainWays(const Layout& layout, TrackEnd from, TrackEnd to,
                                std::size_t most = 4);

/// Both ways on from a piece, the one that comes in at its end `enter` turned round, as one:
/// straight on at turnouts (the first route that leads on), to open ends or once round. A branch
/// chooses another end to leave a piece by.
struct BranchChoice {
  std::int32_t piece = -1;
  std::int32_t leave = -1;
  std::int32_t enter = -1; ///< by which the piece in question is come to; -1: any
};
TrainWay wayThrough(const Layout& layout, std::int32_t piece,
                    const std::vector<BranchChoice>& branches = {});

/// The piece and end joined here, when both sides say so and the article is known.
TrackEnd beyond(const Layout& layout, TrackEnd end);

} // namespace trassix
