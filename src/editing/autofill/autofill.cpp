#include "editing/autofill/autofill.h"

#include "catalog/plain_track.h"
#include "catalog/track_catalog.h"
#include "document/plan_content.h"
#include "document/undo_scope.h"
#include "editing/autofill/arc_fill.h"
#include "editing/autofill/straight_fill.h"
#include "editing/elevation/inheritance.h"
#include "editing/joining/joining.h"
#include "editing/placing/placing.h"
#include "editing/selection/selection.h"
#include "texts/texts.h"

#include <algorithm>
#include <cmath>

namespace trassix {

namespace {

constexpr double kNoGap = 1.0;            // mm: ends as near as this count as meeting
constexpr double kStraightFacing = 170.0; // degrees, exclusive
constexpr double kStraightOffset = 5.0;   // mm off the start's line
constexpr std::size_t kMostStraightFills = 12;
constexpr int kMostCurves = 64;
constexpr double kRadiusTolerance = 3.0; // mm
constexpr double kAngleFit = 0.5;        // degrees
constexpr double kJoinReach = 1.0;       // mm, exclusive

bool mayFill(const PieceDef& piece, TrackSystem system) {
  return piece.system == system && !piece.bridge && !piece.ramp && !hasOwnFunction(piece) &&
         piece.name.find("Bridge") == std::string::npos &&
         piece.name.find("Ramp") == std::string::npos;
}

/// The open ends by which pieces of the definition's own range can go on; an adapter's other end
/// is none of them.
std::vector<WorldConnector> openEnds(const PlacedPiece& piece, const PieceDef& definition) {
  std::vector<WorldConnector> ends = WorldConnectorsOf(piece, definition);
  std::erase_if(ends, [&definition](const WorldConnector& end) {
    return !end.free ||
           definition.connectorSystem(static_cast<std::size_t>(end.index)) != definition.system;
  });
  return ends;
}

bool openAt(const Layout& layout, std::int32_t piece, std::int32_t connector) {
  const PlacedPiece* placed = layout.findPiece(piece);
  return placed != nullptr && placed->joint(static_cast<std::size_t>(connector)).open();
}

/// How far the gap's end lies ahead of its start and beside it.
Point offsets(const Gap& gap) {
  return toWorld({0, 0, -gap.start.heading}, {gap.end.x - gap.start.x, gap.end.y - gap.start.y});
}

std::optional<Gap> findGap(const PlacedPiece& a, const PieceDef& definitionA, const PlacedPiece& b,
                           const PieceDef& definitionB) {
  Gap gap;
  gap.distance = 1000000000.0;
  for (const WorldConnector& start : openEnds(a, definitionA)) {
    for (const WorldConnector& end : openEnds(b, definitionB)) {
      const double distance = std::hypot(start.x - end.x, start.y - end.y);
      if (distance < gap.distance)
        gap = {a.id, start, b.id, end, distance, GapKind::Arc, 0, false};
    }
  }
  if (gap.startPiece == -1 || gap.distance <= kNoGap)
    return std::nullopt;
  gap.rise = endHeight(b, definitionB, gap.end.index) - endHeight(a, definitionA, gap.start.index);
  gap.graded = isGraded(b);
  if (headingDifference(gap.start.heading, gap.end.heading) > kStraightFacing &&
      std::abs(offsets(gap).y) <= kStraightOffset)
    gap.kind = GapKind::Straight;
  return gap;
}

std::vector<FillCandidate> straightCandidates(const Gap& gap, TrackSystem system) {
  std::vector<PlainStraight> straights = plainStraights(system);
  std::erase_if(straights, [system](const PlainStraight& s) { return !mayFill(*s.piece, system); });
  // With its back to the end, a run would lead away from it.
  if (offsets(gap).x <= 0)
    return {};
  std::vector<double> lengths;
  for (const PlainStraight& straight : straights)
    lengths.push_back(straight.length);

  std::vector<FillCandidate> candidates;
  for (const std::vector<std::size_t>& run : straightFills(lengths, gap.distance)) {
    FillCandidate candidate;
    for (const std::size_t i : run) {
      candidate.articles.push_back(straights[i].piece->article);
      candidate.total += lengths[i];
    }
    candidates.push_back(std::move(candidate));
  }
  const auto miss = [&gap](const FillCandidate& candidate) {
    // In micrometres: equal sums added up in another order are equally good.
    return std::llround(std::abs(candidate.total - gap.distance) * 1000.0);
  };
  std::ranges::stable_sort(candidates, [&miss](const FillCandidate& a, const FillCandidate& b) {
    return a.articles.size() != b.articles.size() ? a.articles.size() < b.articles.size()
                                                  : miss(a) < miss(b);
  });
  candidates.resize(std::min(candidates.size(), kMostStraightFills));
  return candidates;
}

/// The connector by which the pieces of a fill are entered.
std::int32_t entry(const FillCandidate& candidate) {
  return candidate.reversed ? 1 : 0;
}

/// Where a piece of a fill would lie.
struct FillPiece {
  const PieceDef* definition = nullptr;
  Pose pose;
};

WorldConnector farEnd(const FillPiece& fill, const FillCandidate& candidate) {
  PlacedPiece piece;
  piece.x = fill.pose.x;
  piece.y = fill.pose.y;
  piece.heading = fill.pose.heading;
  return ConnectorToWorld(piece, *fill.definition, 1 - entry(candidate));
}

std::vector<FillCandidate> arcCandidates(const Gap& gap, TrackSystem system) {
  const TrackCatalog& catalog = TrackCatalog::instance();
  std::vector<FillCandidate> candidates;
  for (const ConnectingArc& arc : connectingArcs(gap.start, gap.end)) {
    for (std::int32_t i = 0; i < catalog.count(); ++i) {
      const PieceDef& curve = *catalog.at(i);
      if (!mayFill(curve, system) || curve.kind != PieceKind::Curve || curve.radius <= 0 ||
          std::abs(curve.angle) < 1e-6 || std::abs(curve.radius - arc.radius) > kRadiusTolerance)
        continue;
      const double angle = std::abs(curve.angle);
      const double exact = std::abs(arc.turn) / angle;
      const long count = std::lround(exact);
      if (count < 1 || count > kMostCurves ||
          std::abs(exact - static_cast<double>(count)) * angle > kAngleFit)
        continue;
      FillCandidate fill{std::vector(static_cast<std::size_t>(count), curve.article),
                         static_cast<double>(count) * angle, (curve.angle > 0) != (arc.turn > 0)};
      if (arc.miss <= kArcClosure || restOf(gap, fill).reaches())
        candidates.push_back(std::move(fill));
    }
  }
  std::ranges::stable_sort(candidates, {},
                           [](const FillCandidate& c) { return c.articles.size(); });
  return candidates;
}

/// Ends early at an article that is missing or has fewer than two ends.
std::vector<FillPiece> fillPieces(const Gap& gap, const FillCandidate& candidate) {
  WorldConnector front = gap.start;
  std::vector<FillPiece> pieces;
  for (const std::string& article : candidate.articles) {
    const PieceDef* definition = TrackCatalog::instance().find(article);
    if (definition == nullptr || definition->connectors.size() < 2)
      break;
    pieces.push_back({definition, AttachPose(*definition, entry(candidate), front)});
    front = farEnd(pieces.back(), candidate);
  }
  return pieces;
}

} // namespace

bool canAutofill(const Layout& layout) {
  return selectedPieces(layout).size() == 2;
}

std::optional<Autofill> solveAutofill(const Layout& layout, std::int32_t a, std::int32_t b) {
  const PlacedPiece* start = layout.findPiece(a);
  const PlacedPiece* end = layout.findPiece(b);
  if (start == nullptr || end == nullptr || start == end)
    return std::nullopt;
  const PieceDef* startDefinition = definitionOf(*start);
  const PieceDef* endDefinition = definitionOf(*end);
  if (startDefinition == nullptr || endDefinition == nullptr)
    return std::nullopt;
  Autofill result;
  result.mixedSystems = startDefinition->system != endDefinition->system;
  if (result.mixedSystems)
    return result;
  result.gap = findGap(*start, *startDefinition, *end, *endDefinition);
  if (result.gap)
    result.candidates = result.gap->kind == GapKind::Straight
                            ? straightCandidates(*result.gap, startDefinition->system)
                            : arcCandidates(*result.gap, startDefinition->system);
  return result;
}

bool Rest::reaches() const {
  return distance * distance < kJoinReach * kJoinReach;
}

bool Rest::joins() const {
  return reaches() && height <= (graded ? kClosingDistance : kSameHeight);
}

Rest restOf(const Gap& gap, const FillCandidate& candidate, double limit) {
  WorldConnector last = gap.start;
  double run = 0;
  for (const FillPiece& piece : fillPieces(gap, candidate)) {
    last = farEnd(piece, candidate);
    run += runTo(*piece.definition, 1);
  }
  Rest rest{std::hypot(last.x - gap.end.x, last.y - gap.end.y), std::abs(gap.rise), 0, gap.graded};
  if (rest.reaches() && rest.height > kSameHeight && rest.height <= run * limit) {
    rest.slope = gap.rise / run;
    rest.height = 0;
  }
  return rest;
}

EditResult placeFill(Layout& layout, const Gap& gap, const FillCandidate& candidate, double limit) {
  const std::vector<FillPiece> pieces = fillPieces(gap, candidate);
  if (pieces.size() != candidate.articles.size())
    return {{},
            Notice{tr("Autofill"), tr("Internal error: a fill piece is missing or has too few "
                                      "connectors. Autofill aborted.")}};
  const PlacedPiece* start = layout.findPiece(gap.startPiece);
  if (pieces.empty() || !openAt(layout, gap.startPiece, gap.start.index))
    return {};
  const double height = endHeight(*start, *definitionOf(*start), gap.start.index);
  if (!std::ranges::all_of(
          pieces, [height](const FillPiece& p) { return fitsPlan(*p.definition, p.pose, height); }))
    return {{}, beyondPlan()};
  UndoScope step(layout);
  const std::int32_t level = start->level;
  const std::int32_t enter = entry(candidate);
  std::vector<std::int32_t> placed;
  Joint before{gap.startPiece, gap.start.index};
  for (const FillPiece& piece : pieces) {
    const std::int32_t id = addPiece(layout, *piece.definition, piece.pose, level, height);
    join(layout, id, enter, before.target, before.tconn);
    inheritElevation(layout, id, before.target, before.tconn);
    placed.push_back(id);
    before = {id, 1 - enter};
  }
  const Rest rest = restOf(gap, candidate, limit);
  if (rest.reaches())
    layBetween(layout, placed, {placed.front(), enter}, {before.target, before.tconn}, height,
               rest.slope == 0 ? height : height + gap.rise);
  if (rest.joins() && openAt(layout, gap.endPiece, gap.end.index))
    join(layout, before.target, before.tconn, gap.endPiece, gap.end.index);
  std::vector<std::int32_t> sorted = placed; // ids may have started over
  std::ranges::sort(sorted);
  closeMeetingEnds(layout, sorted);
  selectOnly(layout, placed.front());
  step.keep();
  return {std::move(placed), std::nullopt};
}

} // namespace trassix
