#include "editing/placing/flipping.h"

#include "document/limits.h"
#include "document/plan_content.h"
#include "document/undo_scope.h"
#include "editing/elevation/grade_runs.h"
#include "editing/joining/joining.h"
#include "editing/placing/placing.h"
#include "editing/placing/ways.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace trassix {

namespace {

/// The end that leads to the latest of the pieces that were there before, else to the first of the
/// later ones; connector 0 of a piece without joints.
std::int32_t placedBy(const Layout& layout, const PlacedPiece& piece) {
  std::int32_t best = 0;
  std::int32_t neighbour = -1;
  for (std::size_t i = 0; i < piece.joints.size(); ++i) {
    if (joinedPiece(layout, piece, i) == nullptr)
      continue;
    const std::int32_t id = piece.joints[i].target;
    const bool older = id < piece.id;
    if (neighbour == -1 || (older && (neighbour > piece.id || id > neighbour)) ||
        (!older && neighbour > piece.id && id < neighbour)) {
      best = static_cast<std::int32_t>(i);
      neighbour = id;
    }
  }
  return best;
}

/// Where track has to begin that goes on at this end, seen from the other side of it.
WorldConnector otherSide(const Layout& layout, const PlacedPiece& piece, const PieceDef& definition,
                         std::int32_t end) {
  const auto slot = static_cast<std::size_t>(end);
  if (const PlacedPiece* neighbour = joinedPiece(layout, piece, slot))
    if (const PieceDef* other = definitionOf(*neighbour))
      return ConnectorToWorld(*neighbour, *other, piece.joint(slot).tconn);
  WorldConnector at = ConnectorToWorld(piece, definition, end);
  at.heading = normaliseHeading(at.heading + 180);
  return at;
}

bool meets(const WorldConnector& a, const WorldConnector& b) {
  return std::hypot(a.x - b.x, a.y - b.y) <= kClosingDistance &&
         headingDifference(a.heading, b.heading + 180) <= kClosingFacing;
}

PlacedPiece flipped(const PlacedPiece& before, const PieceDef& definition, const Flip& how) {
  PlacedPiece piece = before;
  piece.x = how.pose.x;
  piece.y = how.pose.y;
  piece.heading = normaliseHeading(how.pose.heading);
  piece.joints = {};
  piece.joints.resize(definition.connectors.size());
  // The track goes on climbing, or falling, away from the joint.
  const double height = endHeight(before, definition, how.from);
  if (before.grade != 0)
    lay(piece, layTowards(piece, definition, how.to, oppositeEnd(definition, how.to), height,
                          -slopeOut(before, definition, how.from)));
  else
    piece.z = height;
  return piece;
}

/// Joints of the piece, but for the one it is held by, that lead to ends which it would not meet.
int opened(const Layout& layout, const PlacedPiece& before, const PieceDef& definition,
           const Flip& how) {
  const auto ends = WorldConnectorsOf(flipped(before, definition, how), definition);
  int count = 0;
  for (std::size_t i = 0; i < before.joints.size(); ++i) {
    const PlacedPiece* neighbour = joinedPiece(layout, before, i);
    const PieceDef* other = neighbour == nullptr ? nullptr : definitionOf(*neighbour);
    if (other == nullptr || static_cast<std::int32_t>(i) == how.from)
      continue;
    const WorldConnector there = ConnectorToWorld(*neighbour, *other, before.joints[i].tconn);
    count += std::ranges::any_of(ends, [&](const auto& end) { return meets(end, there); }) ? 0 : 1;
  }
  return count;
}

} // namespace

std::optional<Flip> flipOf(const Layout& layout, std::int32_t piece, int step, std::int32_t held) {
  const PlacedPiece* present = layout.findPiece(piece);
  const PieceDef* definition = present == nullptr ? nullptr : definitionOf(*present);
  if (definition == nullptr || definition->connectors.empty())
    return std::nullopt;
  Flip how;
  how.piece = piece;
  how.from = placedBy(layout, *present);
  if (present->joint(static_cast<std::size_t>(how.from)).open() && held >= 0 &&
      static_cast<std::size_t>(held) < definition->connectors.size())
    how.from = held;
  const TrackSystem system = definition->connectorSystem(static_cast<std::size_t>(how.from));
  how.to = wayAfter(*definition, how.from, step, system);
  if (how.to == how.from || how.to == -1)
    return std::nullopt;
  how.pose = AttachPose(*definition, how.to, otherSide(layout, *present, *definition, how.from));
  how.opens = opened(layout, *present, *definition, how);
  return how;
}

std::vector<Flip> flipsOf(const Layout& layout, std::int32_t piece) {
  std::vector<Flip> flips;
  for (int step = 1;; ++step) {
    const std::optional<Flip> how = flipOf(layout, piece, step);
    if (!how || (!flips.empty() && how->to == flips.front().to))
      return flips;
    if (how->to != how->from)
      flips.push_back(*how);
  }
}

ChangeResult flip(Layout& layout, const Flip& how) {
  const PlacedPiece before = *layout.findPiece(how.piece);
  const PieceDef& definition = *definitionOf(before);
  PlacedPiece after = flipped(before, definition, how);
  if (!fitsPlan(definition, how.pose, after.z))
    return beyondPlan();
  UndoScope step(layout);
  for (std::size_t i = 0; i < before.joints.size(); ++i)
    openJoint(layout, how.piece, static_cast<std::int32_t>(i));
  *layout.editPiece(how.piece) = std::move(after);
  if (const Joint joint = before.joint(static_cast<std::size_t>(how.from)); !joint.open())
    join(layout, how.piece, how.to, joint.target, joint.tconn);
  dropStaleRuns(layout, std::array{how.piece});
  closeMeetingEnds(layout, std::array{how.piece});
  return step.keep();
}

} // namespace trassix
