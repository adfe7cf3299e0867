// Joining and un-joining, used by everything that places, moves or removes pieces.
#pragma once

#include "document/layout.h"
#include "editing/connector_geometry.h"

#include <span>

namespace trassix {

/// Tolerances within which ends that meet by geometry are joined although nobody snapped them.
inline constexpr double kClosingDistance = 1.0; ///< mm, in the plan and in height
inline constexpr double kClosingFacing = 1.0;   ///< degrees off exactly opposite

/// Writes the joint on both pieces, lengthening their joint tables as needed. Both must exist.
void join(Layout& layout, std::int32_t a, std::int32_t connectorA, std::int32_t b,
          std::int32_t connectorB);

/// Opens the joint at this connector on both sides; an open one stays as it is.
void openJoint(Layout& layout, std::int32_t piece, std::int32_t connector);

/// Opens every joint between a piece of `pieces` and one that is not among them. `pieces` sorted.
void detach(Layout& layout, std::span<const std::int32_t> pieces);

/// Joins each free connector of `pieces` (sorted ids) with a free connector of any other piece that
/// it meets within the closing tolerances, same system and height. No pose changes. Returns the
/// number of joints made.
int closeMeetingEnds(Layout& layout, std::span<const std::int32_t> pieces);

} // namespace trassix
