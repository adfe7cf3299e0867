// Where the ends of placed pieces are. Lengths in mm, headings in degrees in [0, 360).
#pragma once

#include "catalog/piece_def.h"
#include "document/records_fwd.h"
#include "geometry/pose.h"

#include <cstdint>
#include <vector>

namespace trassix {

/// The definition a placed piece names; null when its article is not in the catalogue.
const PieceDef* definitionOf(const PlacedPiece& piece);

Pose poseOf(const PlacedPiece& piece);

/// A piece of no article that lies there.
PlacedPiece pieceAt(const Pose& pose);

/// One end of a placed piece; `heading` is where track leaves the piece, so joined ends point 180
/// degrees apart.
struct WorldConnector {
  double x = 0;
  double y = 0;
  double heading = 0;
  bool free = true;
  std::int32_t index = -1; ///< connector index, -1 for an index out of range

  bool operator==(const WorldConnector&) const = default;
};

/// The end in layout coordinates. It is free when its joint slot is open or missing; an index out
/// of range gives a zero record with index -1.
WorldConnector ConnectorToWorld(const PlacedPiece& piece, const PieceDef& definition,
                                std::int32_t index);

/// All ends in index order.
std::vector<WorldConnector> WorldConnectorsOf(const PlacedPiece& piece, const PieceDef& definition);

/// The pose at which connector `index` of the definition lies on `target` and faces it; a zero pose
/// for an index out of range.
Pose AttachPose(const PieceDef& definition, std::int32_t index, const WorldConnector& target);

/// Centre lines in layout coordinates as polylines: the main arc or straight, and for a piece with
/// three or more ends the chord to connector 2. For what a train can take see routes.h.
std::vector<std::vector<Point>> CentrelinePaths(const PlacedPiece& piece,
                                                const PieceDef& definition);

} // namespace trassix
