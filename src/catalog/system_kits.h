// Standard sets of pieces that the generators build with. An entry is null when the system has no
// such piece; a system without a kit has only null entries.
#pragma once

#include "catalog/piece_def.h"

namespace trassix {

struct BridgeKit {
  const PieceDef* shortStraight = nullptr;
  const PieceDef* standardStraight = nullptr;
  const PieceDef* trussBridge = nullptr;
  const PieceDef* archBridge = nullptr;

  bool operator==(const BridgeKit&) const = default;
};

struct StationKit {
  const PieceDef* leftTurnout = nullptr;
  const PieceDef* rightTurnout = nullptr;
  const PieceDef* compensationCurve = nullptr; ///< brings a siding back parallel to the main line
  const PieceDef* straight =
      nullptr; ///< pairs with the turnout where its length is not a plain one

  bool operator==(const StationKit&) const = default;
};

BridgeKit bridgeKit(TrackSystem system);
StationKit stationKit(TrackSystem system);

} // namespace trassix
