#pragma once

#include "editing/canvas/surface.h"
#include "output/paper.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace trassix {

using TextMeasure = std::function<SizePx(std::string_view text, const TextStyle& style)>;

/// Draws an SVG picture in which one unit is a millimetre. Texts stay texts, groups become named
/// groups. It has no pixels: points are written to the ten-thousandth.
class SvgSurface : public Surface {
 public:
  /// Takes coordinates in px of the page, as all surfaces do, `kPxPerMm` to the mm of the paper.
  /// `measure` tells the sizes of texts in the face that is named in the picture.
  SvgSurface(SizeMm size, std::string_view title, TextMeasure measure);

  /// The whole picture, once all was drawn.
  std::string take();

  /// A group that is not shown until its reader is asked to.
  void beginHiddenGroup(std::string_view name);

  double deviceScale() const override { return 1000; }
  void clip(const Box& part) override;
  void unclip() override;
  void beginGroup(std::string_view name) override;
  void endGroup() override;
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
  std::string idOf(std::string_view name);
  void openGroup(std::string_view name, std::string_view attributes);
  void number(double px);
  void points(std::span<const Point> run, bool closed);
  void beginPath();
  void endPath(std::optional<Rgba> fill, const std::optional<Stroke>& stroke);
  void paint(std::string_view property, std::optional<Rgba> color);
  void strokeOf(const std::optional<Stroke>& stroke);
  void escaped(std::string_view text);

  TextMeasure measure_;
  std::string out_;
  std::map<std::string, int> ids_; ///< how often a group has wanted each
};

} // namespace trassix
