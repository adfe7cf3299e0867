#pragma once

#include "document/records.h"

#include <span>
#include <vector>

namespace trassix {

/// The pairs among pieces that come from a file, which does not tell: two of an article that is
/// sold in pairs, joined to each other and to no third one of it.
std::vector<PiecePair> pairsOfRuns(std::span<const PlacedPiece> pieces);

} // namespace trassix
