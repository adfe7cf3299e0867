#include "ui/palette/palette_drawings.h"

#include "document/block_file.h"
#include "editing/canvas/piece_painter.h"
#include "editing/canvas/plan_colors.h"
#include "editing/scenery/scenery_footprint.h"
#include "editing/selection/content_box.h"
#include "editing/track/connector_geometry.h"
#include "editing/track/track_geometry.h"

#include <algorithm>
#include <limits>

namespace trassix {

namespace {

/// Small things stay visible: nothing is drawn narrower than this.
constexpr double kLeastPx = 5;

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

PieceLook lookOf(const PieceDef& piece) {
  PieceLook look;
  look.bed = opaque(piece.ramp     ? plan_colors::kRampBed
                    : piece.bridge ? plan_colors::kBridgeBed
                                   : plan_colors::kBed);
  return look;
}

} // namespace

double widestToScale(TrackSystem system) {
  constexpr double kWidestByHalfBed = 20;
  return kWidestByHalfBed * trackHalfWidth(system);
}

void drawPiece(Surface& surface, const PictureRoom& room, const PieceDef& piece, double widest) {
  const TrackGeometry& geometry = trackGeometryOf(piece);
  if (geometry.beds.empty()) {
    return;
  }
  const ViewTransform view = centred(boxOf(geometry.beds), room, room.size.width / widest);
  PiecePainter(surface, view).paint(geometry, {}, lookOf(piece));
}

void drawScenery(Surface& surface, const PictureRoom& room, const SceneryDef& item,
                 const Footprint& size, double widest) {
  const double zoom = std::min({room.size.width / std::max(widest, 1.0),
                                room.size.width / std::max(size.width, 1.0),
                                room.size.height / std::max(size.depth, 1.0)});
  const Footprint drawn{std::max(size.width * zoom, kLeastPx),
                        std::max(size.depth * zoom, kLeastPx), 0};
  const Rgba ink = plan_colors::sceneryColor(&item);
  surface.polygon(sceneryOutline(item.form, drawn, room.middle, 0), Rgba{ink.r, ink.g, ink.b, 90},
                  Stroke{ink, 1});
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
    const Rgba ink = plan_colors::sceneryColor(findScenery(item.item));
    std::vector<Point> outline = sceneryOutline(layout, item);
    std::ranges::transform(outline, outline.begin(), [&view](Point p) { return view.toScreen(p); });
    surface.polygon(outline, Rgba{ink.r, ink.g, ink.b, 90}, Stroke{ink, 1});
  }
  PiecePainter painter(surface, view);
  for (const PlacedPiece& piece : block.content.pieces) {
    if (const PieceDef* definition = definitionOf(piece)) {
      painter.paint(trackGeometryOf(*definition), poseOf(piece), lookOf(*definition));
    }
  }
}

} // namespace trassix
