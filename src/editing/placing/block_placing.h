// How a block comes onto the plan: from the library, the clipboard, or as a duplicate.
#pragma once

#include "document/block_file.h"
#include "document/layout.h"
#include "editing/edit_result.h"
#include "editing/track/connector_geometry.h"
#include "editing/track/track_end.h"

#include <optional>

namespace trassix {

/// Places everything in the block, turned about the block's origin by the pose's heading and then
/// moved by its position, as one undo step. All records get new ids and become the selection.
/// Joints inside the block stay, all others are opened; then ends that meet are joined. What does
/// not fit into the limits of a plan is refused. A helix comes
/// along, with ids of its own, when the block has its record. Levels that the pieces are on and the
/// plan lacks are created. Of a block that stands on its levels, joints between levels of different
/// heights are opened, which the result remarks.
/// What hangs together comes to lie as high as an open end that it meets: `landsOn` if it does,
/// else the one that is nearest in height. Ends that then are off in height stay open; the result
/// names them.
EditResult placeBlock(Layout& layout, const Block& block, const Pose& pose,
                      const std::optional<TrackEnd>& landsOn = std::nullopt);

} // namespace trassix
