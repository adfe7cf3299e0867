// Levels and the baseboard. Undo does not bring them back, since they are settings of the plan;
// what stands on the levels it does bring back. Each edit is one undo step; false and nothing
// changed when all is as it was.
#pragma once

#include "document/plan_settings.h"
#include "editing/edit_result.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace trassix {

class Layout;
struct LoopGap;
struct Shape;

/// Number of pieces, scenery items and shapes on a level.
std::size_t countOnLevel(const Layout& layout, std::int32_t level);

/// Height of a level in mm. One that records name but the plan lacks, as undo can bring about, is
/// as high as its lowest piece.
double deckHeight(const Layout& layout, std::int32_t level);

/// Why what stands on the level cannot be deleted, in one sentence; empty when it can.
std::string levelLock(const Layout& layout, std::int32_t level);

/// The levels as they shall be.
struct LevelChange {
  std::vector<Level> levels; ///< at least one
  std::int32_t activeLevel = 1;

  /// For levels that are gone: the level that takes over what stands there, or none to delete it.
  std::map<std::int32_t, std::optional<std::int32_t>> heirs;

  /// A shape that became the outline of a level and is no shape any more.
  std::optional<std::int32_t> usedShape;

  bool operator==(const LevelChange&) const = default;
};

/// The joints that the change would open, because nothing between two levels can take up their
/// difference: to be told, with their places, before.
std::vector<LoopGap> stepsBetweenLevels(const Layout& layout, const LevelChange& wanted);

/// Track rides with its level: it stays as high above it when the level is lifted, and comes to lie
/// as high above the level that takes it over. Where track runs on to a level that does not ride
/// along, a ramp there takes up the difference, or else the joint opens; ends that come to lie on
/// others are joined. What is on a hidden level
/// does not stay selected.
/// Refused when a level or its track would lie beyond the limits of a plan.
ChangeResult setLevels(Layout& layout, const LevelChange& wanted);

/// Refuses what is no outline of an area, see `outlineProblem`; so do the edits below.
bool setLevelOutline(Layout& layout, std::int32_t level, const std::vector<Point>& outline);

/// An outline with fewer than three corners takes the baseboard away.
bool setBaseboard(Layout& layout, const std::vector<Point>& outline, const LastShape& shape);

/// The shape becomes the baseboard and is no shape any more.
bool useAsBaseboard(Layout& layout, std::int32_t shape);

/// The only selected shape, when its outline can be that of a level or the baseboard; null when
/// there is none or more than one.
const Shape* selectedShape(const Layout& layout);

/// Levels that records stand on but the plan lacks.
std::set<std::int32_t> lostLevels(const Layout& layout);

} // namespace trassix
