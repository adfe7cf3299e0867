#include "catalog/plain_track.h"

#include "catalog/track_catalog.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

namespace trassix {

namespace {

constexpr std::array<std::string_view, 9> kSpecialWords{"Circuit",   "Uncoupler", "Feeder",
                                                        "Isolat",    "Contact",   "Adapter",
                                                        "Turntable", "Spoke",     "Compensation"};

bool isLevelPiece(const PieceDef& piece, TrackSystem system, PieceKind kind) {
  return piece.system == system && piece.kind == kind && !piece.bridge && !piece.ramp;
}

bool dividesQuarterCircle(double angle) {
  const double pieces = 90 / angle;
  return std::abs(pieces - std::round(pieces)) <= 0.01;
}

} // namespace

bool hasOwnFunction(const PieceDef& piece) {
  return std::ranges::any_of(kSpecialWords, [&piece](std::string_view word) {
    return piece.name.find(word) != std::string::npos;
  });
}

std::vector<PlainStraight> plainStraights(TrackSystem system) {
  const TrackCatalog& catalog = TrackCatalog::instance();
  std::vector<PlainStraight> straights;
  for (std::int32_t i = 0; i < catalog.count(); ++i) {
    const PieceDef& piece = *catalog.at(i);
    if (isLevelPiece(piece, system, PieceKind::Straight) && piece.length > 0 &&
        !hasOwnFunction(piece)) {
      straights.push_back({&piece, piece.length});
    }
  }
  std::ranges::stable_sort(straights, std::greater<>(), &PlainStraight::length);
  return straights;
}

std::map<double, const PieceDef*> plainCurvesByRadius(TrackSystem system) {
  const TrackCatalog& catalog = TrackCatalog::instance();
  std::map<double, const PieceDef*> curves;
  for (std::int32_t i = 0; i < catalog.count(); ++i) {
    const PieceDef& piece = *catalog.at(i);
    if (!isLevelPiece(piece, system, PieceKind::Curve) || piece.radius <= 0 || piece.angle <= 0 ||
        !dividesQuarterCircle(piece.angle)) {
      continue;
    }
    const PieceDef*& kept = curves[piece.radius];
    if (kept == nullptr || kept->angle < piece.angle) {
      kept = &piece;
    }
  }
  return curves;
}

} // namespace trassix
