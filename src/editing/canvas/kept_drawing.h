#pragma once

#include "editing/canvas/extent_surface.h"
#include "editing/canvas/surface.h"
#include "geometry/box.h"

#include <functional>
#include <vector>

namespace trassix {

/// Keeps what is drawn on it, to be drawn on other surfaces at other places.
class KeptDrawing : public Surface {
 public:
  /// Texts are measured as on `like` while something is drawn on this one.
  void measureLike(Surface& like) { like_ = &like; }

  /// `shift` in px; only what lies near `part` of the surface.
  void drawOn(Surface& surface, Point shift, const Box& part) const;
  void clear() { calls_.clear(); }

  double deviceScale() const override { return like_->deviceScale(); }
  void polyline(std::span<const Point> points, const Stroke& stroke) override;
  void polygon(std::span<const Point> points, std::optional<Rgba> fill,
               std::optional<Stroke> outline) override;
  void segments(std::span<const Point> ends, const Stroke& stroke) override;
  void circle(Point centre, double radius, std::optional<Rgba> fill,
              std::optional<Stroke> outline) override;
  void text(std::string_view text, Point centre, double degrees, const TextStyle& style) override;
  SizePx textSize(std::string_view text, const TextStyle& style) override;

 private:
  struct Call {
    std::vector<Point> points;
    std::function<void(Surface&, std::span<const Point>)> draw;
    Box extent;
  };
  void keep(std::span<const Point> points,
            std::function<void(Surface&, std::span<const Point>)> draw);

  Surface* like_ = nullptr;
  std::vector<Call> calls_;
};

} // namespace trassix
