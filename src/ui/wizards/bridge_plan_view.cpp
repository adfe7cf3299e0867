#include "ui/wizards/bridge_plan_view.h"

#include "document/layout.h"
#include "editing/canvas/layout_painter.h"
#include "editing/selection/content_box.h"
#include "ui/canvas/small_pictures.h"

#include <algorithm>
#include <array>

namespace trassix {

namespace {

constexpr double kMarginPx = 14;
constexpr double kMostZoom = 0.3; // px per mm: a short span does not fill the picture
constexpr double kMarkPx = 7;

} // namespace

void paintBridgePlan(Surface& surface, SizePx size, const Layout& layout, const BridgePlan& plan,
                     const PlanTheme& theme) {
  Box box = selectedContentBox(layout).value_or(Box());
  for (const CrossedThing& thing : plan.crossed)
    box = {std::min(box.minX, thing.at.x), std::min(box.minY, thing.at.y),
           std::max(box.maxX, thing.at.x), std::max(box.maxY, thing.at.y)};
  const std::array<Point, 2> corners{{{box.minX, box.minY}, {box.maxX, box.maxY}}};
  const ViewTransform view =
      viewOfOutline(corners, wxSize(static_cast<int>(size.width), static_cast<int>(size.height)),
                    kMarginPx, kMostZoom);
  PaintOptions options;
  options.grid = options.labels = options.scaleBar = false;
  options.theme = &theme;
  LayoutPainter(surface, size, view, options).paint(layout, PlanIndex(layout));
  for (const BridgePier& pier : plan.piers) {
    const Point px = view.toScreen(pier.at);
    surface.circle(px, pier.portal ? 4 : 2.5, theme.paper,
                   Stroke{pier.portal ? theme.measure : theme.rail, 1.2});
  }
  for (const CrossedThing& thing : plan.crossed)
    surface.circle(view.toScreen(thing.at), kMarkPx, {},
                   Stroke{thing.clearance < thing.least - 0.05 || !plan.possible()
                              ? theme.gradeColor(GradeBand::Steep)
                              : theme.joinedEnd,
                          2});
}

} // namespace trassix
