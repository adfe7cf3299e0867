// Where the ends of placed pieces are.
//
//   +---> +x      Layout frame: x to the right, y downwards, as the plan is drawn.
//   |   \         Positive angles turn from +x towards +y, clockwise on the screen.
//   v +y \ +45    Lengths in mm, headings in degrees, normalised to [0, 360).
#pragma once

#include "catalog/piece_def.h"
#include "document/records.h"

#include <vector>

namespace trassix {

inline constexpr double kPi = 3.141592653589793;

constexpr double toRadians(double degrees) {
  constexpr double kHuge = 1e300; // from here on the product might be infinite
  return degrees < kHuge && degrees > -kHuge ? degrees * kPi / 180.0 : degrees / 180.0 * kPi;
}

constexpr double toDegrees(double radians) {
  return radians * 180.0 / kPi;
}

/// The definition a placed piece names; null when its article is not in the catalogue.
const PieceDef* definitionOf(const PlacedPiece& piece);

/// Position and rotation of a piece's own frame in the layout.
struct Pose {
  double x = 0;
  double y = 0;
  double heading = 0;

  bool operator==(const Pose&) const = default;
};

inline Pose poseOf(const PlacedPiece& piece) {
  return {piece.x, piece.y, piece.heading};
}

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

/// Adds or subtracts 360 until the value lies in [0, 360). Values that are not finite come back as
/// 0.
double normaliseHeading(double degrees);

/// The angle between two headings, folded into [0, 180].
double headingDifference(double a, double b);

/// A point of the piece's frame in layout coordinates.
Point toWorld(const Pose& pose, Point local);

/// The same for the many points of one piece.
class PoseFrame {
 public:
  explicit PoseFrame(const Pose& pose);
  Point operator()(Point local) const {
    return {x_ + local.x * cos_ - local.y * sin_, y_ + local.x * sin_ + local.y * cos_};
  }

 private:
  double x_, y_, cos_, sin_;
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
