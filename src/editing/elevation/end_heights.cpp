#include "editing/elevation/end_heights.h"

#include "catalog/track_catalog.h"
#include "document/layout.h"
#include "document/plan_content.h"
#include "editing/track/connector_geometry.h"
#include "editing/track/routes.h"

#include <cmath>
#include <unordered_map>
#include <vector>

namespace trassix {

namespace {

constexpr double kLevelGrade = 0.001; // degrees

/// The runs to all ends of a definition.
std::vector<double> deriveRuns(const PieceDef& definition) {
  std::vector<double> runs(definition.connectors.size());
  std::vector<bool> known(runs.size());
  for (const Route& route : routesOf(definition)) {
    const auto to = static_cast<std::size_t>(route.to);
    if (route.to == -1 || known[to])
      continue; // the ways across a slip join ends of its two lines
    known[to] = true;
    runs[to] = routeLength(route);
  }
  return runs;
}

/// Derived once for all definitions of the catalogue.
const std::vector<double>& runsOf(const PieceDef& definition) {
  static const auto known = [] {
    std::unordered_map<const PieceDef*, std::vector<double>> runs;
    const TrackCatalog& catalog = TrackCatalog::instance();
    for (std::int32_t i = 0; i < catalog.count(); ++i)
      runs.emplace(catalog.at(i), deriveRuns(*catalog.at(i)));
    return runs;
  }();
  return known.at(&definition);
}

} // namespace

bool isGraded(const PlacedPiece& piece) {
  return std::abs(piece.grade) > kLevelGrade;
}

double runTo(const PieceDef& definition, std::int32_t connector) {
  const std::vector<double>& runs = runsOf(definition);
  const auto slot = static_cast<std::size_t>(connector);
  return slot < runs.size() ? runs[slot] : 0;
}

double endHeight(const PlacedPiece& piece, const PieceDef& definition, std::int32_t connector) {
  return piece.grade == 0 ? piece.z : piece.z + runTo(definition, connector) * slopeOf(piece);
}

double endHeight(const Layout& layout, TrackEnd end) {
  const PlacedPiece* piece = layout.findPiece(end.piece);
  const PieceDef* definition = piece == nullptr ? nullptr : definitionOf(*piece);
  if (definition == nullptr)
    return piece == nullptr ? 0 : piece->z;
  return endHeight(*piece, *definition, end.connector);
}

double slopeOf(const PlacedPiece& piece) {
  const double slope = std::sin(toRadians(piece.grade));
  return piece.rev ? -slope : slope;
}

double slopeOut(const PlacedPiece& piece, const PieceDef& definition, std::int32_t connector) {
  const std::int32_t from = oppositeEnd(definition, connector);
  if (from == -1)
    return 0;
  return runTo(definition, connector) > runTo(definition, from) ? slopeOf(piece) : -slopeOf(piece);
}

std::int32_t oppositeEnd(const PieceDef& definition, std::int32_t connector) {
  for (const Route& route : routesOf(definition)) {
    if (route.from == connector)
      return route.to;
    if (route.to == connector)
      return route.from;
  }
  return -1;
}

PieceHeight heightOf(const PlacedPiece& piece) {
  return {piece.id, piece.z, piece.grade, piece.rev};
}

void lay(PlacedPiece& piece, const PieceHeight& height) {
  piece.z = height.z;
  piece.grade = height.grade;
  piece.rev = height.rev;
}

PieceHeight layTowards(const PlacedPiece& piece, const PieceDef& definition, std::int32_t enter,
                       std::int32_t leave, double height, double slope) {
  const double from = runTo(definition, enter);
  const double to = runTo(definition, leave);
  if (from == to || slope == 0)
    return layLevel(piece, height);
  const double angle = toDegrees(std::asin(slope));
  const double z = to > from ? height - from * slope : height + from * slope;
  if (leave == 1)
    return {piece.id, z, angle, false};
  return {piece.id, z, to > from ? -angle : angle, true};
}

double riseOfEnd(const PlacedPiece& piece, const PieceHeight& laid, std::int32_t connector) {
  const PieceDef* definition = definitionOf(piece);
  if (definition == nullptr)
    return laid.z - piece.z;
  PlacedPiece changed;
  lay(changed, laid);
  return endHeight(changed, *definition, connector) - endHeight(piece, *definition, connector);
}

PieceHeight layLevel(const PlacedPiece& piece, double height) {
  return {piece.id, height, 0, false};
}

bool takesGrade(const PlacedPiece& piece) {
  const PieceDef* definition = definitionOf(piece);
  return definition != nullptr && definition->kind != PieceKind::Turntable && piece.helix == -1 &&
         !piece.free;
}

} // namespace trassix
