#include "editing/helix/helix_rings.h"

#include "document/layout.h"
#include "document/plan_content.h"
#include "editing/joining/joining.h"
#include "editing/track/connector_geometry.h"

#include <algorithm>
#include <cmath>

namespace trassix {

namespace {

/// Adds a turn of track from its top down; false when there is less.
bool addTopTurn(const Layout& layout, const Helix& helix, std::int32_t top, HelixHand hand,
                std::vector<std::int32_t>& seen) {
  const PlacedPiece* piece = layout.findPiece(top);
  const PieceDef* curve = piece == nullptr ? nullptr : definitionOf(*piece);
  if (curve == nullptr || curve->kind != PieceKind::Curve)
    return false;
  const std::size_t down = hand == HelixHand::Right ? 0 : 1;
  for (auto left = std::lround(360 / curve->angle); left > 0; --left) {
    if (piece == nullptr || piece->helix != helix.id)
      return false;
    seen.push_back(piece->id);
    piece = joinedPiece(layout, *piece, down);
  }
  return true;
}

} // namespace

HelixRings::HelixRings(const Layout& layout) {
  for (const Helix& helix : layout.content().helices) {
    const auto plan = planOfHelix(layout, helix);
    if (!plan)
      continue;
    std::vector<std::int32_t> seen;
    bool whole = addTopTurn(layout, helix, helix.topR1, plan->hand, seen);
    HelixRing ring{helix.id, *plan, {helix.bottomR1}};
    if (plan->kit->outer != nullptr) {
      whole = whole && addTopTurn(layout, helix, helix.topR2, plan->hand, seen);
      ring.bottoms.push_back(helix.bottomR2);
    }
    if (!whole)
      continue;
    rings_.push_back(std::move(ring));
    seen_.insert(seen_.end(), seen.begin(), seen.end());
  }
  std::ranges::sort(seen_);
}

bool HelixRings::hold(const PlacedPiece& piece) const {
  return piece.helix != -1 &&
         std::ranges::find(rings_, piece.helix, &HelixRing::helix) != rings_.end();
}

bool HelixRings::hide(const PlacedPiece& piece) const {
  return hold(piece) && !std::ranges::binary_search(seen_, piece.id);
}

} // namespace trassix
