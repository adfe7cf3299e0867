// A way that climbs to a height, keeps it from one joint to another, and comes down to where it
// was.
#pragma once

#include "editing/elevation/train_way.h"

#include <cstddef>
#include <vector>

namespace trassix {

class Layout;

/// Joints go by number: joint i is where stretch i begins. Heights and lengths in mm, slopes as
/// rise over length.
struct HumpTask {
  TrainWay way;
  std::size_t first = 0; ///< the joints of the level part, which has a piece
  std::size_t last = 0;
  std::size_t from = 0; ///< nothing changes before this joint
  std::size_t to = 0;   ///< nor beyond this one
  double height = 0;    ///< of the level part
  double limit = 0;     ///< of slope
  double shortest = 0;  ///< least length of a ramp that climbs at all
  /// For each joint the heights that it may have, ascending; without any all may have any. What
  /// keeps its height is free of this.
  std::vector<std::vector<double>> allowed;
};

struct HumpRamp {
  bool possible = false;
  std::size_t foot = 0; ///< joint where it begins to climb; that of the level part for no ramp
  double available = 0; ///< mm of way that it could have
  double missing = 0;   ///< mm by which that is too short
  double bestLimit =
      0; ///< the slope that would do, were it allowed; 0 when any height may be, and none does
};

struct HumpPlan {
  HumpRamp up;
  HumpRamp down;
  std::vector<double> heights; ///< of all joints of the way; empty unless both are possible

  bool possible() const { return up.possible && down.possible; }
};

/// The shortest ramps within the limit, eased towards the level part and what lies before and
/// behind. With allowed heights each ramp goes through them one by one where it can, as a set of
/// piers is meant, else as few pieces as can.
HumpPlan planHump(const Layout& layout, const HumpTask& task);

} // namespace trassix
