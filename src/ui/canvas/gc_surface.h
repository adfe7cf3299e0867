#pragma once

#include "editing/canvas/surface.h"

#include <wx/graphics.h>

#include <map>
#include <memory>
#include <string>
#include <tuple>

namespace trassix {

/// Fonts and sizes of texts, which take the toolkit long to find: to be kept by what draws often.
struct GcTexts {
  std::map<std::tuple<double, bool, std::uint32_t>, wxGraphicsFont> fonts;
  std::map<std::tuple<double, bool, std::string>, SizePx> sizes;
};

/// What draws plans: on Windows GDI+ by name and not what the toolkit may come to prefer there, for
/// kept pictures need a renderer that draws into bitmaps, with transparency, and always the same.
wxGraphicsRenderer& planRenderer();

/// Draws on a toolkit graphics context, with anti-aliasing and in fractions of pixels.
class GcSurface : public Surface {
 public:
  /// Does not own the context, which must outlive the surface, nor the texts it knows already.
  explicit GcSurface(wxGraphicsContext& context, double deviceScale = 1, GcTexts* known = nullptr)
      : context_(context), deviceScale_(deviceScale), texts_(known ? *known : own_) {
    // Which would move areas by half a pixel after each line of an odd width.
    context_.DisableOffset();
  }

  double deviceScale() const override { return deviceScale_; }

  void clip(const Box& part) override;
  void unclip() override;
  void polyline(std::span<const Point> points, const Stroke& stroke) override;
  void polygon(std::span<const Point> points, std::optional<Rgba> fill,
               std::optional<Stroke> outline) override;
  void polylines(const PointRuns& lines, const Stroke& stroke) override;
  void polygons(const PointRuns& outlines, Rgba fill) override;
  void segments(std::span<const Point> ends, const Stroke& stroke) override;
  void circle(Point centre, double radius, std::optional<Rgba> fill,
              std::optional<Stroke> outline) override;
  void text(std::string_view text, Point centre, double degrees, const TextStyle& style) override;
  SizePx textSize(std::string_view text, const TextStyle& style) override;

 private:
  void usePen(const std::optional<Stroke>& stroke);
  void useBrush(const std::optional<Rgba>& fill);
  void useFont(const TextStyle& style);

  wxGraphicsContext& context_;
  double deviceScale_;
  std::optional<std::optional<Stroke>> pen_; ///< in use on the context, if known
  std::optional<std::optional<Rgba>> brush_;
  std::optional<TextStyle> font_;
  GcTexts own_;
  GcTexts& texts_;
};

} // namespace trassix
