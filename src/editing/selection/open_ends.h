// Open ends of track as things that can be pointed at.
#pragma once

#include "document/layout.h"
#include "editing/selection/plan_index.h"
#include "editing/track/connector_geometry.h"
#include "editing/track/track_end.h"

#include <optional>

namespace trassix {

/// Whether the piece has this end and nothing is joined there, not even one-sidedly.
bool isOpenEnd(const PlacedPiece& piece, std::int32_t connector);

/// Where it is on the plan; none when there is no such piece or end.
std::optional<WorldConnector> endAt(const Layout& layout, TrackEnd end);

/// How far from an open end it can be pointed at, in mm: 8 px, but no more than a quarter of the
/// piece, so that the piece itself can be.
double endReach(const PieceDef& definition, double mmPerPx);

/// The nearest open end within its reach of a point, of pieces that can be seen.
std::optional<TrackEnd> openEndNear(const Layout& layout, const PlanIndex& index, Point at,
                                    double mmPerPx);

/// The next open end in the order of ids and ends, or with a step of -1 the one before, round and
/// round. `end` need not be one itself.
/// Tracks of a turntable that nothing is joined to wait for nothing and are passed over.
std::optional<TrackEnd> openEndAfter(const Layout& layout, const std::optional<TrackEnd>& end,
                                     int step);

} // namespace trassix
