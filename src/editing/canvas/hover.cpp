#include "editing/canvas/hover.h"

#include "catalog/scenery_catalog.h"
#include "catalog/track_catalog.h"
#include "editing/canvas/piece_painter.h"
#include "editing/canvas/plan_colors.h"
#include "editing/scenery/scenery_footprint.h"
#include "measures/measure_format.h"
#include "texts/texts.h"

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

void mark(Surface& surface, const ToolSite& site, const PlacedPiece& piece) {
  const PieceDef* definition = TrackCatalog::instance().find(piece.cat);
  if (!definition)
    return;
  PiecePainter painter(surface, site.view);
  for (const auto& outline : trackGeometryOf(*definition).beds)
    surface.polygon(painter.toScreen(outline, poseOf(piece)), kTint,
                    Stroke{plan_colors::kHover, 1.5});
}

void mark(Surface& surface, const ToolSite& site, const SceneryItem& item) {
  mark(surface, site, sceneryOutline(site.layout(), item));
}
void mark(Surface& surface, const ToolSite& site, const Shape& shape) {
  mark(surface, site, shape.points);
}
void mark(Surface& surface, const ToolSite& site, const Measurement& tape) {
  mark(surface, site, std::array{tape.from, tape.to});
}
void mark(Surface& surface, const ToolSite& site, const Label& label) {
  const Box box = labelBox(label, site.mm(1));
  mark(surface, site,
       std::array{Point{box.minX, box.minY}, Point{box.maxX, box.minY}, Point{box.maxX, box.maxY},
                  Point{box.minX, box.maxY}});
}

std::string nameOf(const Layout&, const PlacedPiece& piece) {
  // The catalogue's names begin with the article.
  const PieceDef* definition = definitionOf(piece);
  return definition ? definition->name : piece.cat;
}
std::string nameOf(const Layout&, const SceneryItem& item) {
  return sceneryName(item);
}
std::string nameOf(const Layout&, const Shape& shape) {
  return shape.label.empty() ? tr("Shape") : shape.label;
}
std::string nameOf(const Layout&, const Label& label) {
  return label.text;
}
std::string nameOf(const Layout& layout, const Measurement& tape) {
  return formatLength(std::hypot(tape.to.x - tape.from.x, tape.to.y - tape.from.y),
                      layout.settings().units);
}

} // namespace

std::string nameOf(const Layout& layout, const Pick& pick) {
  std::string name;
  withRecord(layout, pick, [&](const auto& record) { name = nameOf(layout, record); });
  return name;
}

void paintHover(Surface& surface, const ToolSite& site, const Pick& pick) {
  withRecord(site.layout(), pick, [&](const auto& record) { mark(surface, site, record); });
}

} // namespace trassix
