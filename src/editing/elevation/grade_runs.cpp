#include "editing/elevation/grade_runs.h"

#include "document/layout.h"
#include "document/plan_content.h"
#include "document/undo_scope.h"
#include "editing/elevation/grades.h"
#include "editing/elevation/train_way.h"
#include "editing/joining/joining.h"
#include "editing/track/connector_geometry.h"
#include "measures/measure_format.h"
#include "texts/texts.h"

#include <algorithm>
#include <cmath>
#include <unordered_set>
#include <vector>

namespace trassix {

namespace {

/// Slopes that differ by less are the same grade: files hold angles with four decimals.
constexpr double kSameSlope = 1e-5;

/// The slope of a train that leaves the piece by this end; nothing for a piece that has none.
std::optional<double> leavingSlope(const Layout& layout, TrackEnd end) {
  const PlacedPiece* piece = layout.findPiece(end.piece);
  if (piece == nullptr || !takesGrade(*piece))
    return std::nullopt;
  const PieceDef& definition = *definitionOf(*piece);
  if (oppositeEnd(definition, end.connector) == -1)
    return std::nullopt;
  return slopeOut(*piece, definition, end.connector);
}

bool climbs(const Layout& layout, const GradeRun& run) {
  const std::optional<double> slope = leavingSlope(layout, {run.anchor, run.conn});
  return slope && std::abs(*slope - std::sin(toRadians(run.deg))) < kSameSlope;
}

/// An end by which track goes on, and the slope with which it does.
struct WayOut {
  TrackEnd end;
  double slope = 0;
};

/// Whether the run covers the piece, walking out from its anchor.
bool covers(const Layout& layout, const GradeRun& run, std::int32_t piece) {
  if (run.anchor == piece)
    return true;
  std::unordered_set<std::int32_t> met{run.anchor};
  std::vector<WayOut> left{{{run.anchor, run.conn}, std::sin(toRadians(run.deg))}};
  while (!left.empty()) {
    const WayOut out = left.back();
    left.pop_back();
    const TrackEnd in = beyond(layout, out.end);
    const std::optional<double> back = leavingSlope(layout, in);
    if (!back || std::abs(*back + out.slope) > kSameSlope || !met.insert(in.piece).second)
      continue;
    if (in.piece == piece)
      return true;
    const PlacedPiece& next = *layout.findPiece(in.piece);
    for (std::int32_t i = 0; i < static_cast<std::int32_t>(next.joints.size()); ++i)
      if (const auto slope = leavingSlope(layout, {next.id, i}); slope && i != in.connector)
        left.push_back({{next.id, i}, *slope});
  }
  return false;
}

const GradeRun* runCovering(const Layout& layout, std::int32_t piece) {
  const std::vector<GradeRun>& runs = layout.content().gradeRuns;
  const auto run = std::find_if(runs.rbegin(), runs.rend(), [&](const GradeRun& candidate) {
    return covers(layout, candidate, piece);
  });
  return run == runs.rend() ? nullptr : &*run;
}

} // namespace

std::int32_t runOver(const Layout& layout, std::int32_t piece) {
  const GradeRun* run = runCovering(layout, piece);
  return run == nullptr ? -1 : run->anchor;
}

double slopeGoingOn(const Layout& layout, TrackEnd end) {
  const GradeRun* run = runCovering(layout, end.piece);
  if (run == nullptr)
    return 0;
  if (run->anchor == end.piece)
    return run->conn == end.connector ? std::sin(toRadians(run->deg)) : 0;
  return leavingSlope(layout, end).value_or(0);
}

bool endGradeHere(Layout& layout, std::int32_t piece) {
  const std::int32_t anchor = runOver(layout, piece);
  if (anchor == -1)
    return false;
  UndoScope step(layout);
  PlanContent& content = layout.edit();
  std::erase_if(content.gradeRuns, [anchor](const GradeRun& run) { return run.anchor == anchor; });
  content.mirrorLastGradeRun();
  return step.keep();
}

void dropStaleRuns(Layout& layout, std::span<const std::int32_t> pieces) {
  const auto stale = [&](const GradeRun& run) {
    return containsId(pieces, run.anchor) && !climbs(layout, run);
  };
  if (std::ranges::none_of(layout.content().gradeRuns, stale))
    return;
  PlanContent& content = layout.edit();
  std::erase_if(content.gradeRuns, stale);
  content.mirrorLastGradeRun();
}

std::string elevationStatus(const Layout& layout) {
  const std::vector<GradeRun>& runs = layout.content().gradeRuns;
  if (runs.empty())
    return {};
  std::string text = "[ELEV]";
  for (const GradeRun& run : runs)
    text.append(" ").append(formatFixed(run.deg, 1)).append(" deg");
  return text + "  (right-click piece to stop)";
}

} // namespace trassix
