#include "ui/canvas/small_pictures.h"

#include "editing/canvas/halo.h"
#include "editing/canvas/layout_painter.h"
#include "editing/selection/content_box.h"
#include "ui/canvas/gc_surface.h"
#include "ui/widgets/system_theme.h"

#include <wx/gdicmn.h>

#include <algorithm>

namespace trassix {

namespace {

constexpr double kOffset = 12;     // px from the board to a dimension line
constexpr double kTextGap = 10;    // px from there to the middle of its text
constexpr double kTick = 4;        // px
constexpr double kPlanMargin = 12; // px

TextStyle textStyle() {
  return {systemTheme().ruler, 12, false};
}

} // namespace

ViewTransform viewOfOutline(std::span<const Point> corners, const wxSize& size, double margin,
                            double mostZoom) {
  Point low = corners.front();
  Point high = low;
  for (const Point& p : corners) {
    low = {std::min(low.x, p.x), std::min(low.y, p.y)};
    high = {std::max(high.x, p.x), std::max(high.y, p.y)};
  }
  const double width = std::max(high.x - low.x, 1.0);
  const double depth = std::max(high.y - low.y, 1.0);
  const double zoom =
      std::min({(size.x - 2 * margin) / width, (size.y - 2 * margin) / depth, mostZoom});
  return ViewTransform::ofScale(zoom, {(size.x - width * zoom) / 2 - low.x * zoom,
                                       (size.y - depth * zoom) / 2 - low.y * zoom});
}

void paintDimension(Surface& surface, const BoardDimension& dimension, const ViewTransform& view,
                    const wxSize& size) {
  const Point out = dimension.outward;
  const auto aside = [out](Point p, double px) {
    return Point{p.x + out.x * px, p.y + out.y * px};
  };
  const Point from = view.toScreen(dimension.from);
  const Point to = view.toScreen(dimension.to);
  const Stroke line{systemTheme().ruler, 1};
  const Point ends[]{aside(from, 3),       aside(from, kOffset + kTick),
                     aside(to, 3),         aside(to, kOffset + kTick),
                     aside(from, kOffset), aside(to, kOffset)};
  paintLinesWithHalo(surface, ends, line, systemTheme().paper);
  const Point middle = aside({(from.x + to.x) / 2, (from.y + to.y) / 2}, kOffset + kTextGap);
  // A long text of a short measure must not run out of the picture.
  const double half = surface.textSize(dimension.text, textStyle()).width / 2 + 4;
  const auto within = [half](double at, int length) {
    return half * 2 > length ? length / 2.0 : std::clamp(at, half, length - half);
  };
  if (out.x != 0)
    paintTextWithHalo(surface, dimension.text, {middle.x, within(middle.y, size.y)}, -90,
                      textStyle(), systemTheme().paper);
  else
    paintTextWithHalo(surface, dimension.text, {within(middle.x, size.x), middle.y}, 0, textStyle(),
                      systemTheme().paper);
}

void paintSmallPlan(wxGraphicsContext& context, const wxSize& size, const Layout& plan) {
  GcSurface surface(context);
  ViewTransform view;
  if (const std::optional<Box> box = contentBox(plan)) {
    const Point corners[]{{box->minX, box->minY}, {box->maxX, box->maxY}};
    view = viewOfOutline(corners, size, kPlanMargin, 1); // a single piece is not to fill it
  }
  PaintOptions options;
  options.grid = options.labels = options.scaleBar = false;
  options.theme = &systemTheme();
  LayoutPainter(surface, {static_cast<double>(size.x), static_cast<double>(size.y)}, view, options)
      .paint(plan, PlanIndex(plan));
}

} // namespace trassix
