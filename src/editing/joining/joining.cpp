#include "editing/joining/joining.h"

#include "catalog/track_catalog.h"
#include "document/plan_content.h"
#include "editing/joining/end_grid.h"
#include "geometry/box.h"

#include <algorithm>
#include <cmath>
#include <tuple>
#include <utility>

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

bool meetsInPlan(const EndContact& contact, const MeetingPlay& play) {
  const PlacedEnd& a = contact.own;
  const PlacedEnd& b = contact.target;
  return a.piece != b.piece && a.system == b.system && contact.distance <= play.distance &&
         180.0 - headingDifference(a.heading, b.heading) <= play.facing;
}

bool meetsInHeight(const EndContact& contact, const MeetingPlay& play) {
  const double apart = std::abs(contact.own.height - contact.target.height);
  return apart <= (contact.own.graded || contact.target.graded ? play.height : kSameHeight);
}

std::vector<EndContact> openContacts(const Layout& layout, std::span<const std::int32_t> pieces,
                                     const MeetingPlay& play) {
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
    return {};
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

  std::vector<EndContact> contacts;
  const EndGrid grid(std::move(others));
  for (const PlacedEnd& mine : own)
    grid.visitNear(mine.at, play.distance, [&](const PlacedEnd& end) {
      const EndContact contact{mine, end, std::hypot(end.at.x - mine.at.x, end.at.y - mine.at.y)};
      if (meetsInPlan(contact, play))
        contacts.push_back(contact);
    });
  std::ranges::stable_sort(contacts, {}, [](const EndContact& contact) {
    return std::tuple(contact.own.position, contact.own.connector, contact.distance,
                      contact.target.position, contact.target.connector);
  });
  return contacts;
}

int closeMeetingEnds(Layout& layout, std::span<const std::int32_t> pieces, MeetingPlay play) {
  const auto isOpen = [&layout](const PlacedEnd& end) {
    const PlacedPiece* piece = layout.findPiece(end.piece);
    return piece != nullptr && piece->joint(static_cast<std::size_t>(end.connector)).open();
  };
  int made = 0;
  for (const EndContact& contact : openContacts(layout, pieces, play)) {
    if (!meetsInHeight(contact, play) || !isOpen(contact.own) || !isOpen(contact.target))
      continue;
    join(layout, contact.own.piece, contact.own.connector, contact.target.piece,
         contact.target.connector);
    ++made;
  }
  return made;
}

} // namespace trassix
