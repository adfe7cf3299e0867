// Exact values for what is on the plan, as the properties panel sets them. Each edit is one undo
// step; nothing changed when everything has the value already or nothing is concerned, or when
// something would lie beyond the limits of a plan.
// Free ends that come to lie on others are joined.
#pragma once

#include "document/layout.h"
#include "editing/edit_result.h"
#include "editing/track/connector_geometry.h"

#include <cstdint>
#include <optional>

namespace trassix {

/// Joints to pieces that stay open, unless their ends still lie on each other.
bool setPiecePose(Layout& layout, std::int32_t piece, const Pose& pose);

/// Lifts or lowers a piece to `z` mm, and all track joined to it by as much, so that no joint gets
/// a step.
ChangeResult setTrackHeight(Layout& layout, std::int32_t piece, double z);

/// Whether the selected pieces change their height with their level: not when some are joined to
/// track that stays or that would rise by more or less, nor when they are part of a helix.
bool levelLiftsSelection(const Layout& layout);

/// Puts the selected pieces, scenery items and shapes on a level. Joints stay; pieces are lifted by
/// what the level is higher than theirs where that leaves no step in the track.
ChangeResult setSelectedLevel(Layout& layout, std::int32_t level);

/// Gives the selected pieces a colour of their own, or takes it from them.
bool setSelectedColor(Layout& layout, std::optional<Color> color);

/// Put the record in the place of the one with its id; which is selected does not count.
bool replaceRecord(Layout& layout, const SceneryItem& item);
bool replaceRecord(Layout& layout, const Label& label);
bool replaceRecord(Layout& layout, const Shape& shape);

} // namespace trassix
