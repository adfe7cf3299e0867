// A second track beside a chain of selected track.
#pragma once

#include "document/layout.h"
#include "editing/edit_result.h"

#include <string>
#include <vector>

namespace trassix {

/// How far a joint may lie beside the true parallel, in mm.
inline constexpr double kParallelPlay = 1.0;

/// A distance at which a parallel track can be offered.
struct ParallelOffer {
  double distance = 0; ///< mm from middle to middle, positive to the right of the chain's direction
  std::string side;    ///< as the user calls it
};

/// At the system's spacing on both sides, and at others at which each curve of the chain has one of
/// the system beside it. Empty when the selection is no chain; `problem` says why then.
std::vector<ParallelOffer> parallelOffers(const Layout& layout, std::string& problem);

/// Both sides at a distance of the user's.
std::vector<ParallelOffer> parallelOffers(const Layout& layout, double distance);

/// Where a parallel track is not whole.
struct ParallelGap {
  Point at;
  double residue = 0; ///< mm between the ends, or by which the nearest piece misses the parallel
  std::string reason; ///< why nothing was laid from here on; empty for ends that do not meet
};

struct ParallelResult {
  EditResult edit;
  std::vector<ParallelGap> gaps;
};

/// Lays straights beside straights and curves of the system's other radius beside curves, as one
/// undo step, on the same levels and at the same heights. Joints lie on the true parallel within
/// 1 mm. What no piece fits, and the side of turnouts and crossings to which these lead off, is
/// left out and named as a gap, as are ends that do not meet. What was laid is selected then.
ParallelResult layParallel(Layout& layout, double distance);

/// The gaps in words, with lengths in the plan's unit.
std::string gapText(const Layout& layout, const ParallelGap& gap);

} // namespace trassix
