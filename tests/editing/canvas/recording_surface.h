#pragma once

#include "editing/canvas/surface.h"

#include <algorithm>
#include <string>
#include <vector>

namespace trassix::test {

/// Keeps what was drawn.
class RecordingSurface : public Surface {
 public:
  struct Line {
    std::vector<Point> points;
    Stroke stroke;
  };

  std::vector<Line> lines;
  std::vector<Line> hatches; ///< from `segments`
  std::vector<Line> areas;   ///< with an edge
  std::vector<Point> dots;
  std::vector<std::string> texts;

  void polyline(std::span<const Point> points, const Stroke& stroke) override {
    lines.push_back({{points.begin(), points.end()}, stroke});
  }
  void polygon(std::span<const Point> points, std::optional<Rgba>,
               std::optional<Stroke> outline) override {
    if (outline)
      areas.push_back({{points.begin(), points.end()}, *outline});
  }
  void segments(std::span<const Point> ends, const Stroke& stroke) override {
    hatches.push_back({{ends.begin(), ends.end()}, stroke});
  }
  void circle(Point centre, double, std::optional<Rgba>, std::optional<Stroke>) override {
    dots.push_back(centre);
  }
  void text(std::string_view text, Point, double, const TextStyle&) override {
    texts.emplace_back(text);
  }
  SizePx textSize(std::string_view text, const TextStyle& style) override {
    return {static_cast<double>(text.size()) * style.size * 0.6, style.size * 1.2};
  }

  /// Lines in this colour.
  std::size_t linesIn(Rgba color) const {
    return static_cast<std::size_t>(std::count_if(
        lines.begin(), lines.end(), [&](const Line& l) { return l.stroke.color == color; }));
  }
};

} // namespace trassix::test
