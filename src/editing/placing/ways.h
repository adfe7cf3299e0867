// The ways in which an article can lie where its track goes on: by each of its own ends.
#pragma once

#include "catalog/piece_def.h"
#include "editing/track/connector_geometry.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace trassix {

/// The ends by which the article can be joined, in index order: of an end of that system, or of
/// any. Ends by which it would cover the same as by an earlier one, such as the second of a
/// straight, are left out.
std::vector<std::int32_t> waysOf(const PieceDef& definition,
                                 std::optional<TrackSystem> system = std::nullopt);

/// The way `step` places after the one by `end`, round and round; -1 when there is none at all, and
/// `end` itself when there is no other.
std::int32_t wayAfter(const PieceDef& definition, std::int32_t end, int step,
                      std::optional<TrackSystem> system = std::nullopt);

/// Where the article lies when its end hangs at the pose: there, with the track leading along the
/// heading. By its connector 0 that is the pose itself.
Pose hangingBy(const PieceDef& definition, std::int32_t end, const Pose& pose);

} // namespace trassix
