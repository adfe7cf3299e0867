// Straights from what there is at home.
#pragma once

#include "wizards/layout/layout_task.h"
#include "wizards/layout/straight_runs.h"

#include <optional>
#include <vector>

namespace trassix {

/// What `needed` has more of than `stock`.
PieceStock missingFrom(const PieceStock& stock, const PieceStock& needed);

/// Pieces for each of the lengths, all of them together from the stock. None when there are not
/// enough, or when no way to share them is found in a short time.
std::optional<std::vector<std::vector<const PieceDef*>>>
runsFromStock(TrackSystem system, const PieceStock& stock, const std::vector<Micrometres>& lengths);

} // namespace trassix
