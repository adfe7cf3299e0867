// The free ends of a helix, which need not be on the plan.
#pragma once

#include "editing/helix/helix_plan.h"
#include "editing/joining/end_grid.h"

#include <cstdint>
#include <string>
#include <vector>

namespace trassix {

struct HelixEnd {
  bool top = false;
  bool outer = false; ///< of the outer one of two tracks
  PlacedEnd placed;   ///< its `connector` is the place in the list of ends
};

/// Those at the bottom before those at the top, the inner one before the outer one.
std::vector<HelixEnd> endsOf(const HelixPlan& plan);

/// "bottom", or "bottom, outer track" where there are two.
std::string nameOf(const HelixPlan& plan, const HelixEnd& end);

/// The helix where its end, by its place in the list, lies on this one, facing it, at its height.
HelixPlan standingBy(const HelixPlan& plan, std::size_t end, const PlacedEnd& target);

} // namespace trassix
