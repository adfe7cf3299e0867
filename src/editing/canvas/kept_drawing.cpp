#include "editing/canvas/kept_drawing.h"

#include <string>
#include <utility>

namespace trassix {

void KeptDrawing::keep(std::span<const Point> points,
                       std::function<void(Surface&, std::span<const Point>)> draw) {
  ExtentSurface room(*like_);
  draw(room, points);
  if (room.extent())
    calls_.push_back({{points.begin(), points.end()}, std::move(draw), *room.extent()});
}

void KeptDrawing::drawOn(Surface& surface, Point shift, const Box& part) const {
  std::vector<Point> shifted;
  for (const Call& call : calls_) {
    if (call.extent.maxX + shift.x < part.minX || call.extent.minX + shift.x > part.maxX ||
        call.extent.maxY + shift.y < part.minY || call.extent.minY + shift.y > part.maxY)
      continue;
    shifted.clear();
    for (const Point& p : call.points)
      shifted.push_back({p.x + shift.x, p.y + shift.y});
    call.draw(surface, shifted);
  }
}

void KeptDrawing::polyline(std::span<const Point> points, const Stroke& stroke) {
  keep(points, [stroke](Surface& on, std::span<const Point> at) { on.polyline(at, stroke); });
}

void KeptDrawing::polygon(std::span<const Point> points, std::optional<Rgba> fill,
                          std::optional<Stroke> outline) {
  keep(points,
       [fill, outline](Surface& on, std::span<const Point> at) { on.polygon(at, fill, outline); });
}

void KeptDrawing::segments(std::span<const Point> ends, const Stroke& stroke) {
  keep(ends, [stroke](Surface& on, std::span<const Point> at) { on.segments(at, stroke); });
}

void KeptDrawing::circle(Point centre, double radius, std::optional<Rgba> fill,
                         std::optional<Stroke> outline) {
  keep({&centre, 1},
       [=](Surface& on, std::span<const Point> at) { on.circle(at[0], radius, fill, outline); });
}

void KeptDrawing::text(std::string_view text, Point centre, double degrees,
                       const TextStyle& style) {
  keep({&centre, 1}, [=, words = std::string(text)](Surface& on, std::span<const Point> at) {
    on.text(words, at[0], degrees, style);
  });
}

SizePx KeptDrawing::textSize(std::string_view text, const TextStyle& style) {
  return like_->textSize(text, style);
}

} // namespace trassix
