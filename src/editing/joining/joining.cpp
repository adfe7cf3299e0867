#include "editing/joining/joining.h"

#include "catalog/track_catalog.h"
#include "editing/joining/end_grid.h"
#include "editing/track/routes.h"
#include "geometry/box.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace trassix {

namespace {

void writeJoint(PlacedPiece& piece, std::int32_t connector, Joint joint) {
  const auto slot = static_cast<std::size_t>(connector);
  if (piece.joints.size() <= slot)
    piece.joints.resize(slot + 1);
  piece.joints[slot] = joint;
}

bool hasOpenEnd(const Layout& layout, std::int32_t id, std::int32_t connector) {
  const PlacedPiece* piece = layout.findPiece(id);
  if (piece == nullptr || connector < 0)
    return false;
  const PieceDef* definition = definitionOf(*piece);
  const auto slot = static_cast<std::size_t>(connector);
  const std::size_t ends =
      definition == nullptr ? piece->joints.size() : definition->connectors.size();
  return slot < ends && piece->joint(slot).open();
}

bool meet(const PlacedEnd& a, const PlacedEnd& b, double distance, MeetingPlay play) {
  return a.piece != b.piece && a.system == b.system && distance <= play.distance &&
         std::abs(a.height - b.height) <= (a.graded || b.graded ? play.height : kSameHeight) &&
         180.0 - headingDifference(a.heading, b.heading) <= play.facing;
}

/// Where the pieces lie that can have an end within `distance` mm of one of these, of which there
/// must be any.
Box aroundPiecesOf(std::span<const PlacedEnd> ends, double distance) {
  constexpr double kSlack = 1; // for rounding
  const double reach = TrackCatalog::instance().farthestEnd() + distance + kSlack;
  const auto x = std::ranges::minmax(ends, {}, [](const PlacedEnd& end) { return end.at.x; });
  const auto y = std::ranges::minmax(ends, {}, [](const PlacedEnd& end) { return end.at.y; });
  return {x.min.at.x - reach, y.min.at.y - reach, x.max.at.x + reach, y.max.at.y + reach};
}

/// Calls `visit(piece, connector, joint)` for each joint that leads out of `pieces`.
template <class Visit>
void visitOutwardJoints(const Layout& layout, std::span<const std::int32_t> pieces, Visit visit) {
  for (const std::int32_t id : pieces) {
    const PlacedPiece* piece = layout.findPiece(id);
    for (std::size_t i = 0; piece != nullptr && i < piece->joints.size(); ++i) {
      const Joint joint = piece->joints[i];
      if (!joint.open() && !containsId(pieces, joint.target))
        visit(*piece, static_cast<std::int32_t>(i), joint);
    }
  }
}

} // namespace

bool containsId(std::span<const std::int32_t> sortedIds, std::int32_t id) {
  return std::binary_search(sortedIds.begin(), sortedIds.end(), id);
}

bool isGraded(const PlacedPiece& piece) {
  return std::abs(piece.grade) > 0.001;
}

double endHeight(const PlacedPiece& piece, const PieceDef& definition, std::int32_t connector) {
  if (piece.grade == 0)
    return piece.z;
  for (const Route& route : routesOf(definition)) {
    if (route.to == connector) {
      const double rise = routeLength(route) * std::sin(toRadians(piece.grade));
      return piece.rev ? piece.z - rise : piece.z + rise;
    }
  }
  return piece.z;
}

const PlacedPiece* joinedPiece(const Layout& layout, const PlacedPiece& piece,
                               std::size_t connector) {
  const Joint joint = piece.joint(connector);
  const PlacedPiece* other = layout.findPiece(joint.target);
  const Joint back{piece.id, static_cast<std::int32_t>(connector)};
  return other != nullptr && other->id != piece.id &&
                 other->joint(static_cast<std::size_t>(joint.tconn)) == back
             ? other
             : nullptr;
}

