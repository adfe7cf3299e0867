#include "editing/inserting.h"

#include "catalog/track_catalog.h"
#include "editing/joining.h"
#include "editing/placing.h"
#include "editing/rigid_motion.h"
#include "editing/routes.h"
#include "editing/selection.h"

#include <algorithm>
#include <unordered_set>

namespace trassix {

namespace {

/// The end at which a train leaves that enters here, on the first way through; -1 when it ends in
/// the piece.
std::int32_t exitOf(const PieceDef& definition, std::int32_t enter) {
  for (const Route& route : routesOf(definition)) {
    if (route.from == enter)
      return route.to;
    if (route.to == enter)
      return route.from;
  }
  return -1;
}

/// Sorted ids of what hangs together with `piece` when its joint at `connector` is open.
std::vector<std::int32_t> sideOf(const Layout& layout, std::int32_t piece, std::int32_t connector) {
  const Joint cut = layout.findPiece(piece)->joint(static_cast<std::size_t>(connector));
  std::unordered_set<std::int32_t> met{piece};
  std::vector<std::int32_t> side{piece};
  for (std::size_t next = 0; next < side.size(); ++next) {
    const PlacedPiece& from = *layout.findPiece(side[next]);
    for (std::size_t i = 0; i < from.joints.size(); ++i) {
      const Joint joint = from.joints[i];
      const bool isCut = (from.id == piece && static_cast<std::int32_t>(i) == connector) ||
                         (from.id == cut.target && static_cast<std::int32_t>(i) == cut.tconn);
      if (!joint.open() && !isCut && layout.findPiece(joint.target) != nullptr &&
          met.insert(joint.target).second)
        side.push_back(joint.target);
    }
  }
  std::sort(side.begin(), side.end());
  return side;
}

/// mm of track along the main ways.
double trackLength(const Layout& layout, const std::vector<std::int32_t>& pieces) {
  double length = 0;
  for (const std::int32_t id : pieces)
    if (const PieceDef* definition = definitionOf(*layout.findPiece(id));
        definition != nullptr && !routesOf(*definition).empty())
      length += routeLength(routesOf(*definition).front());
  return length;
}

void movePieces(Layout& layout, const std::vector<std::int32_t>& ids, const RigidMotion& motion) {
  for (PlacedPiece& piece : layout.edit().pieces) {
    if (!containsId(ids, piece.id))
      continue;
    const Pose pose = motion(poseOf(piece));
    piece.x = pose.x;
    piece.y = pose.y;
    piece.heading = pose.heading;
  }
}

WorldConnector endOf(const Layout& layout, std::int32_t piece, std::int32_t connector) {
  const PlacedPiece& placed = *layout.findPiece(piece);
  return ConnectorToWorld(placed, *definitionOf(placed), connector);
}

/// The motion that brings `from` to lie on and face `to`.
RigidMotion facing(const WorldConnector& from, const WorldConnector& to) {
  return {{from.x, from.y}, {to.x, to.y, normaliseHeading(to.heading + 180 - from.heading)}};
}

} // namespace

std::optional<InsertSpot> findInsertSpot(const Layout& layout, const SnapIndex& index,
                                         const PieceDef& carried, const Pose& pose) {
  if (index.findSnap(carried, pose).snapped)
    return std::nullopt;
  std::optional<EndContact> best;
  std::int32_t exit = -1;
  for (const PlacedEnd& own : endsOfCarried(carried, pose)) {
    const std::int32_t leave = exitOf(carried, own.connector);
    if (leave == -1)
      continue;
    const std::optional<EndContact> contact = index.findJoint(own, kInsertReach, kInsertFacing);
    if (!contact || (best && contact->distance >= best->distance))
      continue;
    const PlacedPiece* beyond = layout.findPiece(contact->target.joinedTo);
    if (beyond == nullptr ||
        carried.connectorSystem(static_cast<std::size_t>(leave)) != contact->target.system)
      continue;
    best = contact;
    exit = leave;
  }
  if (!best)
    return std::nullopt;
  const PlacedEnd& target = best->target;
  const WorldConnector end{target.at.x, target.at.y, target.heading, false, target.connector};
  return InsertSpot{target.piece, target.connector, best->own.connector, exit,
                    AttachPose(carried, best->own.connector, end)};
}

EditResult insertPiece(Layout& layout, std::string_view article, const InsertSpot& spot) {
  const PieceDef* definition = TrackCatalog::instance().find(article);
  const PlacedPiece* near = layout.findPiece(spot.piece);
  if (definition == nullptr || near == nullptr)
    return {};
  const Joint far = near->joint(static_cast<std::size_t>(spot.connector));
  if (far.open() || layout.findPiece(far.target) == nullptr)
    return {};
  const std::vector<std::int32_t> nearSide = sideOf(layout, spot.piece, spot.connector);
  if (containsId(nearSide, far.target))
    return {{},
            Notice{"Insert Piece", "The track on both sides hangs together elsewhere, so that "
                                   "neither side can make room. Open the loop first."}};
  const std::vector<std::int32_t> farSide = sideOf(layout, far.target, far.tconn);
  const bool farMoves = trackLength(layout, farSide) <= trackLength(layout, nearSide);
  const std::vector<std::int32_t>& moving = farMoves ? farSide : nearSide;
  if (auto refusal = lockGuard(layout, moving, "move"))
    return {{}, std::move(refusal)};

  layout.pushHistory();
  openJoint(layout, spot.piece, spot.connector);
  const Joint stays = farMoves ? Joint{spot.piece, spot.connector} : far;
  const Joint moves = farMoves ? far : Joint{spot.piece, spot.connector};
  const std::int32_t ownStays = farMoves ? spot.enter : spot.exit;
  const std::int32_t ownMoves = farMoves ? spot.exit : spot.enter;
  const PlacedPiece& fixed = *layout.findPiece(stays.target);
  const Pose pose = AttachPose(*definition, ownStays, endOf(layout, stays.target, stays.tconn));
  const std::int32_t id = addPiece(layout, *definition, pose, fixed.level, fixed.z);
  movePieces(layout, moving,
             facing(endOf(layout, moves.target, moves.tconn), endOf(layout, id, ownMoves)));
  join(layout, id, ownStays, stays.target, stays.tconn);
  inheritElevation(layout, id, stays.target, stays.tconn);
  join(layout, id, ownMoves, moves.target, moves.tconn);

  std::vector<std::int32_t> touched = moving;
  touched.push_back(id); // the newest id is the largest
  closeMeetingEnds(layout, touched);
  selectOnly(layout, id);
  return {{id}, std::nullopt};
}

} // namespace trassix
