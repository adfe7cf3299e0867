#include "editing/canvas/extent_surface.h"

#include <algorithm>
#include <cmath>

namespace trassix {

void ExtentSurface::add(std::span<const Point> points, double reach) {
  for (const Point& p : points) {
    if (!extent_)
      extent_ = {p.x - reach, p.y - reach, p.x + reach, p.y + reach};
    extent_->minX = std::min(extent_->minX, p.x - reach);
    extent_->minY = std::min(extent_->minY, p.y - reach);
    extent_->maxX = std::max(extent_->maxX, p.x + reach);
    extent_->maxY = std::max(extent_->maxY, p.y + reach);
  }
}

void ExtentSurface::polyline(std::span<const Point> points, const Stroke& stroke) {
  add(points, stroke.width);
}

void ExtentSurface::polygon(std::span<const Point> points, std::optional<Rgba> /*fill*/,
                            std::optional<Stroke> outline) {
  add(points, outline ? outline->width : 0);
}

void ExtentSurface::segments(std::span<const Point> ends, const Stroke& stroke) {
  add(ends, stroke.width);
}

void ExtentSurface::circle(Point centre, double radius, std::optional<Rgba> /*fill*/,
                           std::optional<Stroke> outline) {
  add({&centre, 1}, radius + (outline ? outline->width : 0));
}

void ExtentSurface::text(std::string_view text, Point centre, double /*degrees*/,
                         const TextStyle& style) {
  const SizePx size = textSize(text, style);
  add({&centre, 1}, std::hypot(size.width, size.height) / 2);
}

SizePx ExtentSurface::textSize(std::string_view text, const TextStyle& style) {
  return like_.textSize(text, style);
}

} // namespace trassix
