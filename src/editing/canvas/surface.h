#pragma once

#include "document/color.h"
#include "editing/canvas/point_runs.h"
#include "geometry/box.h"
#include "geometry/point.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace trassix {

struct Rgba {
  std::uint8_t r = 0;
  std::uint8_t g = 0;
  std::uint8_t b = 0;
  std::uint8_t a = 255;

  bool operator==(const Rgba&) const = default;
};

inline Rgba opaque(Color color, std::uint8_t a = 255) {
  return {color.r, color.g, color.b, a};
}

constexpr Rgba withAlpha(Rgba color, std::uint8_t a) {
  return {color.r, color.g, color.b, a};
}

struct Stroke {
  enum class Style : std::uint8_t { Solid, Dashed, Dotted };

  Rgba color;
  double width = 1; ///< px
  Style style = Style::Solid;

  /// Lengths of what is drawn and of what is left out in turns, px, on paper and in files.
  double dash() const { return style == Style::Dotted ? width : 4 + 2 * width; }
  double gap() const { return style == Style::Dotted ? 2 * width : 3 + width; }

  bool operator==(const Stroke&) const = default;
};

struct TextStyle {
  Rgba color;
  double size = 11; ///< px from baseline to baseline, near enough
  bool bold = false;

  /// Size of the font, px.
  double em() const { return size * 0.88; }

  bool operator==(const TextStyle&) const = default;
};

struct SizePx {
  double width = 0;
  double height = 0;
};

/// What pictures are drawn on: the screen, a printer, an image, or a recording in a test. All
/// coordinates in pixels with y downwards.
class Surface {
 public:
  virtual ~Surface() = default;

  /// How many pixels of the display one of the surface's is wide.
  virtual double deviceScale() const { return 1; }

  /// Until `unclip` nothing is drawn outside the box, px. Not to be nested. Surfaces that only look
  /// at what is drawn need not follow.
  virtual void clip(const Box& /*part*/) {}
  virtual void unclip() {}

  /// Names what is drawn until `endGroup`, for surfaces whose readers want to know. May be nested.
  virtual void beginGroup(std::string_view /*name*/) {}
  virtual void endGroup() {}

  virtual void polyline(std::span<const Point> points, const Stroke& stroke) = 0;
  virtual void polygon(std::span<const Point> points, std::optional<Rgba> fill,
                       std::optional<Stroke> outline) = 0;
  /// Lines that are one thing where they overlap.
  virtual void polylines(const PointRuns& lines, const Stroke& stroke) {
    for (std::size_t i = 0; i < lines.size(); ++i)
      polyline(lines[i], stroke);
  }
  /// Areas likewise.
  virtual void polygons(const PointRuns& outlines, Rgba fill) {
    for (std::size_t i = 0; i < outlines.size(); ++i)
      polygon(outlines[i], fill, {});
  }
  /// Separate lines: points 0-1, 2-3, and so on.
  virtual void segments(std::span<const Point> ends, const Stroke& stroke) = 0;
  virtual void circle(Point centre, double radius, std::optional<Rgba> fill,
                      std::optional<Stroke> outline) = 0;

  /// Text centred on `centre`, turned by `degrees` clockwise. UTF-8.
  virtual void text(std::string_view text, Point centre, double degrees,
                    const TextStyle& style) = 0;
  virtual SizePx textSize(std::string_view text, const TextStyle& style) = 0;
};

/// Names what is drawn while it lives.
class SurfaceGroup {
 public:
  SurfaceGroup(Surface& surface, std::string_view name) : surface_(surface) {
    surface_.beginGroup(name);
  }
  ~SurfaceGroup() { surface_.endGroup(); }
  SurfaceGroup(const SurfaceGroup&) = delete;
  SurfaceGroup& operator=(const SurfaceGroup&) = delete;

 private:
  Surface& surface_;
};

} // namespace trassix
