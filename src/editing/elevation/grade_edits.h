// What a user does with heights. Each function says what it would do, or why not; `applyHeights`
// does it as one undo step. Heights and lengths in mm, slopes as rise over length of way.
#pragma once

#include "editing/elevation/grades.h"
#include "editing/elevation/propagation.h"
#include "editing/elevation/train_way.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace trassix {

class Layout;

/// One grade for one piece or several that hang together, on all branches of turnouts. Spread over
/// loops, those from turnout to turnout bend as much as they must.
struct GradeTask {
  std::vector<std::int32_t> pieces; ///< sorted ids
  TrackEnd start;                   ///< an end of one of them, which keeps its height
  std::int32_t towards =
      -1; ///< end of that piece to climb to; -1: where the others are, else ahead
  double slope = 0;
  bool open = false; ///< what is joined goes on climbing
  double limit = kSteepestSlope;
  LoopRule loops = LoopRule::Refuse;
};
HeightPlan planGrade(const Layout& layout, const GradeTask& task);

/// The piece alone, as if it were to be gone on at its end `towards`: its other end stays.
GradeTask gradeOfPiece(const Layout& layout, std::int32_t piece, std::int32_t towards);

/// The ends of pieces (sorted ids) that lead to none of the others, in the order of the plan: where
/// a grade over them can start.
std::vector<TrackEnd> outerEnds(const Layout& layout, std::span<const std::int32_t> pieces);

/// Heights of all joints of a way, its first end first: one more than it has stretches. What hangs
/// on it is lifted along. Refused where the way is that of a helix or crosses itself.
HeightPlan planProfile(const Layout& layout, const TrainWay& way, std::span<const double> heights,
                       LoopRule loops = LoopRule::Refuse);

/// A joint of a way, by its number from 0, and its height.
struct Knee {
  std::size_t joint = 0;
  double height = 0;
};
/// The heights of all joints when the grade is even between neighbouring knees. Beyond the first
/// and the last one all is lifted as they are.
std::vector<double> heightsBetween(const TrainWay& way, std::span<const Knee> knees);

/// The way climbs to a height, its first end stays.
struct TargetTask {
  enum class Shape : std::uint8_t { OneGrade, SteepThenLevel };

  TrainWay way;
  double height = 0; ///< of its last end
  Shape shape = Shape::OneGrade;
  bool eased = true;
  double limit = kSteepestSlope;
  LoopRule loops = LoopRule::Refuse;
};
struct TargetPlan {
  HeightPlan heights;
  double slope = 0;  ///< the steepest of the way, also when that is refused; falling below 0
  double longer = 0; ///< mm by which the way would have to be longer
  int morePieces = 0;
  std::string morePiecesOf; ///< article of the straights that are counted
};
TargetPlan planTarget(const Layout& layout, const TargetTask& task);

/// How much the way climbs in one grade whose steepest part has this slope; mm.
double riseWith(const Layout& layout, const TrainWay& way, double slope, bool eased);

/// Lifts all that hangs together with the piece by `rise` mm.
HeightPlan planRaise(const Layout& layout, std::int32_t piece, double rise);

/// One end exactly so high: all that hangs together goes along, or the piece alone is tilted about
/// its other end and lifts what hangs on this one.
enum class EndRule : std::uint8_t { LiftAll, TiltPiece };
HeightPlan planEndHeight(const Layout& layout, TrackEnd end, double height, EndRule rule,
                         LoopRule loops = LoopRule::Refuse);

/// Lays the pieces level at the height of `start`.
HeightPlan planLevel(const Layout& layout, std::span<const std::int32_t> pieces, TrackEnd start,
                     LoopRule loops = LoopRule::Refuse);

/// Eases the changes of grade along the way, whose ends keep their heights.
HeightPlan planEase(const Layout& layout, const TrainWay& way, LoopRule loops = LoopRule::Refuse);

} // namespace trassix
