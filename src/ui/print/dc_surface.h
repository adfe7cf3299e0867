#pragma once

#include "editing/canvas/surface.h"

#include <wx/dc.h>

namespace trassix {

/// Draws on a plain device context, such as that of a printer: whole device pixels, no
/// transparency. Colours that let through are mixed with white paper.
class DcSurface : public Surface {
 public:
  /// `scaleX` and `scaleY` device pixels to one of the surface's, with the origin at `origin`. Does
  /// not own the context.
  DcSurface(wxDC& dc, wxPoint origin, double scaleX, double scaleY)
      : dc_(dc), origin_(origin), scaleX_(scaleX), scaleY_(scaleY) {}

  double deviceScale() const override;
  void clip(const Box& part) override;
  void unclip() override;
  void polyline(std::span<const Point> points, const Stroke& stroke) override;
  void polygon(std::span<const Point> points, std::optional<Rgba> fill,
               std::optional<Stroke> outline) override;
  void polygons(const PointRuns& outlines, Rgba fill) override;
  void segments(std::span<const Point> ends, const Stroke& stroke) override;
  void circle(Point centre, double radius, std::optional<Rgba> fill,
              std::optional<Stroke> outline) override;
  void text(std::string_view text, Point centre, double degrees, const TextStyle& style) override;
  SizePx textSize(std::string_view text, const TextStyle& style) override;

 private:
  double scale() const;
  wxPoint toDevice(Point px) const;
  std::vector<wxPoint> toDevice(std::span<const Point> points) const;
  void line(Point from, Point to);
  void dashes(std::span<const Point> points, const Stroke& stroke);
  void usePen(const std::optional<Stroke>& stroke);
  void useFont(const TextStyle& style);

  wxDC& dc_;
  wxPoint origin_;
  double scaleX_;
  double scaleY_;
  double shift_ = 0; ///< device pixels, by which points are drawn too far
};

} // namespace trassix
