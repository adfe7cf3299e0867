// Open runs of track on a constant grade: what is joined to them goes on climbing. A run's
// connector is the end of its anchor where track goes on; the anchor climbs towards it and its
// opposite end keeps its height. The run covers what hangs on that end at its grade, on all
// branches of turnouts.
#pragma once

#include "editing/edit_result.h"
#include "editing/elevation/end_heights.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace trassix {

class Layout;

/// The anchor of the open run that covers the piece; -1 when none does. A piece that two runs cover
/// belongs to the later one.
std::int32_t runOver(const Layout& layout, std::int32_t piece);

/// The slope with which track goes on at an open end: that of the run which covers the piece, else
/// 0. The anchor hands its grade on by the run's connector only.
double slopeGoingOn(const Layout& layout, TrackEnd end);

/// Ends the run over the piece as one undo step: track that is joined afterwards is level, what is
/// there stays as it is. False when no run covers it.
bool endGradeHere(Layout& layout, std::int32_t piece);

/// Ends runs whose anchor is among `pieces` (sorted ids) and no longer climbs as they say, and
/// makes the last one the current grade. A step of other edits: records no history.
void dropStaleRuns(Layout& layout, std::span<const std::int32_t> pieces);

/// What leads in the status field while runs are open: "[ELEV]", their angles and how to end them;
/// empty when none is.
std::string elevationStatus(const Layout& layout);

} // namespace trassix
