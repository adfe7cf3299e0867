#include "editing/canvas/hover.h"

#include "catalog/scenery_catalog.h"
#include "catalog/track_catalog.h"
#include "editing/canvas/piece_painter.h"
#include "editing/canvas/plan_colors.h"
#include "editing/records_by_id.h"
#include "editing/scenery/scenery_footprint.h"
#include "measures/measure_format.h"

#include <array>
#include <cmath>
#include <span>
#include <vector>

namespace trassix {

namespace {

constexpr Rgba kTint{32, 108, 214, 28};

std::string sceneryName(const SceneryItem& item) {
  const SceneryDef* definition = findScenery(item.item);
  return definition ? std::string(definition->name) : item.item;
}

void mark(Surface& surface, const ToolSite& site, std::span<const Point> outline) {
  surface.polygon(site.view.toScreen(outline), kTint, Stroke{plan_colors::kHover, 1.5});
}

void markPiece(Surface& surface, const ToolSite& site, const PlacedPiece& piece) {
  const PieceDef* definition = TrackCatalog::instance().find(piece.cat);
  if (!definition)
    return;
  PiecePainter painter(surface, site.view);
  for (const auto& outline : trackGeometryOf(*definition).beds)
    surface.polygon(painter.toScreen(outline, poseOf(piece)), kTint,
                    Stroke{plan_colors::kHover, 1.5});
}

} // namespace

std::string nameOf(const Layout& layout, const Pick& pick) {
  const PlanContent& content = layout.content();
  switch (pick.kind) {
  case RecordKind::Piece:
    if (const PlacedPiece* piece = layout.findPiece(pick.id)) {
      // The catalogue's names begin with the article.
      const PieceDef* definition = TrackCatalog::instance().find(piece->cat);
      return definition ? definition->name : piece->cat;
    }
    break;
  case RecordKind::Scenery:
    if (const auto* item = recordWithId(content.scenery, pick.id))
      return sceneryName(*item);
    break;
  case RecordKind::Shape:
    if (const auto* shape = recordWithId(content.shapes, pick.id))
      return shape->label.empty() ? "Shape" : shape->label;
    break;
  case RecordKind::Label:
    if (const auto* label = recordWithId(content.labels, pick.id))
      return label->text;
    break;
  case RecordKind::Measurement:
    if (const auto* tape = recordWithId(content.measurements, pick.id))
      return formatLength(std::hypot(tape->to.x - tape->from.x, tape->to.y - tape->from.y),
                          layout.settings().units);
    break;
  }
  return {};
}

void paintHover(Surface& surface, const ToolSite& site, const Pick& pick) {
  const Layout& layout = site.layout();
  const PlanContent& content = layout.content();
  switch (pick.kind) {
  case RecordKind::Piece:
    if (const PlacedPiece* piece = layout.findPiece(pick.id))
      markPiece(surface, site, *piece);
    break;
  case RecordKind::Scenery:
    if (const auto* item = recordWithId(content.scenery, pick.id))
      mark(surface, site, sceneryOutline(layout, *item));
    break;
  case RecordKind::Shape:
    if (const auto* shape = recordWithId(content.shapes, pick.id))
      mark(surface, site, shape->points);
    break;
  case RecordKind::Measurement:
    if (const auto* tape = recordWithId(content.measurements, pick.id))
      mark(surface, site, std::array{tape->from, tape->to});
    break;
  case RecordKind::Label:
    if (const auto* label = recordWithId(content.labels, pick.id)) {
      const Box box = labelBox(*label, site.mm(1));
      mark(surface, site,
           std::array{Point{box.minX, box.minY}, Point{box.maxX, box.minY},
                      Point{box.maxX, box.maxY}, Point{box.minX, box.maxY}});
    }
    break;
  }
}

} // namespace trassix
