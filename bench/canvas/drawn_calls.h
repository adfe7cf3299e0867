#pragma once

#include "editing/canvas/surface.h"

#include <wx/graphics.h>

#include <functional>
#include <vector>

namespace trassix::bench {

/// Keeps the lines and polygons of a picture, ready to be handed to the toolkit's drawing backend
/// with nothing else to be done: no plan, no transform, no text.
class DrawnCalls : public Surface {
 public:
  /// `texts` measures the texts, on which it depends what is drawn; it must live as long.
  explicit DrawnCalls(Surface& texts) : texts_(texts) {}

  void polyline(std::span<const Point> points, const Stroke& stroke) override;
  void polygon(std::span<const Point> points, std::optional<Rgba> fill,
               std::optional<Stroke> outline) override;
  void segments(std::span<const Point> ends, const Stroke& stroke) override;
  void circle(Point centre, double radius, std::optional<Rgba> fill,
              std::optional<Stroke> outline) override;
  void text(std::string_view, Point, double, const TextStyle&) override { ++textCount_; }
  SizePx textSize(std::string_view text, const TextStyle& style) override {
    return texts_.textSize(text, style);
  }

  void handTo(wxGraphicsContext& context) const;
  std::size_t count() const { return calls_.size(); }
  std::size_t textCount() const { return textCount_; }

 private:
  enum class Kind : std::uint8_t { Line, Area, Segments, Circle };

  struct Call {
    Kind kind;
    std::vector<Point> points; ///< of a circle: its centre
    double radius;
    std::optional<Rgba> fill;
    std::optional<Stroke> outline;
  };

  Surface& texts_;
  std::vector<Call> calls_;
  std::size_t textCount_ = 0;
};

} // namespace trassix::bench
