// What a way leads over, and how much of the way that takes. Lengths and heights in mm.
#pragma once

#include "wizards/bridge/bridge_line.h"
#include "wizards/bridge/bridge_plan.h"

#include <cstddef>
#include <vector>

namespace trassix {

class Layout;

/// Something below, or to be led over, with the stretch of the way whose deck comes above what has
/// to stay free there.
struct CrossedZone {
  CrossedThing thing;
  TrackSystem system{}; ///< of what is below
  double from = 0;      ///< along the way
  double to = 0;
  double top = 0; ///< the highest there, as tracks have their height, or the surface

  /// Of a way that crosses itself: the stretches of its lower part, ascending.
  std::vector<std::size_t> own;

  /// Lowest place of each mm or so of the zone: along, and the height below.
  struct Below {
    double along = 0;
    double top = 0;
  };
  std::vector<Below> profile;

  bool isTrack() const { return thing.kind == CrossedThing::Kind::Track; }
  /// From its `top` to what `thing.height` tells.
  double rails() const;
};

/// All that the way crosses on the stretches that are meant, by `along`: tracks whatever their
/// heights are, but for those that lead over the way with room enough; roads and water below it. Of
/// two meant stretches of the way that cross each other the later one is below.
std::vector<CrossedZone> zonesOf(const Layout& layout, const BridgeLine& line,
                                 const std::vector<bool>& meant);

/// Least distance from what is below to the underside of the track above, whose heights `line`
/// tells.
double clearanceOver(const CrossedZone& zone, const BridgeLine& line);

} // namespace trassix
