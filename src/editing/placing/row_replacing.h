// Exchanging a run of finished track for a row of straights that fits between the same ends.
#pragma once

#include "catalog/piece_def.h"
#include "editing/elevation/train_way.h"

#include <cstdint>
#include <span>
#include <vector>

namespace trassix {

class Layout;

/// What the sum of a row may differ from the run it replaces, in mm: published lengths are rounded,
/// so that two halves are a tenth longer than the whole.
inline constexpr double kRowPlay = 0.2;

/// Takes the run out, puts the row between what it was joined to, and joins it there. It lies on
/// the level and in the colour of the run's first piece, in one grade between the run's ends. Empty
/// and nothing changed when the run's ends do not face each other so far apart. A step of other
/// edits: records no history.
std::vector<std::int32_t> replaceByRow(Layout& layout, std::span<const WayStretch> run,
                                       std::span<const PieceDef* const> row);

/// A row that goes on straight from an open end, level at its height; the same otherwise.
std::vector<std::int32_t> appendRow(Layout& layout, TrackEnd end,
                                    std::span<const PieceDef* const> row);

} // namespace trassix
