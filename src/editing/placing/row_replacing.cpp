#include "editing/placing/row_replacing.h"

#include "document/layout.h"
#include "document/plan_content.h"
#include "editing/elevation/inheritance.h"
#include "editing/joining/joining.h"
#include "editing/placing/placing.h"
#include "editing/selection/selection.h"
#include "editing/track/connector_geometry.h"

#include <algorithm>
#include <cmath>

namespace trassix {

namespace {

WorldConnector endAt(const Layout& layout, TrackEnd end) {
  const PlacedPiece& piece = *layout.findPiece(end.piece);
  return ConnectorToWorld(piece, *definitionOf(piece), end.connector);
}

WorldConnector reversed(WorldConnector end) {
  end.heading = normaliseHeading(end.heading + 180);
  return end;
}

/// Where a row begins: the end it is joined to, or what faces the run's own open one.
WorldConnector outsideOf(const Layout& layout, TrackEnd own) {
  const TrackEnd outer = beyond(layout, own);
  return outer.piece == -1 ? reversed(endAt(layout, own)) : endAt(layout, outer);
}

/// The row from `start` on, joined within itself only.
std::vector<std::int32_t> layRow(Layout& layout, WorldConnector start, const PlacedPiece& like,
                                 double height, std::span<const PieceDef* const> row) {
  std::vector<std::int32_t> placed;
  const PlacedPiece model = like; // adding pieces moves it
  for (const PieceDef* definition : row) {
    const Pose pose = AttachPose(*definition, 0, start);
    const std::int32_t id = addPiece(layout, *definition, pose, model.level, height);
    PlacedPiece& piece = *layout.editPiece(id);
    piece.hasColor = model.hasColor;
    piece.color = model.color;
    start = ConnectorToWorld(piece, *definition, 1);
    if (!placed.empty())
      join(layout, placed.back(), 1, id, 0);
    placed.push_back(id);
  }
  return placed;
}

bool fits(const WorldConnector& start, const WorldConnector& end,
          std::span<const PieceDef* const> row) {
  double length = 0;
  for (const PieceDef* definition : row)
    length += definition->length;
  const Point goal = toWorld({start.x, start.y, start.heading}, {length, 0});
  return std::hypot(goal.x - end.x, goal.y - end.y) <= kRowPlay &&
         headingDifference(start.heading, end.heading + 180) <= 0.05;
}

} // namespace

std::vector<std::int32_t> replaceByRow(Layout& layout, std::span<const WayStretch> run,
                                       std::span<const PieceDef* const> row) {
  const TrackEnd enter{run.front().piece, run.front().enter};
  const TrackEnd leave{run.back().piece, run.back().leave};
  const WorldConnector start = outsideOf(layout, enter);
  if (row.empty() || !fits(start, outsideOf(layout, leave), row))
    return {};
  const TrackEnd before = beyond(layout, enter);
  const TrackEnd after = beyond(layout, leave);
  const double from = endHeight(layout, enter);
  const double to = endHeight(layout, leave);
  const PlacedPiece model = *layout.findPiece(enter.piece);
  std::vector<std::int32_t> ids;
  for (const WayStretch& stretch : run)
    ids.push_back(stretch.piece);
  std::ranges::sort(ids);
  detach(layout, ids);
  removePieces(layout.edit(), ids);
  const std::vector<std::int32_t> placed = layRow(layout, start, model, from, row);
  layBetween(layout, placed, {placed.front(), 0}, {placed.back(), 1}, from, to);
  if (before.piece != -1)
    join(layout, placed.front(), 0, before.piece, before.connector);
  if (after.piece != -1)
    join(layout, placed.back(), 1, after.piece, after.connector);
  return placed;
}

std::vector<std::int32_t> appendRow(Layout& layout, TrackEnd end,
                                    std::span<const PieceDef* const> row) {
  const PlacedPiece model = *layout.findPiece(end.piece);
  const std::vector<std::int32_t> placed =
      layRow(layout, endAt(layout, end), model, endHeight(layout, end), row);
  if (!placed.empty())
    join(layout, placed.front(), 0, end.piece, end.connector);
  return placed;
}

} // namespace trassix
