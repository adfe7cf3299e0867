#include "editing/arranging/parallel_pieces.h"

#include "catalog/plain_track.h"
#include "catalog/track_catalog.h"
#include "editing/autofill/straight_fill.h"
#include "geometry/pose.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace trassix {

namespace {

constexpr double kSameLength = 0.05; ///< mm
constexpr double kSameRadius = 1.0;  ///< mm
constexpr double kSameAngle = 0.02;  ///< degrees

/// Curves of the system that may lie anywhere; those that also do something else come last.
std::vector<const PieceDef*> curvesOf(TrackSystem system) {
  const TrackCatalog& catalog = TrackCatalog::instance();
  std::vector<const PieceDef*> curves;
  for (std::int32_t i = 0; i < catalog.count(); ++i) {
    const PieceDef& piece = *catalog.at(i);
    if (piece.system == system && piece.kind == PieceKind::Curve && !piece.bridge && !piece.ramp &&
        piece.adapterSystems.empty() && piece.angle > 0)
      curves.push_back(&piece);
  }
  std::stable_partition(curves.begin(), curves.end(),
                        [](const PieceDef* piece) { return !hasOwnFunction(*piece); });
  return curves;
}

/// The fewest pieces whose angles sum up to the whole.
PieceRuns fewestCurves(const std::vector<const PieceDef*>& curves, double whole, double play) {
  constexpr double kUnit = 0.01; // degrees; sums are counted in it
  const auto units = [](double degrees) {
    return static_cast<std::size_t>(std::lround(degrees / kUnit));
  };
  const std::size_t most = units(whole + play);
  constexpr std::size_t kNone = std::numeric_limits<std::size_t>::max();
  struct Step {
    std::size_t count = kNone;
    const PieceDef* last = nullptr;
  };
  std::vector<Step> best(most + 1);
  best[0].count = 0;
  for (std::size_t sum = 1; sum <= most; ++sum)
    for (const PieceDef* curve : curves) {
      const std::size_t angle = units(curve->angle);
      if (angle > 0 && angle <= sum && best[sum - angle].count != kNone &&
          best[sum - angle].count + 1 < best[sum].count)
        best[sum] = {best[sum - angle].count + 1, curve};
    }
  PieceRuns run;
  double left = play;
  for (std::size_t sum = units(std::max(whole - play, 0.0)); sum <= most; ++sum) {
    PieceRuns found;
    double total = 0;
    for (std::size_t at = sum; best[at].count != kNone && at > 0;
         at -= units(best[at].last->angle)) {
      found.push_back(best[at].last);
      total += found.back()->angle;
    }
    if (!found.empty() && std::abs(total - whole) <= left) {
      left = std::abs(total - whole) - kSameAngle / 2;
      run = found;
    }
  }
  std::ranges::stable_sort(run, std::greater<>(), &PieceDef::angle);
  return run;
}

} // namespace

double parallelSpacing(TrackSystem system) {
  switch (system) {
  case TrackSystem::CTrack:
  case TrackSystem::TrixCTrack:
    return 77.5;
  case TrackSystem::KTrack:
    return 64.6;
  case TrackSystem::MTrack:
    return 77.4;
  case TrackSystem::ZTrack:
    return 25;
  case TrackSystem::Gauge1:
    return 156;
  default:
    return 60;
  }
}

std::optional<PieceRuns> straightsFor(TrackSystem system, std::span<const double> lengths,
                                      std::span<const PieceDef* const> preferred, double play) {
  const std::vector<PlainStraight> straights = plainStraights(system);
  PieceRuns run;
  for (std::size_t i = 0; i < lengths.size(); ++i) {
    const auto alike = [&](const PlainStraight& straight) {
      return std::abs(straight.length - lengths[i]) <= kSameLength;
    };
    auto found = std::ranges::find(straights, preferred[i], &PlainStraight::piece);
    if (found == straights.end() || !alike(*found))
      found = std::ranges::find_if(straights, alike);
    if (found == straights.end())
      break;
    run.push_back(found->piece);
  }
  if (run.size() == lengths.size())
    return run;
  const double whole = std::reduce(lengths.begin(), lengths.end());
  std::vector<double> known;
  std::ranges::transform(straights, std::back_inserter(known), &PlainStraight::length);
  std::optional<PieceRuns> best;
  double left = play;
  for (const std::vector<std::size_t>& fill : straightFills(known, whole)) {
    double length = 0;
    for (const std::size_t i : fill)
      length += known[i];
    if (std::abs(length - whole) > left)
      continue;
    left = std::abs(length - whole) - kSameLength; // of equal ones the first
    best.emplace();
    for (const std::size_t i : fill)
      best->push_back(straights[i].piece);
  }
  return best;
}

double nearestRadius(TrackSystem system, double radius) {
  double nearest = 0;
  for (const PieceDef* curve : curvesOf(system))
    if (nearest == 0 || std::abs(curve->radius - radius) < std::abs(nearest - radius))
      nearest = curve->radius;
  return nearest;
}

std::optional<PieceRuns> curvesFor(TrackSystem system, double radius,
                                   std::span<const double> angles, double play) {
  std::vector<const PieceDef*> curves = curvesOf(system);
  std::erase_if(curves, [radius](const PieceDef* curve) {
    return std::abs(curve->radius - radius) > kSameRadius;
  });
  if (curves.empty())
    return {};
  PieceRuns run;
  for (const double angle : angles) {
    const auto found = std::ranges::find_if(curves, [angle](const PieceDef* curve) {
      return std::abs(curve->angle - angle) <= kSameAngle;
    });
    if (found == curves.end())
      break;
    run.push_back(*found);
  }
  if (run.size() == angles.size())
    return run;
  const double whole = std::reduce(angles.begin(), angles.end());
  run = fewestCurves(curves, whole, toDegrees(play / radius));
  return run.empty() ? std::nullopt : std::optional(run);
}

} // namespace trassix
