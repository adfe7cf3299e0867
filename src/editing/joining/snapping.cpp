#include "editing/joining/snapping.h"

#include "document/plan_content.h"
#include "editing/joining/end_grid.h"
#include "editing/joining/joining.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <tuple>

namespace trassix {

namespace {

double distanceBetween(Point a, Point b) {
  return std::hypot(a.x - b.x, a.y - b.y);
}

bool withinReach(double distance) {
  return distance <= kSnapDistance;
}

bool mayFace(double headingA, double headingB) {
  return headingDifference(headingA, headingB) >= kSnapFacing;
}

/// Whether one of the ends knows of the joint that the other end has with its piece.
bool leaves(std::span<const PlacedEnd> ends, const PlacedEnd& other) {
  return std::ranges::any_of(ends, [&other](const PlacedEnd& end) {
    return end.piece == other.joinedTo && end.joinedTo == other.piece;
  });
}

SnapResult snapOnto(const PieceDef& carried, std::int32_t connector, const PlacedEnd& target,
                    double distance) {
  const WorldConnector end{target.at.x, target.at.y, target.heading, true, target.connector};
  return {true,    target.piece, target.connector, connector, AttachPose(carried, connector, end),
          distance};
}

} // namespace

SnapResult FindSnap(const PieceDef& carried, const Pose& pose,
                    std::span<const PlacedPiece> candidates) {
  const auto own = WorldConnectorsOf(pieceAt(pose), carried);
  SnapResult best;
  best.distance = std::numeric_limits<double>::max();
  std::vector<PlacedEnd> ends;
  for (const PlacedPiece& candidate : candidates) {
    ends.clear();
    appendEnds(ends, candidate, 0, true);
    for (const PlacedEnd& end : ends) {
      if (end.joinedTo != -1)
        continue;
      for (std::size_t i = 0; i < own.size(); ++i) {
        const double distance = distanceBetween(end.at, {own[i].x, own[i].y});
        if (carried.connectorSystem(i) == end.system && withinReach(distance) &&
            mayFace(end.heading, own[i].heading) && distance < best.distance)
          best = snapOnto(carried, own[i].index, end, distance);
      }
    }
  }
  return best.snapped ? best : SnapResult{};
}

std::optional<IncompatibleContact> FindIncompatibleContact(const PieceDef& carried,
                                                           const Pose& pose,
                                                           std::span<const PlacedPiece> pieces) {
  const auto own = WorldConnectorsOf(pieceAt(pose), carried);
  std::vector<PlacedEnd> ends;
  for (const PlacedPiece& piece : pieces) {
    ends.clear();
    appendEnds(ends, piece, 0, true);
    for (const PlacedEnd& end : ends)
      for (std::size_t i = 0; i < own.size(); ++i)
        if (carried.connectorSystem(i) != end.system &&
            withinReach(distanceBetween(end.at, {own[i].x, own[i].y})) &&
            mayFace(end.heading, own[i].heading))
          return IncompatibleContact{carried.connectorSystem(i), end.system};
  }
  return std::nullopt;
}

std::vector<PlacedEnd> endsOfCarried(const PieceDef& carried, const Pose& pose) {
  std::vector<PlacedEnd> ends;
  for (const WorldConnector& end : WorldConnectorsOf(pieceAt(pose), carried)) {
    PlacedEnd own;
    own.at = {end.x, end.y};
    own.heading = end.heading;
    own.system = carried.connectorSystem(static_cast<std::size_t>(end.index));
    own.connector = end.index;
    ends.push_back(own);
  }
  return ends;
}

RigidMotion motionOnto(const PlacedEnd& own, const PlacedEnd& target) {
  return {own.at, {target.at.x, target.at.y, normaliseHeading(target.heading + 180 - own.heading)}};
}

struct SnapIndex::Data {
  std::uint64_t stamp = 0;
  EndGrid grid;
};

SnapIndex::SnapIndex() : data_(std::make_unique<Data>()) {}

SnapIndex::SnapIndex(const Layout& layout)
    : data_(std::make_unique<Data>(Data{layout.documentStamp(), EndGrid(endsOf(layout))})) {}

SnapIndex::~SnapIndex() = default;
SnapIndex::SnapIndex(SnapIndex&&) noexcept = default;
SnapIndex& SnapIndex::operator=(SnapIndex&&) noexcept = default;

std::uint64_t SnapIndex::stamp() const {
  return data_->stamp;
}

SnapResult SnapIndex::findSnap(const PieceDef& carried, const Pose& pose) const {
  const std::vector<PlacedEnd> own = endsOfCarried(carried, pose);
  const auto contact = findGroupSnap(own, {});
  return contact ? snapOnto(carried, contact->own.connector, contact->target, contact->distance)
                 : SnapResult{};
}

std::optional<EndContact> SnapIndex::findGroupSnap(std::span<const PlacedEnd> ends,
                                                   std::span<const std::int32_t> group) const {
  const PlacedEnd* target = nullptr;
  const PlacedEnd* own = nullptr;
  double best = std::numeric_limits<double>::max();
  for (const PlacedEnd& mine : ends) {
    data_->grid.visitNear(mine.at, kSnapDistance, [&](const PlacedEnd& end) {
      if (!end.visible || end.system != mine.system ||
          (end.joinedTo != -1 && !(containsId(group, end.joinedTo) && leaves(ends, end))))
        return;
      const double distance = distanceBetween(end.at, mine.at);
      if (!withinReach(distance) || distance > best || !mayFace(end.heading, mine.heading) ||
          containsId(group, end.piece))
        return;
      // Of equal distances the pair that the plain loops meet first wins.
      if (distance == best &&
          std::tie(target->position, target->connector, own->position, own->connector) <
              std::tie(end.position, end.connector, mine.position, mine.connector))
        return;
      target = &end;
      own = &mine;
      best = distance;
    });
  }
  if (target == nullptr)
    return std::nullopt;
  return EndContact{*own, *target, best};
}

std::vector<EndContact> SnapIndex::findMeetings(std::span<const PlacedEnd> ends,
                                                std::span<const std::int32_t> group) const {
  const auto rank = [](const EndContact& contact) {
    return std::pair(!meetsInHeight(contact), contact.distance);
  };
  std::vector<EndContact> meetings;
  for (const PlacedEnd& mine : ends) {
    std::optional<EndContact> best;
    data_->grid.visitNear(mine.at, kClosingDistance, [&](const PlacedEnd& end) {
      const EndContact contact{mine, end, distanceBetween(end.at, mine.at)};
      if (!containsId(group, end.piece) && meetsInPlan(contact) &&
          (end.joinedTo == -1 || (containsId(group, end.joinedTo) && leaves(ends, end))) &&
          (!best || rank(contact) < rank(*best)))
        best = contact;
    });
    if (best)
      meetings.push_back(*best);
  }
  return meetings;
}

std::optional<EndContact> SnapIndex::findJoint(const PlacedEnd& own, double reach,
                                               double facing) const {
  std::optional<EndContact> best;
  const auto rank = [&own](const PlacedEnd& end, double distance) {
    // Both ends of a joint lie on one spot but for rounding.
    return std::tuple(std::llround(distance * 100), -headingDifference(end.heading, own.heading),
                      end.position, end.connector);
  };
  data_->grid.visitNear(own.at, reach, [&](const PlacedEnd& end) {
    const double distance = distanceBetween(end.at, own.at);
    if (end.joinedTo == -1 || !end.visible || end.system != own.system || !(distance <= reach) ||
        headingDifference(end.heading, own.heading) < facing)
      return;
    if (!best || rank(end, distance) < rank(best->target, best->distance))
      best = EndContact{own, end, distance};
  });
  return best;
}

std::optional<IncompatibleContact> SnapIndex::findIncompatibleContact(const PieceDef& carried,
                                                                      const Pose& pose) const {
  const auto own = WorldConnectorsOf(pieceAt(pose), carried);
  const PlacedEnd* other = nullptr;
  std::int32_t connector = -1;
  for (const WorldConnector& mine : own) {
    const TrackSystem system = carried.connectorSystem(static_cast<std::size_t>(mine.index));
    data_->grid.visitNear({mine.x, mine.y}, kSnapDistance, [&](const PlacedEnd& end) {
      if (end.system == system || !withinReach(distanceBetween(end.at, {mine.x, mine.y})) ||
          !mayFace(end.heading, mine.heading))
        return;
      if (other != nullptr && std::tie(other->position, other->connector, connector) <
                                  std::tie(end.position, end.connector, mine.index))
        return;
      other = &end;
      connector = mine.index;
    });
  }
  if (other == nullptr)
    return std::nullopt;
  return IncompatibleContact{carried.connectorSystem(static_cast<std::size_t>(connector)),
                             other->system};
}

} // namespace trassix
