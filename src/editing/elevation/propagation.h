// New heights of some track and what they bring about in all that is joined to it.
#pragma once

#include "document/grade_run.h"
#include "editing/edit_result.h"
#include "editing/elevation/end_heights.h"
#include "editing/elevation/grades.h"
#include "geometry/point.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace trassix {

class Layout;

/// Where track comes round to itself and the change does not add up.
struct LoopGap {
  TrackEnd end; ///< one side of the joint that would get a step
  TrackEnd other;
  Point at;        ///< of the joint
  double step = 0; ///< mm by which `other` would come to lie higher above `end` than it does

  bool operator==(const LoopGap&) const = default;
};

/// What becomes of a change that does not add up round a loop: it is refused, or the rest of the
/// loop takes it, over its whole length, so that the grades there change least.
enum class LoopRule : std::uint8_t { Refuse, Spread };

/// What an edit of heights will do: nothing is changed before `applyHeights`.
struct HeightPlan {
  std::vector<PieceHeight> pieces; ///< all that get another height, in document order
  std::optional<Notice> refusal;   ///< then there are none
  std::optional<LoopGap> gap;      ///< the reason of a refusal that `LoopRule::Spread` may lift
  std::optional<GradeRun> run;     ///< a run that is opened with it

  bool possible() const { return !refusal.has_value(); }
};

/// Gives pieces new heights (no two of the same piece) and lifts all that hangs on them so that no
/// joint gets more of a step than it has. A helix, a tunnel with its portals, a turntable with its
/// tracks are lifted whole, a tunnel only if nothing in it is to change itself. Refused where the
/// rest of a loop would become steeper than `limit`, and than it is.
HeightPlan planHeights(const Layout& layout, std::span<const PieceHeight> wanted,
                       LoopRule rule = LoopRule::Refuse, double limit = kSteepestSlope);

/// Does it as one undo step; ends that come to lie on others are joined, and runs end whose anchor
/// has no longer their grade. Nothing changes when the plan is refused or all is as it was. With
/// `continued` it belongs to the step before it and pushes no history of its own.
ChangeResult applyHeights(Layout& layout, const HeightPlan& plan, bool continued = false);

/// Where an end is on the plan; the piece's own place when it has no such end.
Point placeOf(const PlacedPiece& piece, std::int32_t connector);

/// The steepest of the pieces that get another slope by the plan, rise over length from its
/// connector 0 on; -1 and 0 when none does.
struct SteepPiece {
  std::int32_t piece = -1; ///< id
  double slope = 0;
};
SteepPiece steepestOf(const Layout& layout, const HeightPlan& plan);

/// Names a joint for the user: the articles on both sides and where it is.
std::string placeText(const Layout& layout, TrackEnd end, TrackEnd other);

/// What hangs on a piece beyond the joint at `end`, when that is open; sorted ids. With the piece
/// itself when the track comes round to it.
std::vector<std::int32_t> hangingBeyond(const Layout& layout, TrackEnd end);

} // namespace trassix