void join(Layout& layout, std::int32_t a, std::int32_t connectorA, std::int32_t b,
          std::int32_t connectorB) {
  if (a == b || !hasOpenEnd(layout, a, connectorA) || !hasOpenEnd(layout, b, connectorB))
    return;
  writeJoint(*layout.editPiece(a), connectorA, {b, connectorB});
  writeJoint(*layout.editPiece(b), connectorB, {a, connectorA});
}

void openJoint(Layout& layout, std::int32_t piece, std::int32_t connector) {
  const PlacedPiece* own = layout.findPiece(piece);
  if (own == nullptr)
    return;
  const auto slot = static_cast<std::size_t>(connector);
  const Joint joint = own->joint(slot);
  if (joint.open())
    return;
  if (joinedPiece(layout, *own, slot) != nullptr)
    writeJoint(*layout.editPiece(joint.target), joint.tconn, {});
  writeJoint(*layout.editPiece(piece), connector, {});
}

void detach(Layout& layout, std::span<const std::int32_t> pieces) {
  visitOutwardJoints(layout, pieces,
                     [&layout](const PlacedPiece& piece, std::int32_t connector, Joint) {
                       openJoint(layout, piece.id, connector);
                     });
}

Detachment detachmentOf(const Layout& layout, std::span<const std::int32_t> pieces) {
  Detachment result;
  visitOutwardJoints(layout, pieces,
                     [&](const PlacedPiece& piece, std::int32_t, const Joint& joint) {
                       result.opensJoints = true;
                       const PlacedPiece* other = layout.findPiece(joint.target);
                       if (isGraded(piece) || (other != nullptr && isGraded(*other)))
                         result.opensGradedJoints = true;
                     });
  return result;
}

int closeMeetingEnds(Layout& layout, std::span<const std::int32_t> pieces, MeetingPlay play) {
  std::vector<PlacedEnd> own;
  std::vector<PlacedEnd> others;
  std::int32_t position = 0;
  // Only the few ends near one of ours are kept, so that the cost is one pass over the plan.
  for (const PlacedPiece& piece : layout.pieces()) {
    if (containsId(pieces, piece.id))
      appendEnds(own, piece, position, true);
    ++position;
  }
  std::erase_if(own, [](const PlacedEnd& end) { return end.joinedTo != -1; });
  if (own.empty())
    return 0;
  const EndGrid ownGrid(own);
  const Box mayMeet = aroundPiecesOf(own, play.distance);
  position = 0;
  std::vector<PlacedEnd> ends;
  for (const PlacedPiece& piece : layout.pieces()) {
    const std::int32_t at = position++;
    if (!holds(mayMeet, {piece.x, piece.y}))
      continue;
    ends.clear();
    appendEnds(ends, piece, at, true);
    for (const PlacedEnd& end : ends) {
      bool near = false;
      if (end.joinedTo == -1)
        ownGrid.visitNear(end.at, play.distance, [&near](const PlacedEnd&) { near = true; });
      if (near)
        others.push_back(end);
    }
  }

  int made = 0;
  const EndGrid grid(std::move(others));
  for (const PlacedEnd& mine : own) {
    const PlacedEnd* nearest = nullptr;
    double best = std::numeric_limits<double>::max();
    grid.visitNear(mine.at, play.distance, [&](const PlacedEnd& end) {
      const double distance = std::hypot(end.at.x - mine.at.x, end.at.y - mine.at.y);
      if (!meet(mine, end, distance, play) || distance > best ||
          (distance == best && std::pair(nearest->position, nearest->connector) <
                                   std::pair(end.position, end.connector)))
        return;
      const PlacedPiece* other = layout.findPiece(end.piece);
      if (other == nullptr || !other->joint(static_cast<std::size_t>(end.connector)).open())
        return;
      nearest = &end;
      best = distance;
    });
    const PlacedPiece* piece = layout.findPiece(mine.piece);
    if (nearest == nullptr || !piece->joint(static_cast<std::size_t>(mine.connector)).open())
      continue;
    join(layout, mine.piece, mine.connector, nearest->piece, nearest->connector);
    ++made;
  }
  return made;
}

} // namespace trassix
