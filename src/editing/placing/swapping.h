// Exchanging a piece in finished track for another article that fits the same ends.
#pragma once

#include "catalog/piece_def.h"
#include "document/layout.h"
#include "editing/edit_result.h"
#include "editing/track/connector_geometry.h"

#include <cstdint>
#include <vector>

namespace trassix {

/// One way in which an article takes a piece's place.
struct SwapFit {
  const PieceDef* definition = nullptr;
  Pose pose;
  std::vector<std::int32_t> ends; ///< for each end of the present piece the new one's, -1 for none

  bool operator==(const SwapFit&) const = default;
};

/// All ways in which other articles, or the same one turned round, meet what the piece meets: at
/// every joined end an end of the same system within the closing tolerances, and with fewer than
/// two joints at its ends 0 and 1, with the same ways for trains between them. In catalogue order;
/// ways that look the same are listed once. Articles that come in pairs are left out. None for a
/// piece without a joint.
std::vector<SwapFit> swapFits(const Layout& layout, std::int32_t piece);

/// Exchanges the piece as one undo step. It keeps its id and all that is not given by its article;
/// its joints go over to the new ends, and new ends that meet others are joined. False and nothing
/// changed when the fit is not one of the piece's fits; refused when it would leave a step in
/// height.
ChangeResult swapPiece(Layout& layout, std::int32_t piece, const SwapFit& fit);

/// The slope that the piece would have, which keeps the heights of its ends; rise over length.
double slopeAfterSwap(const Layout& layout, std::int32_t piece, const SwapFit& fit);

} // namespace trassix
