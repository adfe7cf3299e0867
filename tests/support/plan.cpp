#include "support/plan.h"

#include "catalog/track_catalog.h"
#include "editing/joining/joining.h"
#include "editing/joining/snapping.h"
#include "editing/placing/placing.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <stdexcept>

namespace trassix {

Plan& Plan::place(std::string_view article, const Pose& pose) {
  const EditResult result = dropPiece(layout, article, pose, {}, false);
  if (!result.changed())
    throw std::runtime_error("not placed: " + std::string(article));
  return at(result.placed.front(), 1);
}

Plan& Plan::extend(std::string_view article, int count) {
  for (int i = 0; i < count; ++i)
    extendBy(article, 0, 1);
  return *this;
}

Plan& Plan::extendLeft(std::string_view article, int count) {
  for (int i = 0; i < count; ++i)
    extendBy(article, 1, 0);
  return *this;
}

Plan& Plan::extendBy(std::string_view article, std::int32_t own, std::int32_t exit) {
  const PieceDef& definition = cataloguePiece(article);
  Pose carried = AttachPose(definition, own, front());
  carried.x += 0.3;
  carried.y -= 0.2;
  const SnapResult snap = SnapIndex(layout).findSnap(definition, carried);
  const EditResult result = dropPiece(layout, article, carried, snap, true);
  if (!snap.snapped || !result.changed())
    throw std::runtime_error("does not snap: " + std::string(article));
  return at(result.placed.front(), exit);
}

Plan& Plan::at(std::int32_t piece, std::int32_t connector) {
  piece_ = piece;
  connector_ = connector;
  return *this;
}

WorldConnector Plan::front() const {
  return worldEnd(*layout.findPiece(piece_), connector_);
}

const PieceDef& cataloguePiece(std::string_view article) {
  if (const PieceDef* definition = TrackCatalog::instance().find(article))
    return *definition;
  throw std::runtime_error("not in the catalogue: " + std::string(article));
}

std::vector<std::reference_wrapper<const PieceDef>> wholeCatalogue() {
  std::vector<std::reference_wrapper<const PieceDef>> pieces;
  for (std::int32_t i = 0; i < TrackCatalog::instance().count(); ++i)
    pieces.emplace_back(*TrackCatalog::instance().at(i));
  return pieces;
}

WorldConnector worldEnd(const PlacedPiece& piece, std::int32_t connector) {
  return ConnectorToWorld(piece, *definitionOf(piece), connector);
}

Play playOf(const Layout& layout, const PlacedPiece& piece, std::int32_t connector) {
  const Joint joint = piece.joint(static_cast<std::size_t>(connector));
  const PlacedPiece& other = *layout.findPiece(joint.target);
  const WorldConnector a = worldEnd(piece, connector);
  const WorldConnector b = worldEnd(other, joint.tconn);
  return {std::hypot(a.x - b.x, a.y - b.y), 180.0 - headingDifference(a.heading, b.heading),
          endHeight(other, *definitionOf(other), joint.tconn) -
              endHeight(piece, *definitionOf(piece), connector)};
}

Play largestPlay(const Layout& layout) {
  Play largest;
  for (const PlacedPiece& piece : layout.pieces()) {
    for (std::size_t i = 0; i < piece.joints.size(); ++i) {
      if (piece.joints[i].open())
        continue;
      const Play play = playOf(layout, piece, static_cast<std::int32_t>(i));
      largest = {std::max(largest.distance, play.distance), std::max(largest.heading, play.heading),
                 std::max(largest.step, std::abs(play.step))};
    }
  }
  return largest;
}

int openEnds(const Layout& layout) {
  int open = 0;
  for (const PlacedPiece& piece : layout.pieces()) {
    if (definitionOf(piece)->kind == PieceKind::Turntable)
      continue;
    for (const WorldConnector& end : WorldConnectorsOf(piece, *definitionOf(piece)))
      open += end.free ? 1 : 0;
  }
  return open;
}

std::string brokenRule(const Layout& layout) {
  std::set<std::int32_t> ids;
  const auto take = [&](std::int32_t id) {
    return id >= 0 && id < layout.nextPieceId() && ids.insert(id).second;
  };
  for (const PlacedPiece& piece : layout.pieces()) {
    const std::string who = "piece " + std::to_string(piece.id) + " (" + piece.cat + ") ";
    const PieceDef* definition = definitionOf(piece);
    if (!take(piece.id))
      return who + "has no id of its own";
    if (definition == nullptr)
      return who + "is not in the catalogue";
    if (!std::isfinite(piece.x) || !std::isfinite(piece.y) || !(piece.heading >= 0) ||
        !(piece.heading < 360))
      return who + "has no sound pose";
    if (piece.joints.size() > definition->connectors.size())
      return who + "has more joints than ends";
    for (std::size_t i = 0; i < piece.joints.size(); ++i) {
      const Joint joint = piece.joints[i];
      if (joint.open())
        continue;
      const PlacedPiece* other = layout.findPiece(joint.target);
      if (other == nullptr || other->id == piece.id)
        return who + "is joined to nothing";
      if (other->joint(static_cast<std::size_t>(joint.tconn)) !=
          Joint{piece.id, static_cast<std::int32_t>(i)})
        return who + "is joined one-sidedly";
      if (definition->connectorSystem(i) !=
          definitionOf(*other)->connectorSystem(static_cast<std::size_t>(joint.tconn)))
        return who + "is joined to another system";
    }
  }
  for (const PiecePair& pair : layout.content().pairs)
    if (const auto* a = layout.findPiece(pair.first), *b = layout.findPiece(pair.second);
        a == nullptr || b == nullptr || a->cat != b->cat)
      return "piece " + std::to_string(pair.first) + " is paired with nothing like it";
  for (const SceneryItem& item : layout.content().scenery)
    if (!take(item.id))
      return "scenery item " + std::to_string(item.id) + " has no id of its own";
  return {};
}

} // namespace trassix
