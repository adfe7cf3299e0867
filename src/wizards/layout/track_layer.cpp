#include "wizards/layout/track_layer.h"

#include <cmath>

namespace trassix {

std::int32_t TrackLayer::begin(const PieceDef& piece, std::int32_t enter,
                               const WorldConnector& from) {
  PlacedPiece placed = pieceAt(AttachPose(piece, enter, from));
  placed.id = static_cast<std::int32_t>(pieces_.size()) + 1;
  placed.cat = piece.article;
  placed.joints.resize(piece.connectors.size());
  pieces_.push_back(std::move(placed));
  return pieces_.back().id;
}

std::int32_t TrackLayer::add(const PieceDef& piece, std::int32_t enter, End onto) {
  const std::int32_t id = begin(piece, enter, at(onto));
  join({id, enter}, onto);
  return id;
}

void TrackLayer::join(End a, End b) {
  const auto jointOf = [this](End end) -> Joint& {
    return pieces_[static_cast<std::size_t>(end.piece - 1)]
        .joints[static_cast<std::size_t>(end.connector)];
  };
  jointOf(a) = {b.piece, b.connector};
  jointOf(b) = {a.piece, a.connector};
}

WorldConnector TrackLayer::at(End end) const {
  const PlacedPiece& piece = pieces_[static_cast<std::size_t>(end.piece - 1)];
  return ConnectorToWorld(piece, *definitionOf(piece), end.connector);
}

double TrackLayer::gap(End a, End b) const {
  const WorldConnector first = at(a);
  const WorldConnector second = at(b);
  return std::hypot(first.x - second.x, first.y - second.y);
}

double TrackLayer::turn(End a, End b) const {
  return 180 - headingDifference(at(a).heading, at(b).heading);
}

} // namespace trassix
