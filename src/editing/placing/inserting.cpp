#include "editing/placing/inserting.h"

#include "catalog/track_catalog.h"
#include "document/limits.h"
#include "document/plan_content.h"
#include "document/undo_scope.h"
#include "editing/elevation/inheritance.h"
#include "editing/elevation/propagation.h"
#include "editing/elevation/train_way.h"
#include "editing/joining/joining.h"
#include "editing/placing/placing.h"
#include "editing/selection/rigid_motion.h"
#include "editing/selection/selection.h"
#include "editing/track/routes.h"
#include "texts/texts.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace trassix {

namespace {

/// mm of track along the main ways.
double trackLength(const Layout& layout, const std::vector<std::int32_t>& pieces) {
  double length = 0;
  for (const std::int32_t id : pieces)
    if (const PieceDef* definition = definitionOf(*layout.findPiece(id));
        definition != nullptr && !routesOf(*definition).empty())
      length += routeLength(routesOf(*definition).front());
  return length;
}

bool staysInLimits(const Layout& layout, const std::vector<std::int32_t>& ids,
                   const RigidMotion& motion) {
  return std::ranges::all_of(ids, [&](std::int32_t id) {
    const PlacedPiece& piece = *layout.findPiece(id);
    return inLimits(motion(Point{piece.x, piece.y}));
  });
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

/// The piece joined there, when its article is known, so that it has a place to go on from.
const PlacedPiece* joinedTrack(const Layout& layout, const PlacedPiece& piece,
                               std::int32_t connector) {
  const PlacedPiece* joined = joinedPiece(layout, piece, static_cast<std::size_t>(connector));
  return joined == nullptr || definitionOf(*joined) == nullptr ? nullptr : joined;
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
    const std::int32_t leave = oppositeEnd(carried, own.connector);
    if (leave == -1)
      continue;
    const std::optional<EndContact> contact = index.findJoint(own, kInsertReach, kInsertFacing);
    if (!contact || (best && contact->distance >= best->distance))
      continue;
    const PlacedPiece* near = layout.findPiece(contact->target.piece);
    if (joinedTrack(layout, *near, contact->target.connector) == nullptr ||
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

std::optional<double> insertedSlope(const Layout& layout, const PieceDef& piece,
                                    const InsertSpot& spot) {
  const TrackEnd near{spot.piece, spot.connector};
  const TrackEnd far = beyond(layout, near);
  const double run = std::abs(runTo(piece, spot.exit) - runTo(piece, spot.enter));
  if (far.piece == -1 || run == 0)
    return std::nullopt;
  const double slope = (endHeight(layout, far) - endHeight(layout, near)) / run;
  if (slope == 0 && !isGraded(*layout.findPiece(near.piece)) &&
      !isGraded(*layout.findPiece(far.piece)))
    return std::nullopt;
  return slope;
}

EditResult insertPiece(Layout& layout, std::string_view article, const InsertSpot& spot) {
  const PieceDef* definition = TrackCatalog::instance().find(article);
  const PlacedPiece* near = layout.findPiece(spot.piece);
  if (definition == nullptr || near == nullptr ||
      joinedTrack(layout, *near, spot.connector) == nullptr)
    return {};
  const Joint far = near->joint(static_cast<std::size_t>(spot.connector));
  const std::vector<std::int32_t> nearSide = hangingBeyond(layout, {far.target, far.tconn});
  if (containsId(nearSide, far.target))
    return {
        {},
        Notice{tr("Insert Piece"), tr("The track on both sides hangs together elsewhere, so that "
                                      "neither side can make room. Open the loop first.")}};
  const std::vector<std::int32_t> farSide = hangingBeyond(layout, {spot.piece, spot.connector});
  const bool farMoves = trackLength(layout, farSide) <= trackLength(layout, nearSide);
  const std::vector<std::int32_t>& moving = farMoves ? farSide : nearSide;
  if (auto refusal = lockGuard(layout, moving, "move"))
    return {{}, std::move(refusal)};

  const Joint stays = farMoves ? Joint{spot.piece, spot.connector} : far;
  const Joint moves = farMoves ? far : Joint{spot.piece, spot.connector};
  const std::int32_t ownStays = farMoves ? spot.enter : spot.exit;
  const std::int32_t ownMoves = farMoves ? spot.exit : spot.enter;
  const PlacedPiece& fixed = *layout.findPiece(stays.target);
  const double height = endHeight(fixed, *definitionOf(fixed), stays.tconn);
  const Pose pose = AttachPose(*definition, ownStays, endOf(layout, stays.target, stays.tconn));
  const RigidMotion motion = facing(endOf(layout, moves.target, moves.tconn),
                                    ConnectorToWorld(pieceAt(pose), *definition, ownMoves));
  if (!fitsPlan(*definition, pose, height) || !staysInLimits(layout, moving, motion))
    return {{}, beyondPlan()};

  UndoScope step(layout);
  openJoint(layout, spot.piece, spot.connector);
  const std::int32_t id = addPiece(layout, *definition, pose, fixed.level, height);
  movePieces(layout, moving, motion);
  join(layout, id, ownStays, stays.target, stays.tconn);
  const TrackEnd last{id, ownMoves};
  const TrackEnd goesOn{moves.target, moves.tconn};
  layBetween(layout, std::span(&id, 1), {id, ownStays}, last, height, endHeight(layout, goesOn));
  if (std::abs(endHeight(layout, goesOn) - endHeight(layout, last)) <= kClosingDistance)
    join(layout, id, ownMoves, moves.target, moves.tconn);

  std::vector<std::int32_t> touched = moving;
  touched.push_back(id);
  std::ranges::sort(touched);
  closeMeetingEnds(layout, touched);
  selectOnly(layout, id);
  step.keep();
  return {{id}, std::nullopt};
}

} // namespace trassix
