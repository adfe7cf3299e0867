// Track between decks that rise by different amounts.
#pragma once

#include "editing/elevation/grades.h"
#include "editing/elevation/propagation.h"

#include <cstdint>
#include <unordered_map>
#include <vector>

namespace trassix {

class Layout;

/// What becomes of the track when pieces rise with their decks.
struct DeckPlan {
  std::vector<PieceHeight> ramps; ///< take up the difference between what lies at their ends
  std::vector<LoopGap> steps;     ///< joints where nothing can, which have to be opened
};

/// `rises` in mm by id, of all pieces that rise. A ramp is a stretch of graded track without
/// branches; it takes up the difference over its whole length where that makes it no steeper than
/// `limit`, or than it is.
DeckPlan planDecks(const Layout& layout, const std::unordered_map<std::int32_t, double>& rises,
                   double limit = kSteepestSlope);

} // namespace trassix
