#pragma once

#include "editing/canvas/surface.h"
#include "geometry/box.h"

#include <optional>

namespace trassix {

/// Draws nothing and tells how much room a picture takes on another surface.
class ExtentSurface : public Surface {
 public:
  explicit ExtentSurface(Surface& like) : like_(like) {}

  /// px; none when nothing was drawn.
  const std::optional<Box>& extent() const { return extent_; }

  double deviceScale() const override { return like_.deviceScale(); }
  void polyline(std::span<const Point> points, const Stroke& stroke) override;
  void polygon(std::span<const Point> points, std::optional<Rgba> fill,
               std::optional<Stroke> outline) override;
  void segments(std::span<const Point> ends, const Stroke& stroke) override;
  void circle(Point centre, double radius, std::optional<Rgba> fill,
              std::optional<Stroke> outline) override;
  void text(std::string_view text, Point centre, double degrees, const TextStyle& style) override;
  SizePx textSize(std::string_view text, const TextStyle& style) override;

 private:
  void add(std::span<const Point> points, double reach);

  Surface& like_;
  std::optional<Box> extent_;
};

} // namespace trassix
