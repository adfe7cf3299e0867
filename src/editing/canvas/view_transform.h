#pragma once

#include "geometry/box.h"

#include <span>
#include <vector>

namespace trassix {

/// Between screen pixels and layout millimetres: screen = origin + world * zoom. Both y axes run
/// downwards, so there is no flip.
class ViewTransform {
 public:
  static constexpr double kMinZoom = 0.3; ///< px per mm, reached by zooming by hand
  static constexpr double kMaxZoom = 20.0;
  static constexpr double kMinFitZoom = 0.05; ///< a very large plan may be fitted further out
  static constexpr double kFitMarginPx = 80.0;
  static constexpr double kRevealMarginPx = 40.0;

  double zoom() const { return zoom_; }
  Point origin() const { return origin_; }

  Point toWorld(Point px) const { return {(px.x - origin_.x) / zoom_, (px.y - origin_.y) / zoom_}; }
  Point toScreen(Point mm) const { return {origin_.x + mm.x * zoom_, origin_.y + mm.y * zoom_}; }

  std::vector<Point> toScreen(std::span<const Point> mm) const;

  /// Zooms by `factor` within the limits for zooming by hand; the layout point under `px` stays.
  void zoomAbout(double factor, Point px);

  void panTo(Point origin) { origin_ = origin; }

  void reset();         ///< the start view
  void resetForSmall(); ///< the start view for small gauges

  /// Centres `content` (mm) in a window of the given size, with a margin on every side.
  void fit(const Box& content, double widthPx, double heightPx);

  /// Pans as little as brings `content` (mm) into a window of the given size; not along an axis on
  /// which it has no room.
  void reveal(const Box& content, double widthPx, double heightPx);

  /// Whether all of `content` (mm) is in a window of the given size, with a margin.
  bool holds(const Box& content, double widthPx, double heightPx) const;
  /// Centres it at the present scale, or from as far away as it takes to see all of it.
  void centre(const Box& content, double widthPx, double heightPx);

  /// A fixed scale outside the limits for zooming by hand, for small pictures.
  static ViewTransform ofScale(double zoom, Point origin);

  bool operator==(const ViewTransform&) const = default;

 private:
  double zoom_ = 0.4; ///< px per mm
  Point origin_{60, 60};
};

} // namespace trassix
