#include "editing/track/connector_geometry.h"

#include "catalog/track_catalog.h"
#include "document/plan_content.h"
#include "document/records.h"

#include <algorithm>
#include <cmath>

namespace trassix {

const PieceDef* definitionOf(const PlacedPiece& piece) {
  return TrackCatalog::instance().find(piece.cat);
}

Pose poseOf(const PlacedPiece& piece) {
  return {piece.x, piece.y, piece.heading};
}

PlacedPiece pieceAt(const Pose& pose) {
  PlacedPiece piece;
  piece.x = pose.x;
  piece.y = pose.y;
  piece.heading = pose.heading;
  return piece;
}

WorldConnector ConnectorToWorld(const PlacedPiece& piece, const PieceDef& definition,
                                std::int32_t index) {
  if (index < 0 || static_cast<std::size_t>(index) >= definition.connectors.size())
    return {};
  const auto slot = static_cast<std::size_t>(index);
  const Connector& connector = definition.connectors[slot];
  const Point at = toWorld(poseOf(piece), {connector.x, connector.y});
  return {at.x, at.y, normaliseHeading(piece.heading + connector.heading), piece.joint(slot).open(),
          index};
}

std::vector<WorldConnector> WorldConnectorsOf(const PlacedPiece& piece,
                                              const PieceDef& definition) {
  std::vector<WorldConnector> ends;
  ends.reserve(definition.connectors.size());
  for (std::size_t i = 0; i < definition.connectors.size(); ++i)
    ends.push_back(ConnectorToWorld(piece, definition, static_cast<std::int32_t>(i)));
  return ends;
}

Pose AttachPose(const PieceDef& definition, std::int32_t index, const WorldConnector& target) {
  if (index < 0 || static_cast<std::size_t>(index) >= definition.connectors.size())
    return {};
  const Connector& connector = definition.connectors[static_cast<std::size_t>(index)];
  const double heading =
      normaliseHeading(normaliseHeading(target.heading + 180.0) - connector.heading);
  const Point offset = toWorld({0, 0, heading}, {connector.x, connector.y});
  return {target.x - offset.x, target.y - offset.y, heading};
}

std::vector<std::vector<Point>> CentrelinePaths(const PlacedPiece& piece,
                                                const PieceDef& definition) {
  const Pose pose = poseOf(piece);
  std::vector<std::vector<Point>> paths(1);
  if (definition.radius > 0 && definition.angle != 0) {
    const bool right = definition.angle >= 0;
    const double centre = right ? definition.radius : -definition.radius;
    const double start = right ? -kPi / 2 : kPi / 2;
    const int steps = std::max(static_cast<int>(std::abs(definition.angle) / 5.0), 6);
    for (int k = 0; k <= steps; ++k) {
      const double t = static_cast<double>(k) / steps * toRadians(definition.angle) + start;
      paths[0].push_back(toWorld(
          pose, {definition.radius * std::cos(t), definition.radius * std::sin(t) + centre}));
    }
  } else {
    paths[0] = {{pose.x, pose.y}, toWorld(pose, {definition.length, 0})};
  }
  if (definition.connectors.size() >= 3) {
    const Connector& branch = definition.connectors[2];
    paths.push_back({{pose.x, pose.y}, toWorld(pose, {branch.x, branch.y})});
  }
  return paths;
}

} // namespace trassix
