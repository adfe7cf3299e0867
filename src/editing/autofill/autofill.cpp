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
constexpr std::size_t kMostSFills = 4;
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

/// Where a piece of a fill would lie.
struct FillPiece {
  const PieceDef* definition = nullptr;
  Pose pose;
  std::int32_t enter = 0; ///< the connector by which trains from the gap's start come in
};

WorldConnector farEnd(const FillPiece& fill) {
  return ConnectorToWorld(pieceAt(fill.pose), *fill.definition, 1 - fill.enter);
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
  for (std::size_t i = 0; i < candidate.articles.size(); ++i) {
    const PieceDef* definition = TrackCatalog::instance().find(candidate.articles[i]);
    if (definition == nullptr || definition->connectors.size() < 2)
      break;
    const std::int32_t enter = candidate.reversed != (i >= candidate.turnsBack) ? 1 : 0;
    pieces.push_back({definition, AttachPose(*definition, enter, front), enter});
    front = farEnd(pieces.back());
  }
  return pieces;
}

/// The curves of a system and its straights, for an S.
std::vector<const PieceDef*> curvesFor(TrackSystem system) {
  const TrackCatalog& catalog = TrackCatalog::instance();
  std::vector<const PieceDef*> curves;
  for (std::int32_t i = 0; i < catalog.count(); ++i)
    if (const PieceDef& curve = *catalog.at(i); mayFill(curve, system) &&
                                                curve.kind == PieceKind::Curve &&
                                                curve.radius > 0 && curve.angle > 0)
      curves.push_back(&curve);
  return curves;
}

/// Two equal curves, the second one back again, with straights between them. Only those are
/// offered whose last end is joined.
std::vector<FillCandidate> sCandidates(const Gap& gap, TrackSystem system) {
  std::vector<FillCandidate> candidates;
  if (headingDifference(gap.start.heading, gap.end.heading) < 180 - kClosingFacing)
    return candidates;
  const std::vector<PlainStraight> straights = plainStraights(system);
  std::vector<double> lengths;
  for (const PlainStraight& straight : straights)
    lengths.push_back(straight.length);
  const Point offset = offsets(gap);
  for (const PieceDef* curve : curvesFor(system)) {
    const double turn = toRadians(curve->angle);
    const double ahead = offset.x - 2 * curve->radius * std::sin(turn);
    const double across = std::abs(offset.y) - 2 * curve->radius * (1 - std::cos(turn));
    const double between = ahead * std::cos(turn) + across * std::sin(turn);
    if (std::hypot(ahead, across) > std::abs(between) + kJoinReach || between < -kJoinReach)
      continue;
    std::vector<std::vector<std::size_t>> runs = straightFills(lengths, std::max(between, 0.0));
    if (between < kJoinReach)
      runs = {{}};
    for (const std::vector<std::size_t>& run : runs) {
      FillCandidate fill{{curve->article}, 2 * curve->radius * turn, offset.y < 0};
      for (const std::size_t i : run) {
        fill.articles.push_back(straights[i].piece->article);
        fill.total += lengths[i];
      }
      fill.turnsBack = fill.articles.size();
      fill.articles.push_back(curve->article);
      if (!restOf(gap, fill).joins())
        continue;
      candidates.push_back(std::move(fill));
      break;
    }
  }
  std::ranges::stable_sort(candidates, {},
                           [](const FillCandidate& c) { return c.articles.size(); });
  candidates.resize(std::min(candidates.size(), kMostSFills));
  return candidates;
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
  if (!result.gap)
    return result;
  const TrackSystem system = startDefinition->system;
  result.candidates = result.gap->kind == GapKind::Straight
                          ? straightCandidates(*result.gap, system)
                          : arcCandidates(*result.gap, system);
  std::ranges::move(sCandidates(*result.gap, system), std::back_inserter(result.candidates));
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
    last = farEnd(piece);
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
  std::vector<std::int32_t> placed;
  Joint before{gap.startPiece, gap.start.index};
  for (const FillPiece& piece : pieces) {
    const std::int32_t id = addPiece(layout, *piece.definition, piece.pose, level, height);
    join(layout, id, piece.enter, before.target, before.tconn);
    inheritElevation(layout, id, before.target, before.tconn);
    placed.push_back(id);
    before = {id, 1 - piece.enter};
  }
  const Rest rest = restOf(gap, candidate, limit);
  if (rest.reaches())
    layBetween(layout, placed, {placed.front(), pieces.front().enter},
               {before.target, before.tconn}, height, rest.slope == 0 ? height : height + gap.rise);
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
