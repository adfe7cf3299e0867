// Which height and grade track gets from what it is joined to.
#pragma once

#include "editing/edit_result.h"
#include "editing/elevation/end_heights.h"
#include "editing/joining/snapping.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace trassix {

class Layout;

/// Called after each join of a new piece, which nothing else is joined to: it takes the height of
/// the very end that it joins, and goes on climbing where an open run covers that; else it is
/// level.
void inheritElevation(Layout& layout, std::int32_t newPiece, std::int32_t from,
                      std::int32_t connector);

/// Lifts track that comes to the plan or is put down, `group` (sorted ids), before it is joined by
/// its end `own` to `target`: as a whole, or, where it is level and an open run covers the target,
/// what hangs on that end goes on climbing, as evenly as its loops allow. Turntables and helices
/// are never tilted.
void landGroup(Layout& layout, std::span<const std::int32_t> group, TrackEnd own, TrackEnd target);

/// The same for each part of `group` that hangs together, at an end that lies on an open end of
/// other track, whatever their heights; of several `preferred`, else the one that is nearest in
/// height. Parts that meet nothing stay as they are.
void landWhereMeeting(Layout& layout, std::span<const std::int32_t> group,
                      const std::optional<TrackEnd>& preferred = std::nullopt);

/// Gives new pieces, joined in a row, the one grade with which they lead from the end `enter` of
/// the first, at its height, to the end `leave` of the last, at its own. Where no track can be so
/// steep they lie level at the first height.
void layBetween(Layout& layout, std::span<const std::int32_t> row, TrackEnd enter, TrackEnd leave,
                double heightAtEnter, double heightAtLeave);

/// An open end that lies on another one but for its height.
struct MissedEnd {
  TrackEnd own;
  TrackEnd other;
  double higher = 0; ///< mm by which `own` lies above `other`

  bool operator==(const MissedEnd&) const = default;
};

/// The ends of `group` (sorted ids) that closing tolerances would let join, were they not more than
/// 1.0 mm apart in height.
std::vector<MissedEnd> missedEnds(const Layout& layout, std::span<const std::int32_t> group);

/// Where the ends of a piece would lie that joins by this snap, heights included; no end that does
/// not.
std::vector<PlacedEnd> landedEnds(const Layout& layout, const PieceDef& definition,
                                  const SnapResult& snap);

/// "another end stays open: 4.2 mm higher", of the meetings of something carried the one that is
/// farthest off in height; empty when all can be joined.
std::string missText(std::span<const EndContact> meetings, std::int32_t units);

/// Names them to the user; empty when there are none.
std::optional<Notice> missedEndsNotice(const Layout& layout, std::span<const MissedEnd> missed);

/// "4.2 mm higher", "4.2 mm lower", in the given units; empty when less than 0.05 mm.
std::string higherText(double higher, std::int32_t units);

} // namespace trassix
