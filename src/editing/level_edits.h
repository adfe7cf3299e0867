// Levels and the baseboard: the settings of a plan that are not under undo.
#pragma once

#include "document/layout.h"

#include <cstdint>
#include <map>
#include <optional>
#include <vector>

namespace trassix {

/// Where what stands on a deleted level goes: from its id to the id of a level that stays.
using LevelMoves = std::map<std::int32_t, std::int32_t>;

/// Number of pieces, scenery items and shapes on a level.
std::size_t countOnLevel(const Layout& layout, std::int32_t level);

/// Takes over the list of levels, which must not be empty, and the active one of them; a move is
/// needed for each level that is gone and not empty. The records that move are one undo step, the
/// levels themselves are none. False and nothing changed when all is as it was.
bool setLevels(Layout& layout, const std::vector<Level>& levels, std::int32_t activeLevel,
               const LevelMoves& moves);

/// An outline with fewer than three corners takes the baseboard away. False when it is the same.
bool setBaseboard(Layout& layout, const std::vector<Point>& outline, const LastShape& shape);

/// The outline of the selected shape; none unless exactly one shape is selected.
std::optional<std::vector<Point>> selectedOutline(const Layout& layout);

} // namespace trassix
