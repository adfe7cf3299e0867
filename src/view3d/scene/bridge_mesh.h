#pragma once

#include "editing/supports/bridge_kind.h"
#include "view3d/scene/mesh.h"

namespace trassix {

/// What carries a bridge: from 0 to `length` along x about the x axis, its deck's top at height 0.
struct BridgeShape {
  BridgeKind kind = BridgeKind::Girder;
  double length = 0;
  double halfWidth = 0;
  double height = 0; ///< above the deck
  double deck = 0;   ///< depth of what lies below the track
};

void addBridge(MeshBuilder& builder, const BridgeShape& bridge, bool fine);

} // namespace trassix
