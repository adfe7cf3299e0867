// What raised track stands on: the one answer for the 3D view, bridges and the tally. Lengths and
// heights in mm, heights above the baseboard.
#pragma once

#include "catalog/track_system.h"
#include "editing/supports/bridge_kind.h"
#include "editing/supports/deck_posts.h"
#include "editing/supports/grounds.h"
#include "editing/supports/pier_room.h"

#include <cstdint>
#include <vector>

namespace trassix {

enum class SupportKind : std::uint8_t {
  Pier,
  Rod,    ///< of a helix, all of whose turns hang on it
  Portal, ///< two legs beside what lies below, and a beam on them; its heading leads through it
};

struct Support {
  SupportKind kind = SupportKind::Pier;
  std::int32_t piece = -1; ///< one that it carries; the lowest one of a helix
  Pose pose;               ///< in the direction of the track
  double foot = 0;
  double head = 0;   ///< underside of the track, which is where the track's height is given
  double along = 0;  ///< size in the direction of the track
  double across = 0; ///< and across it; of a frame over both legs
  Ground ground;     ///< it stands on
  double beam = 0;   ///< height of a frame's

  bool operator==(const Support&) const = default;
};

/// Raised track between two neighbouring supports, or from one to an open end.
struct SupportSpan {
  std::vector<std::int32_t> pieces; ///< ids, from one support to the other
  double length = 0;                ///< of way
  BridgeKind bridge = BridgeKind::None;
  /// Why it is longer than track carries itself.
  enum class Reason : std::uint8_t { None, Bridge, Track, Road, Ground } reason = Reason::None;
};

struct SupportPlan {
  std::vector<Support> supports;
  std::vector<SupportSpan> spans;
  std::vector<DeckPost> posts;
};

/// Of the beam of a frame, whose upper side carries the track.
double portalBeam(TrackSystem system);

/// What of it stands on the ground: itself, or the two legs of a frame.
std::vector<Support> standingParts(const Support& support);

struct PierSize {
  double along = 0;
  double across = 0;
};
PierSize pierSize(TrackSystem system);

/// Track carries itself no farther, unless it is a bridge.
double longestSpan(TrackSystem system);

/// Piers under the joints of raised track, whatever levels are hidden: none under bridges but at
/// their ends, and none where they would be in the way of track or a road. There the pier is
/// narrower, or moves along the track, or is left out. Long pieces get piers between their ends.
/// Where a span is too long because other track lies below, or would be with piers of full size, a
/// frame over that carries its joint, if there is room for its beam.
/// Helices hang on rods.
SupportPlan supportsOf(const Layout& layout);

} // namespace trassix
