#include "editing/selection/open_ends.h"

#include "document/plan_content.h"
#include "editing/track/track_geometry.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace trassix {

namespace {

constexpr double kReachPx = 8;

} // namespace

bool isOpenEnd(const PlacedPiece& piece, std::int32_t connector) {
  const PieceDef* definition = definitionOf(piece);
  return definition != nullptr && connector >= 0 &&
         static_cast<std::size_t>(connector) < definition->connectors.size() &&
         piece.joint(static_cast<std::size_t>(connector)).open();
}

std::optional<WorldConnector> endAt(const Layout& layout, TrackEnd end) {
  const PlacedPiece* piece = layout.findPiece(end.piece);
  const PieceDef* definition = piece == nullptr ? nullptr : definitionOf(*piece);
  if (definition == nullptr)
    return std::nullopt;
  const WorldConnector at = ConnectorToWorld(*piece, *definition, end.connector);
  return at.index == -1 ? std::nullopt : std::optional(at);
}

double endReach(const PieceDef& definition, double mmPerPx) {
  return std::min(kReachPx * mmPerPx, trackGeometryOf(definition).mainLength / 4);
}

std::optional<TrackEnd> openEndNear(const Layout& layout, const PlanIndex& index, Point at,
                                    double mmPerPx) {
  std::optional<TrackEnd> nearest;
  double best = kReachPx * mmPerPx;
  for (const std::size_t position : index.hits(at, best)) {
    const PlacedPiece& piece = layout.pieces()[position];
    const PieceDef* definition = index.definition(position);
    if (definition == nullptr)
      continue;
    for (const WorldConnector& end : WorldConnectorsOf(piece, *definition)) {
      const double distance = std::hypot(end.x - at.x, end.y - at.y);
      if (!end.free || distance > endReach(*definition, mmPerPx) || distance >= best)
        continue;
      best = distance;
      nearest = TrackEnd{piece.id, end.index};
    }
  }
  return nearest;
}

std::optional<TrackEnd> openEndAfter(const Layout& layout, const std::optional<TrackEnd>& end,
                                     int step) {
  std::vector<TrackEnd> ends;
  for (const PlacedPiece& piece : layout.pieces()) {
    const PieceDef* definition = definitionOf(piece);
    if (definition == nullptr || definition->kind == PieceKind::Turntable ||
        !layout.pieceVisible(piece))
      continue;
    for (std::int32_t i = 0; i < static_cast<std::int32_t>(definition->connectors.size()); ++i)
      if (piece.joint(static_cast<std::size_t>(i)).open())
        ends.push_back({piece.id, i});
  }
  if (ends.empty())
    return std::nullopt;
  std::ranges::sort(ends);
  if (!end)
    return step > 0 ? ends.front() : ends.back();
  if (step > 0) {
    const auto next = std::ranges::upper_bound(ends, *end);
    return next == ends.end() ? ends.front() : *next;
  }
  const auto next = std::ranges::lower_bound(ends, *end);
  return next == ends.begin() ? ends.back() : *(next - 1);
}

} // namespace trassix
