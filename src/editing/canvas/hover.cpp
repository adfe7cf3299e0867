#include "editing/canvas/hover.h"

#include "editing/canvas/plan_theme.h"
#include "editing/canvas/record_pictures.h"
#include "editing/selection/any_record.h"
#include "editing/selection/record_body.h"

namespace trassix {

std::string nameOf(const Layout& layout, const Pick& pick) {
  std::string name;
  withRecord(layout, pick, [&](const auto& record) { name = nameOf(layout, record); });
  return name;
}

namespace {

void paintOutlines(Surface& surface, const ToolSite& site, const Pick& pick, Rgba tint,
                   const Stroke& edge) {
  withRecord(site.layout(), pick, [&](const auto& record) {
    for (const Polygon& outline : outlinesOf(site.layout(), record, site.mm(1)))
      surface.polygon(site.view.toScreen(outline), tint, edge);
  });
}

} // namespace

void paintHover(Surface& surface, const ToolSite& site, const Pick& pick) {
  paintOutlines(surface, site, pick, withAlpha(site.theme().selected, 28),
                {site.theme().hover, 1.5});
}

void paintPointed(Surface& surface, const ToolSite& site, std::int32_t piece) {
  paintOutlines(surface, site, {RecordKind::Piece, piece}, withAlpha(site.theme().selected, 90),
                {site.theme().selected, 3});
}

} // namespace trassix
