#pragma once

#include "editing/helix/helix_plan.h"

#include <cstdint>
#include <vector>

namespace trassix {

/// A helix as it is seen from above, where its topmost turn hides all others.
struct HelixRing {
  std::int32_t helix = -1;
  HelixPlan plan;
  std::vector<std::int32_t> bottoms; ///< pieces at the lower ends
};

/// The helices of a plan that are rings: of known kits, with a whole turn below each upper end.
class HelixRings {
 public:
  explicit HelixRings(const Layout& layout);

  const std::vector<HelixRing>& rings() const { return rings_; }
  bool hold(const PlacedPiece& piece) const;
  /// Whether other track of the ring lies on this piece.
  bool hide(const PlacedPiece& piece) const;

 private:
  std::vector<HelixRing> rings_;
  std::vector<std::int32_t> seen_; ///< pieces of the topmost turns, sorted
};

} // namespace trassix
