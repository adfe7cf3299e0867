#include "editing/elevation/grade_edits.h"

#include "document/layout.h"
#include "document/plan_content.h"
#include "editing/elevation/climbing.h"
#include "editing/elevation/easing.h"
#include "editing/joining/joining.h"
#include "editing/selection/selection.h"
#include "editing/track/connector_geometry.h"
#include "editing/track/routes.h"
#include "measures/measure_format.h"
#include "texts/texts.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <optional>
#include <utility>

namespace trassix {

namespace {

constexpr double kRounding = 1e-9; // of a slope

HeightPlan refused(std::string reason) {
  HeightPlan plan;
  plan.refusal = Notice{tr("Heights"), std::move(reason)};
  return plan;
}

HeightPlan refused(Notice notice) {
  HeightPlan plan;
  plan.refusal = std::move(notice);
  return plan;
}

std::string percentText(double slope) {
  return formatFixed(std::abs(percentOf(slope)), 1);
}

const PlacedPiece& pieceOf(const Layout& layout, const WayStretch& stretch) {
  return *layout.findPiece(stretch.piece);
}

/// mm of the stretch that climb.
double runOf(const Layout& layout, const WayStretch& stretch) {
  const PieceDef& definition = *definitionOf(pieceOf(layout, stretch));
  return std::abs(runTo(definition, stretch.leave) - runTo(definition, stretch.enter));
}

/// Why the way cannot be given heights.
std::optional<Notice> wayRefusal(const Layout& layout, const TrainWay& way) {
  const auto notice = [](std::string text) { return Notice{tr("Heights"), std::move(text)}; };
  if (way.empty() || !std::ranges::all_of(way.stretches, [&layout](const WayStretch& stretch) {
        return layout.findPiece(stretch.piece) != nullptr;
      }))
    return notice(tr("No train can go there."));
  std::vector<std::int32_t> ids;
  for (const WayStretch& stretch : way.stretches)
    ids.push_back(stretch.piece);
  std::ranges::sort(ids);
  if (auto locked = helixGuard(layout, ids, "grad"))
    return locked;
  for (const WayStretch& stretch : way.stretches)
    if (!takesGrade(pieceOf(layout, stretch)))
      return notice(tr("%1% takes no grade.", {pieceOf(layout, stretch).cat}));
  if (way.crossesItself())
    return notice(tr("The way leads over one piece twice, which cannot have two heights."));
  return std::nullopt;
}

/// The slope of a train that comes to the way, and of one that leaves it; level track where nothing
/// is joined.
double slopeBefore(const Layout& layout, const TrainWay& way) {
  const TrackEnd from = beyond(layout, way.start());
  const PlacedPiece* piece = layout.findPiece(from.piece);
  return piece == nullptr ? 0 : slopeOut(*piece, *definitionOf(*piece), from.connector);
}

double slopeAfter(const Layout& layout, const TrainWay& way) {
  const TrackEnd to = beyond(layout, way.end());
  const PlacedPiece* piece = layout.findPiece(to.piece);
  return piece == nullptr ? 0 : -slopeOut(*piece, *definitionOf(*piece), to.connector);
}

Climb climbOf(const Layout& layout, const TrainWay& way, bool eased) {
  Climb climb;
  for (const WayStretch& stretch : way.stretches)
    climb.lengths.push_back(runOf(layout, stretch));
  if (eased) {
    climb.before = slopeBefore(layout, way);
    climb.after = slopeAfter(layout, way);
    const TrackSystem system = definitionOf(pieceOf(layout, way.stretches.front()))->system;
    climb.change = kEasingChange / easingLength(system);
  }
  return climb;
}

double steepest(const std::vector<double>& slopes) {
  return *std::ranges::max_element(slopes, {}, [](double slope) { return std::abs(slope); });
}

HeightPlan planSlopes(const Layout& layout, const TrainWay& way, const std::vector<double>& slopes,
                      LoopRule loops, double limit) {
  std::vector<PieceHeight> wanted;
  double height = endHeight(layout, way.start());
  for (std::size_t i = 0; i < way.stretches.size(); ++i) {
    const WayStretch& stretch = way.stretches[i];
    const PlacedPiece& piece = pieceOf(layout, stretch);
    const double slope = std::abs(slopes[i]) < kRounding ? 0 : slopes[i];
    wanted.push_back(
        layTowards(piece, *definitionOf(piece), stretch.enter, stretch.leave, height, slope));
    height += runOf(layout, stretch) * slope;
  }
  return planHeights(layout, wanted, loops, limit);
}

/// The first pieces of the way climb, the fewest that can; the others lie level.
std::optional<std::vector<double>> steepThenLevel(const Climb& climb, double rise, double limit) {
  for (std::size_t count = 1; count < climb.lengths.size(); ++count) {
    Climb first = climb;
    first.lengths.resize(count);
    first.after = 0;
    std::optional<std::vector<double>> slopes = slopesFor(first, rise);
    if (!slopes || std::abs(steepest(*slopes)) > limit + kRounding)
      continue;
    slopes->resize(climb.lengths.size(), 0.0);
    return slopes;
  }
  return slopesFor(climb, rise);
}

/// The same with up for down.
Climb turnedOver(Climb climb) {
  climb.before = -climb.before;
  climb.after = -climb.after;
  return climb;
}

/// Says by how much the way is too short for the rise.
void tellTooSteep(const Layout& layout, const TargetTask& task, Climb climb, double rise,
                  TargetPlan& plan) {
  if (rise < 0)
    climb = turnedOver(std::move(climb));
  const double missing = std::abs(rise) - mostRise(climb, task.limit);
  plan.longer = task.limit > 0 ? std::max(0.0, missing / task.limit) : 0;
  const PieceDef* straight =
      usualStraight(definitionOf(pieceOf(layout, task.way.stretches.front()))->system);
  if (straight != nullptr) {
    constexpr double kMost = 1e6; // of any use to tell
    plan.morePieces =
        static_cast<int>(std::ceil(std::min(plan.longer / straight->length - kRounding, kMost)));
    plan.morePiecesOf = straight->article;
  }
  const std::string reason = std::abs(plan.slope) > task.limit
                                 ? tr("That would be %1% %%, and %2% %% are allowed.",
                                      {percentText(plan.slope), percentText(task.limit)})
                                 : tr("Eased at both ends the way cannot climb so much.");
  plan.heights =
      refused(reason + " " +
              trCount("It has to be %2% longer: one more piece like %3%.",
                      "It has to be %2% longer: %1% more pieces like %3%.",
                      static_cast<std::uint64_t>(plan.morePieces),
                      {formatLength(plan.longer, layout.settings().units), plan.morePiecesOf}));
}

/// Where a climb over the pieces leads on from its start.
std::int32_t towardsOf(const Layout& layout, const GradeTask& task) {
  if (task.towards != -1)
    return task.towards;
  const PieceDef& definition = *definitionOf(*layout.findPiece(task.start.piece));
  for (const Route& route : routesOf(definition)) {
    if (route.from != task.start.connector && route.to != task.start.connector)
      continue;
    const std::int32_t leave = route.from == task.start.connector ? route.to : route.from;
    if (containsId(task.pieces, beyond(layout, {task.start.piece, leave}).piece))
      return leave;
  }
  return oppositeEnd(definition, task.start.connector);
}

/// Gives up the heights of the stretch between two branching pieces by which a loop closes, so that
/// it can bend. False where it has no such ends, or nothing of it was to have a height.
bool giveUpStretch(const Layout& layout, const LoopGap& gap, TrackEnd start,
                   std::vector<PieceHeight>& wanted) {
  const auto branches = [&layout](std::int32_t piece) {
    const PlacedPiece* placed = layout.findPiece(piece);
    const PieceDef* definition = placed == nullptr ? nullptr : definitionOf(*placed);
    return definition == nullptr || definition->connectors.size() > 2;
  };
  std::vector<std::int32_t> stretch;
  for (TrackEnd in : {gap.end, gap.other})
    for (; !branches(in.piece); in = beyond(layout, {in.piece, 1 - in.connector})) {
      if (in.piece == start.piece || in.connector == -1 || containsId(stretch, in.piece))
        return false;
      stretch.insert(std::ranges::lower_bound(stretch, in.piece), in.piece);
    }
  return std::erase_if(wanted, [&stretch](const PieceHeight& height) {
           return containsId(stretch, height.piece);
         }) > 0;
}

} // namespace

HeightPlan planGrade(const Layout& layout, const GradeTask& task) {
  const PlacedPiece* first = layout.findPiece(task.start.piece);
  if (first == nullptr || !containsId(task.pieces, first->id))
    return refused(tr("Select the track first."));
  if (auto locked = helixGuard(layout, task.pieces, "grad"))
    return refused(std::move(*locked));
  if (!takesGrade(*first) || towardsOf(layout, task) == -1)
    return refused(tr("%1% takes no grade.", {first->cat}));
  if (!(std::abs(task.slope) <= task.limit + kRounding))
    return refused(tr("The grade must not be above %1% %%.", {percentText(task.limit)}));
  const ClimbStart from{task.start, towardsOf(layout, task), endHeight(layout, task.start),
                        task.slope};
  std::vector<PieceHeight> wanted = climbFrom(layout, task.pieces, from);
  if (wanted.size() != task.pieces.size())
    return refused(tr("The selected track does not hang together."));
  HeightPlan plan = planHeights(layout, wanted, task.loops, task.limit);
  while (plan.gap && task.loops == LoopRule::Spread &&
         giveUpStretch(layout, *plan.gap, task.start, wanted))
    plan = planHeights(layout, wanted, task.loops, task.limit);
  if (plan.possible() && task.open && task.slope != 0)
    plan.run = GradeRun{degreesOf(task.slope), task.start.piece, from.towards};
  return plan;
}

GradeTask gradeOfPiece(const Layout& layout, std::int32_t piece, std::int32_t towards) {
  GradeTask task;
  task.pieces = {piece};
  task.towards = towards;
  const PlacedPiece* placed = layout.findPiece(piece);
  const PieceDef* definition = placed == nullptr ? nullptr : definitionOf(*placed);
  task.start = {piece, definition == nullptr ? -1 : oppositeEnd(*definition, towards)};
  return task;
}

std::vector<TrackEnd> outerEnds(const Layout& layout, std::span<const std::int32_t> pieces) {
  std::vector<TrackEnd> ends;
  for (const PlacedPiece& piece : layout.pieces()) {
    const PieceDef* definition = containsId(pieces, piece.id) ? definitionOf(piece) : nullptr;
    const std::size_t count = definition == nullptr ? 0 : definition->connectors.size();
    for (std::int32_t i = 0; i < static_cast<std::int32_t>(count); ++i)
      if (!containsId(pieces, beyond(layout, {piece.id, i}).piece))
        ends.push_back({piece.id, i});
  }
  return ends;
}

HeightPlan planProfile(const Layout& layout, const TrainWay& way, std::span<const double> heights,
                       LoopRule loops) {
  if (auto refusal = wayRefusal(layout, way))
    return refused(std::move(*refusal));
  std::vector<PieceHeight> wanted;
  for (std::size_t i = 0; i < way.stretches.size() && i + 1 < heights.size(); ++i) {
    const WayStretch& stretch = way.stretches[i];
    const PlacedPiece& piece = pieceOf(layout, stretch);
    const double slope = (heights[i + 1] - heights[i]) / runOf(layout, stretch);
    if (!(std::abs(slope) < 1))
      return refused(tr("That is too steep for any track."));
    wanted.push_back(
        layTowards(piece, *definitionOf(piece), stretch.enter, stretch.leave, heights[i], slope));
  }
  return planHeights(layout, wanted, loops);
}

std::vector<double> heightsBetween(const TrainWay& way, std::span<const Knee> knees) {
  std::vector<double> heights;
  std::vector<double> along{0};
  for (const WayStretch& stretch : way.stretches) {
    heights.push_back(stretch.from);
    along.push_back(along.back() + stretch.length);
  }
  if (way.empty())
    return heights;
  heights.push_back(way.stretches.back().to);
  if (knees.empty())
    return heights;
  const double liftBefore = knees.front().height - heights[knees.front().joint];
  const double liftAfter = knees.back().height - heights[knees.back().joint];
  for (std::size_t i = 0; i < heights.size(); ++i)
    if (i < knees.front().joint || i > knees.back().joint)
      heights[i] += i < knees.front().joint ? liftBefore : liftAfter;
  for (std::size_t k = 0; k < knees.size(); ++k) {
    const Knee& from = knees[k];
    const Knee& to = knees[std::min(k + 1, knees.size() - 1)];
    heights[from.joint] = from.height;
    for (std::size_t i = from.joint + 1; i < to.joint; ++i)
      heights[i] = from.height + (to.height - from.height) * (along[i] - along[from.joint]) /
                                     (along[to.joint] - along[from.joint]);
  }
  return heights;
}

TargetPlan planTarget(const Layout& layout, const TargetTask& task) {
  TargetPlan plan;
  if (auto refusal = wayRefusal(layout, task.way)) {
    plan.heights = refused(std::move(*refusal));
    return plan;
  }
  const Climb climb = climbOf(layout, task.way, task.eased);
  const double rise = task.height - endHeight(layout, task.way.start());
  const std::optional<std::vector<double>> slopes = task.shape == TargetTask::Shape::OneGrade
                                                        ? slopesFor(climb, rise)
                                                        : steepThenLevel(climb, rise, task.limit);
  plan.slope =
      slopes ? steepest(*slopes) : rise / std::reduce(climb.lengths.begin(), climb.lengths.end());
  if (slopes && std::abs(plan.slope) <= task.limit + kRounding)
    plan.heights = planSlopes(layout, task.way, *slopes, task.loops, task.limit);
  else
    tellTooSteep(layout, task, climb, rise, plan);
  return plan;
}

double riseWith(const Layout& layout, const TrainWay& way, double slope, bool eased) {
  if (wayRefusal(layout, way))
    return 0;
  const Climb climb = climbOf(layout, way, eased);
  return slope < 0 ? -mostRise(turnedOver(climb), -slope) : mostRise(climb, slope);
}

HeightPlan planRaise(const Layout& layout, std::int32_t piece, double rise) {
  const PlacedPiece* placed = layout.findPiece(piece);
  if (placed == nullptr)
    return refused(tr("Select the track first."));
  PieceHeight wanted = heightOf(*placed);
  wanted.z += rise;
  return planHeights(layout, std::span(&wanted, 1));
}

HeightPlan planEndHeight(const Layout& layout, TrackEnd end, double height, EndRule rule,
                         LoopRule loops) {
  if (rule == EndRule::LiftAll)
    return planRaise(layout, end.piece, height - endHeight(layout, end));
  const PlacedPiece* piece = layout.findPiece(end.piece);
  const PieceDef* definition = piece == nullptr ? nullptr : definitionOf(*piece);
  const std::int32_t other = definition == nullptr ? -1 : oppositeEnd(*definition, end.connector);
  if (other == -1)
    return refused(tr("Nothing leads from this end to another."));
  TrainWay way;
  WayStretch stretch;
  stretch.piece = end.piece;
  stretch.enter = other;
  stretch.leave = end.connector;
  way.stretches.push_back(stretch);
  const double heights[] = {endHeight(layout, {end.piece, other}), height};
  return planProfile(layout, way, heights, loops);
}

HeightPlan planLevel(const Layout& layout, std::span<const std::int32_t> pieces, TrackEnd start,
                     LoopRule loops) {
  GradeTask task;
  task.pieces.assign(pieces.begin(), pieces.end());
  task.start = start;
  task.loops = loops;
  return planGrade(layout, task);
}

HeightPlan planEase(const Layout& layout, const TrainWay& way, LoopRule loops) {
  if (auto refusal = wayRefusal(layout, way))
    return refused(std::move(*refusal));
  Climb climb = climbOf(layout, way, true);
  for (const WayStretch& stretch : way.stretches) {
    const PlacedPiece& piece = pieceOf(layout, stretch);
    climb.base.push_back(slopeOut(piece, *definitionOf(piece), stretch.leave));
  }
  climb.base = easedBase(climb);
  const double rise = endHeight(layout, way.end()) - endHeight(layout, way.start());
  const std::optional<std::vector<double>> slopes = slopesFor(climb, rise);
  if (!slopes)
    return refused(tr("The way is too short to be eased."));
  return planSlopes(layout, way, *slopes, loops, kSteepestSlope);
}

} // namespace trassix
