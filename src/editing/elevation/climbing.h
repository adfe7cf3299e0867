// Track that climbs on from an end.
#pragma once

#include "editing/elevation/end_heights.h"

#include <cstdint>
#include <span>
#include <vector>

namespace trassix {

class Layout;

/// Where a climb begins: the end `start` of a piece comes to lie at `height`, and a train that goes
/// from there to the piece's end `towards` climbs with `slope`. A piece without a grade of its own
/// is only lifted.
struct ClimbStart {
  TrackEnd start;
  std::int32_t towards = -1;
  double height = 0;
  double slope = 0;
};

/// Lays all of `pieces` (sorted ids) that hang together with the start, at its slope: every branch
/// of turnouts goes on as the turnout climbs towards it. Where the track comes round to itself the
/// way from the start with fewer pieces decides.
std::vector<PieceHeight> climbFrom(const Layout& layout, std::span<const std::int32_t> pieces,
                                   const ClimbStart& from);

} // namespace trassix
