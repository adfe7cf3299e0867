#pragma once

#include "editing/elevation/train_way.h"

#include <span>

namespace trassix {

class Layout;

/// Exchanges track of these stretches, one after the other, for ramp pieces of the same shape;
/// those that are sold in pairs two by two. Ends and heights stay as they are.
void useRampPieces(Layout& layout, std::span<const WayStretch> stretches);

} // namespace trassix
