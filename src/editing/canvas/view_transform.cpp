#include "editing/canvas/view_transform.h"

#include <algorithm>

namespace trassix {

std::vector<Point> ViewTransform::toScreen(std::span<const Point> mm) const {
  std::vector<Point> px;
  px.reserve(mm.size());
  for (const Point& p : mm)
    px.push_back(toScreen(p));
  return px;
}

void ViewTransform::zoomAbout(double factor, Point px) {
  const Point kept = toWorld(px);
  zoom_ = std::clamp(zoom_ * factor, kMinZoom, kMaxZoom);
  origin_ = {px.x - kept.x * zoom_, px.y - kept.y * zoom_};
}

void ViewTransform::reset() {
  *this = ViewTransform();
}

void ViewTransform::resetForSmall() {
  reset();
  zoom_ = 1.0;
}

void ViewTransform::fit(const Box& content, double widthPx, double heightPx) {
  const double width = std::max(content.maxX - content.minX, 1.0);
  const double height = std::max(content.maxY - content.minY, 1.0);
  const double roomX = widthPx - 2 * kFitMarginPx;
  const double roomY = heightPx - 2 * kFitMarginPx;
  zoom_ = std::max(std::min({roomX / width, roomY / height, kMaxZoom}), kMinFitZoom);
  origin_ = {(roomX - zoom_ * width) * 0.5 + kFitMarginPx - zoom_ * content.minX,
             (roomY - zoom_ * height) * 0.5 + kFitMarginPx - zoom_ * content.minY};
}

void ViewTransform::reveal(const Box& content, double widthPx, double heightPx) {
  const Point low = toScreen({content.minX, content.minY});
  const Point high = toScreen({content.maxX, content.maxY});
  const auto shift = [](double from, double to, double room) {
    const double last = room - kRevealMarginPx;
    if (to - from > last - kRevealMarginPx)
      return 0.0;
    return std::max(kRevealMarginPx - from, 0.0) - std::max(to - last, 0.0);
  };
  origin_.x += shift(low.x, high.x, widthPx);
  origin_.y += shift(low.y, high.y, heightPx);
}

bool ViewTransform::holds(const Box& content, double widthPx, double heightPx) const {
  const Point low = toScreen({content.minX, content.minY});
  const Point high = toScreen({content.maxX, content.maxY});
  return low.x >= kRevealMarginPx && high.x <= widthPx - kRevealMarginPx &&
         low.y >= kRevealMarginPx && high.y <= heightPx - kRevealMarginPx;
}

void ViewTransform::centre(const Box& content, double widthPx, double heightPx) {
  const double before = zoom_;
  fit(content, widthPx, heightPx);
  zoom_ = std::min(before, zoom_);
  origin_ = {widthPx / 2 - (content.minX + content.maxX) / 2 * zoom_,
             heightPx / 2 - (content.minY + content.maxY) / 2 * zoom_};
}

ViewTransform ViewTransform::ofScale(double zoom, Point origin) {
  ViewTransform view;
  view.zoom_ = zoom;
  view.origin_ = origin;
  return view;
}

} // namespace trassix
