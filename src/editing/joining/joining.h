// Joining and un-joining, used by everything that places, moves or removes pieces.
#pragma once

#include "document/layout.h"
#include "editing/elevation/end_heights.h"
#include "editing/joining/end_grid.h"
#include "editing/track/connector_geometry.h"

#include <span>
#include <vector>

namespace trassix {

/// Tolerances within which ends that meet by geometry are joined although nobody snapped them.
inline constexpr double kClosingDistance = 1.0; ///< mm, in the plan; of grades also in height
inline constexpr double kClosingFacing = 1.0;   ///< degrees off exactly opposite

/// How far apart ends may be that count as meeting.
struct MeetingPlay {
  double distance = kClosingDistance; ///< mm
  double facing = kClosingFacing;     ///< degrees
  double height = kClosingDistance;   ///< mm, where one of the pieces is graded

  /// For ends that must lie on each other, as those that were never apart do.
  static MeetingPlay none() { return {0.01, 0.01, kSameHeight}; }
};

/// The piece joined there, when it says so too. Null for an open end and for a joint that only this
/// piece knows of, as a file from elsewhere can hold: such a one blocks its end and leads nowhere.
const PlacedPiece* joinedPiece(const Layout& layout, const PlacedPiece& piece,
                               std::size_t connector);

/// Writes the joint on both pieces, lengthening their joint tables as needed. Does nothing unless
/// both pieces have such an end and both ends are open.
void join(Layout& layout, std::int32_t a, std::int32_t connectorA, std::int32_t b,
          std::int32_t connectorB);

/// Opens the joint at this connector on both sides; an open one stays as it is.
void openJoint(Layout& layout, std::int32_t piece, std::int32_t connector);

/// Opens every joint between a piece of `pieces` (sorted ids) and one that is not among them.
void detach(Layout& layout, std::span<const std::int32_t> pieces);

/// What `detach` would do.
struct Detachment {
  bool opensJoints = false;
  bool opensGradedJoints = false; ///< a graded piece on either side: the user is asked first
};
Detachment detachmentOf(const Layout& layout, std::span<const std::int32_t> pieces);

/// Joins each free connector of `pieces` (sorted ids) with the nearest free connector of any other
/// piece that it meets within the play, same system; of equally near ones with the first in
/// document order. Level track is joined only where it leaves no step. No pose changes. Returns the
/// number of joints made.
int closeMeetingEnds(Layout& layout, std::span<const std::int32_t> pieces, MeetingPlay play = {});

/// Whether the two ends of a contact, which are of different pieces, meet within the play but for
/// their heights, and whether their heights do: those of level track leave no step.
bool meetsInPlan(const EndContact& contact, const MeetingPlay& play = {});
bool meetsInHeight(const EndContact& contact, const MeetingPlay& play = {});

/// The open ends of any other piece that the open ends of `pieces` (sorted ids) meet within the
/// play but for their heights, same system.
std::vector<EndContact> openContacts(const Layout& layout, std::span<const std::int32_t> pieces,
                                     const MeetingPlay& play = {});

/// True when `id` is among the sorted ids.
bool containsId(std::span<const std::int32_t> sortedIds, std::int32_t id);

} // namespace trassix
