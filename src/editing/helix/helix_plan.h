// A helix of a kit as pieces of track: reckoned from what a user chooses, and read back from what
// lies on the plan.
#pragma once

#include "catalog/helix_kits.h"
#include "document/records_fwd.h"
#include "geometry/pose.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace trassix {

class Layout;

/// Which way trains turn that go up.
enum class HelixHand : std::uint8_t { Right, Left };

/// A helix that stands at its `centre`. At its bottom, trains that go up travel with the centre's
/// heading, beside the centre, on a level with one another where there are two tracks. Lengths in
/// mm.
struct HelixPlan {
  const HelixKit* kit = nullptr;
  HelixHand hand = HelixHand::Right;
  double pitch = 0; ///< by which it climbs in one turn
  Pose centre;
  double height = 0; ///< of its bottom ends

  double climb() const { return kit->turns * pitch; }
  /// Rise over length of way, on the inner or, with `outer`, the outer track.
  double slope(bool outer) const;
};

/// A helix as a user wants it, before it has a place on the plan.
struct HelixWish {
  HelixPlan plan;         ///< its place and height say nothing
  bool leadsDown = false; ///< it is joined by its top, and leads down from there
};

/// A helix of the kit, with a pitch for trains with wire where that is comfortable, else without.
HelixWish usualHelix(const HelixKit& kit);

/// What the decimals of a file may take from a pitch, in mm.
inline constexpr double kPitchPlay = 0.01;

/// The least rise of a turn under which trains of a system pass, with rails and deck.
double leastPitch(TrackSystem system, bool wire);

/// Pieces of one track from bottom to top, with joints by their places in the list in the place of
/// ids, `connector` at which trains that go up enter each of them. Ids, levels and helix are left
/// to the caller.
struct HelixTrack {
  std::vector<PlacedPiece> pieces;
  std::int32_t enter = 0;
};

/// One track, or two, the inner one first.
std::vector<HelixTrack> helixTracks(const HelixPlan& plan);

/// What the pieces of a helix say of how it was made; none when its kit is unknown or its ends are
/// not there.
std::optional<HelixPlan> planOfHelix(const Layout& layout, const Helix& helix);

} // namespace trassix
