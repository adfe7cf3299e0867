#include "wizards/bridge/bridge_task.h"

#include "document/layout.h"
#include "document/records.h"
#include "editing/elevation/train_way.h"
#include "editing/selection/selection.h"
#include "editing/track/connector_geometry.h"
#include "texts/texts.h"
#include "wizards/bridge/span_composing.h"

#include <algorithm>
#include <cmath>

namespace trassix {

namespace {

/// The open ends of what is selected, in document order.
std::vector<TrackEnd> openEnds(const Layout& layout, const std::vector<std::int32_t>& pieces) {
  std::vector<TrackEnd> ends;
  for (const std::int32_t id : pieces) {
    const PlacedPiece& piece = *layout.findPiece(id);
    const PieceDef* definition = definitionOf(piece);
    if (definition == nullptr || definition->kind == PieceKind::Turntable || piece.helix != -1)
      continue;
    for (std::size_t i = 0; i < definition->connectors.size(); ++i)
      if (piece.joint(i).open())
        ends.push_back({id, static_cast<std::int32_t>(i)});
  }
  return ends;
}

} // namespace

std::vector<BridgeTask> bridgeTasks(const Layout& layout) {
  std::vector<BridgeTask> tasks;
  BridgeTask task;
  task.pieces = selectedPieces(layout);
  const auto known = [&layout](std::int32_t id) {
    return definitionOf(*layout.findPiece(id)) != nullptr;
  };
  std::erase_if(task.pieces, [&](std::int32_t id) { return !known(id); });
  if (task.pieces.empty())
    return tasks;
  tasks.push_back(task);
  for (const TrackEnd end : openEnds(layout, task.pieces)) {
    BridgeTask on = task;
    on.way = BridgeWay::FromEnd;
    on.pieces.clear();
    on.end = end;
    tasks.push_back(std::move(on));
  }
  task.way = BridgeWay::AsItLies;
  tasks.push_back(std::move(task));
  return tasks;
}

std::string nameOf(const Layout& layout, const BridgeTask& task) {
  switch (task.way) {
  case BridgeWay::LiftOver:
    return tr("Lift it over what it crosses");
  case BridgeWay::AsItLies:
    return tr("Put it on a bridge as it lies");
  case BridgeWay::FromEnd:
    break;
  }
  const PlacedPiece* piece = layout.findPiece(task.end.piece);
  const PieceDef* definition = piece == nullptr ? nullptr : definitionOf(*piece);
  if (definition == nullptr)
    return tr("Go on from an open end");
  const WorldConnector at = ConnectorToWorld(*piece, *definition, task.end.connector);
  return tr("Go on from %1% at x %2%, y %3% mm",
            {piece->cat, std::llround(at.x), std::llround(at.y)});
}

TrackSystem systemOf(const Layout& layout, const BridgeTask& task) {
  const std::int32_t id = task.way == BridgeWay::FromEnd ? task.end.piece
                          : task.pieces.empty()          ? -1
                                                         : task.pieces.front();
  const PlacedPiece* piece = layout.findPiece(id);
  const PieceDef* definition = piece == nullptr ? nullptr : definitionOf(*piece);
  return definition == nullptr ? TrackSystem::CTrack : definition->system;
}

std::vector<SpanKind> spanKinds(TrackSystem system) {
  std::vector<SpanKind> kinds{SpanKind::Auto};
  for (const SpanKind kind : {SpanKind::Truss, SpanKind::Arch, SpanKind::Girder})
    if (!bridgePieces(system, kind).empty())
      kinds.push_back(kind);
  kinds.push_back(SpanKind::Deck);
  return kinds;
}

std::string nameOf(SpanKind kind) {
  switch (kind) {
  case SpanKind::Auto:
    return tr("What fits");
  case SpanKind::Truss:
    return tr("Truss bridge");
  case SpanKind::Arch:
    return tr("Arch bridge");
  case SpanKind::Girder:
    return tr("Girder bridge");
  case SpanKind::Deck:
    return tr("Plain track on a deck");
  }
  return {};
}

} // namespace trassix
