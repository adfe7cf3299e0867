#include "editing/canvas/halo.h"

#include "editing/canvas/plan_colors.h"

namespace trassix {

namespace {

constexpr double kEdgePx = 1.5;

} // namespace

void paintTextWithHalo(Surface& surface, std::string_view text, Point centre, double degrees,
                       const TextStyle& style) {
  TextStyle edge = style;
  edge.color = plan_colors::kPaper;
  for (const double x : {-kEdgePx, 0.0, kEdgePx})
    for (const double y : {-kEdgePx, 0.0, kEdgePx})
      if (x != 0 || y != 0)
        surface.text(text, {centre.x + x, centre.y + y}, degrees, edge);
  surface.text(text, centre, degrees, style);
}

void paintLinesWithHalo(Surface& surface, std::span<const Point> ends, const Stroke& stroke) {
  surface.segments(ends, {plan_colors::kPaper, stroke.width + 2 * kEdgePx});
  surface.segments(ends, stroke);
}

} // namespace trassix
