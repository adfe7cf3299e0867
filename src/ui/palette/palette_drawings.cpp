#include "ui/palette/palette_drawings.h"

#include "document/block.h"
#include "document/block_file.h"
#include "document/plan_content.h"
#include "editing/canvas/helix_picture.h"
#include "editing/canvas/piece_painter.h"
#include "editing/canvas/scenery/scenery_painter.h"
#include "editing/selection/content_box.h"
#include "editing/track/connector_geometry.h"
#include "editing/track/track_geometry.h"
#include "ui/widgets/system_theme.h"

#include <algorithm>
#include <limits>

namespace trassix {

namespace {

/// Small things stay visible: nothing is drawn narrower than this.
constexpr double kLeastPx = 5;
constexpr double kThinnestBedPx = 8;
constexpr double kWidestBedPx = 15;

Box boxOf(const std::vector<std::vector<Point>>& outlines) {
  constexpr double kFar = std::numeric_limits<double>::max();
  Box box{kFar, kFar, -kFar, -kFar};
  for (const auto& outline : outlines) {
    for (const Point& p : outline) {
      box = {std::min(box.minX, p.x), std::min(box.minY, p.y), std::max(box.maxX, p.x),
             std::max(box.maxY, p.y)};
    }
  }
  return box;
}

ViewTransform centred(const Box& box, const PictureRoom& room, double zoom) {
  const double fitting = std::min({zoom, room.size.width / std::max(box.maxX - box.minX, 1.0),
                                   room.size.height / std::max(box.maxY - box.minY, 1.0)});
  return ViewTransform::ofScale(fitting, {room.middle.x - (box.minX + box.maxX) / 2 * fitting,
                                          room.middle.y - (box.minY + box.maxY) / 2 * fitting});
}

/// A torn edge: the piece goes on beyond its picture.
void breakOff(Surface& surface, const PictureRoom& room, double over) {
  constexpr double kTooth = 4;
  const double top = room.middle.y - room.size.height / 2;
  const double right = room.middle.x + room.size.width / 2;
  std::vector<Point> edge;
  for (int i = 0; top + i * kTooth <= top + room.size.height + kTooth; ++i) {
    edge.push_back({right - (i % 2 == 0 ? kTooth : 0), top + i * kTooth});
  }
  std::vector<Point> beyond = edge;
  beyond.push_back({right + over + kTooth, edge.back().y});
  beyond.push_back({right + over + kTooth, top});
  surface.polygon(beyond, systemTheme().board, {});
  surface.polyline(edge, Stroke{systemTheme().bedEdge, 1});
}

PieceLook lookOf(const PieceDef& piece) {
  PieceLook look;
  look.bed = opaque(systemTheme().bedOf(piece));
  return look;
}

} // namespace

double scaleOfGroup(std::span<const PieceDef* const> pieces, double width) {
  const double bed = 2 * trackHalfWidth(pieces.front()->system);
  double widest = 1;
  for (const PieceDef* piece : pieces) {
    const Box box = boxOf(trackGeometryOf(*piece).beds);
    // What does not fit at any scale makes no other piece smaller.
    if ((box.maxX - box.minX) * kThinnestBedPx / bed <= width)
      widest = std::max(widest, box.maxX - box.minX);
  }
  return std::clamp(width / widest, kThinnestBedPx / bed, kWidestBedPx / bed);
}

double drawnHeight(const PieceDef& piece, double scale) {
  const Box box = boxOf(trackGeometryOf(piece).beds);
  return (box.maxY - box.minY) * scale;
}

void drawPiece(Surface& surface, const PictureRoom& room, const PieceDef& piece, double scale) {
  const TrackGeometry& geometry = trackGeometryOf(piece);
  if (geometry.beds.empty()) {
    return;
  }
  const Box box = boxOf(geometry.beds);
  const double over = (box.maxX - box.minX) * scale - room.size.width;
  const bool broken = over > 1 && piece.kind == PieceKind::Straight;
  const ViewTransform view =
      broken ? ViewTransform::ofScale(scale, {room.middle.x - room.size.width / 2, room.middle.y})
             : centred(box, room, scale);
  PiecePainter(surface, view, systemTheme()).paint(piece, {}, lookOf(piece));
  if (broken) {
    breakOff(surface, room, over);
  }
}

void drawScenery(Surface& surface, const PictureRoom& room, const SceneryDef& item,
                 const Footprint& size, double widest) {
  const double zoom = room.size.width / widest;
  const Footprint drawn{std::max(size.width * zoom, kLeastPx),
                        std::max(size.depth * zoom, kLeastPx), 0};
  const ViewTransform view = ViewTransform::ofScale(1, room.middle);
  const double unit = sceneryUnit(item, size) * zoom;
  SceneryPainter(surface, view, systemTheme())
      .paint({std::make_shared<SceneryPicture>(deriveSceneryPicture(item, drawn, unit)), {}});
}

void drawHelix(Surface& surface, const PictureRoom& room, const HelixPlan& plan, double widest) {
  HelixPlan shown = plan;
  shown.centre = {};
  const double reach = plan.kit->outerSize;
  const ViewTransform view =
      centred({-reach, -reach, reach, reach}, room, room.size.width / widest);
  PieceLook look;
  look.bed = opaque(systemTheme().bed);
  paintHelixTrack(surface, view, systemTheme(), shown, look);
  paintHelixMarks(surface, view, systemTheme(), shown);
}

void drawBlock(Surface& surface, const PictureRoom& room, const Block& block) {
  Layout layout;
  layout.edit() = block.content;
  const std::optional<Box> box = contentBox(layout);
  if (!box) {
    return;
  }
  const ViewTransform view = centred(*box, room, std::numeric_limits<double>::max());
  for (const SceneryItem& item : block.content.scenery) {
    SceneryPainter(surface, view, systemTheme()).paint(SceneryPainter::itemOf(layout, item));
  }
  PiecePainter painter(surface, view, systemTheme());
  for (const PlacedPiece& piece : block.content.pieces) {
    if (const PieceDef* definition = definitionOf(piece)) {
      painter.paint(*definition, poseOf(piece), lookOf(*definition));
    }
  }
}

} // namespace trassix
