#include "editing/canvas/halo.h"

namespace trassix {

namespace {

constexpr double kEdgePx = 1.5;

} // namespace

void paintTextWithHalo(Surface& surface, std::string_view text, Point centre, double degrees,
                       const TextStyle& style, Rgba ground) {
  TextStyle edge = style;
  edge.color = ground;
  for (const double x : {-kEdgePx, 0.0, kEdgePx})
    for (const double y : {-kEdgePx, 0.0, kEdgePx})
      if (x != 0 || y != 0)
        surface.text(text, {centre.x + x, centre.y + y}, degrees, edge);
  surface.text(text, centre, degrees, style);
}

void paintLinesWithHalo(Surface& surface, std::span<const Point> ends, const Stroke& stroke,
                        Rgba ground) {
  surface.segments(ends, {ground, stroke.width + 2 * kEdgePx});
  surface.segments(ends, stroke);
}

} // namespace trassix
