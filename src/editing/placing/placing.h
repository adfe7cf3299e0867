// How pieces come onto the plan. Each function pushes history exactly once when it is going to
// change something, joins what it places, closes ends that meet (see joining.h) and makes the chief
// new record the only selection.
#pragma once

#include "catalog/piece_def.h"
#include "document/layout.h"
#include "editing/edit_result.h"
#include "editing/joining/snapping.h"
#include "editing/track/connector_geometry.h"
#include "editing/track/track_end.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace trassix {

/// The level that something dropped without a snap lands on: the visible one with the greatest
/// height (the first of equal heights), else the active one.
std::int32_t dropLevel(const Layout& layout);

/// Whether the piece at this height and all its ends, to which others will be joined, lie within
/// the limits of a plan. What does not is refused by the edits below.
bool fitsPlan(const PieceDef& definition, const Pose& pose, double height = 0);

/// Appends a piece with all ends open and returns its id. A building block: pushes no history,
/// joins and selects nothing.
std::int32_t addPiece(Layout& layout, const PieceDef& definition, const Pose& pose,
                      std::int32_t level, double height);

/// Drops a carried piece: at the snapped pose, else at `pose`. With `snapping` on, a drop that did
/// not snap but touches an incompatible system is refused. Turntables bring their five spoke
/// tracks, articles sold in pairs their second piece. An article that is not in the catalogue
/// places nothing.
EditResult dropPiece(Layout& layout, std::string_view article, const Pose& pose,
                     const SnapResult& snap, bool snapping);

/// Where track is to go on, and by which of its own ends the new piece. Either is left to the rules
/// below when it is not given, or cannot be: the end is not open or its piece not selected, or the
/// own end of another system.
struct ExtensionWish {
  std::optional<TrackEnd> at;
  std::optional<std::int32_t> own;
};

/// Places another piece of the same article at an open end of `piece` (connector 1 first, then 0).
/// A one-sided joint blocks an end as well. Where none is open but the piece came as one of a pair,
/// the other one is extended. Pieces of a helix are left alone.
EditResult cloneAndExtend(Layout& layout, std::int32_t piece, const ExtensionWish& wish = {});

/// Where a new piece would go on.
struct Extension {
  TrackEnd at;
  std::int32_t own = -1; ///< the end of the new piece that joins there, -1 when none fits
};

/// The place of `article` at an open end of the selected piece with the highest id (connector 1, 0,
/// then 2 upwards): with its connector 0 or, at connector 0 of the selected piece, its 1; an
/// adapter is turned round when only its other end fits. Where none is open but the piece came as
/// one of a pair, at the other one. None when no piece is selected or all its ends are joined.
std::optional<Extension> extensionOf(const Layout& layout, std::string_view article,
                                     const ExtensionWish& wish = {});

/// Places it there. Refused when no end fits the system.
EditResult extendSelected(Layout& layout, std::string_view article, const ExtensionWish& wish = {});

/// Drops a scenery item. The roundhouse seats itself at the nearest turntable within reach, rather
/// at one that is scenery than at one of track, and on one of the directions of its tracks.
EditResult dropScenery(Layout& layout, std::string_view key, const Pose& pose);

/// True when the plan holds exactly one piece and it is of a small gauge: the view then starts over
/// at a scale that suits it.
bool wantsSmallTrackView(const Layout& layout);

} // namespace trassix
