#include "editing/selection/content_box.h"

#include "document/record_kinds.h"
#include "editing/selection/record_body.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace trassix {

namespace {

class BoxBuilder {
 public:
  void add(const Polygon& points) {
    for (const Point& p : points) {
      if (!box_)
        box_ = Box{p.x, p.y, p.x, p.y};
      *box_ = {std::min(box_->minX, p.x), std::min(box_->minY, p.y), std::max(box_->maxX, p.x),
               std::max(box_->maxY, p.y)};
    }
  }
  const std::optional<Box>& box() const { return box_; }

 private:
  std::optional<Box> box_;
};

/// Gives the outline of each thing that is drawn to `take(outline, level)`; what is on no level
/// comes with none.
template <typename Take>
void forEachOutline(const Layout& layout, Take take) {
  const std::optional<std::int32_t> noLevel;
  forEachKind(layout.content(), [&](const auto& records) {
    for (const auto& record : records)
      for (const Polygon& outline : outlinesOf(layout, record, 0)) {
        if constexpr (OnLevel<std::remove_cvref_t<decltype(record)>>)
          take(outline, std::optional(record.level));
        else
          take(outline, noLevel);
      }
  });
  take(layout.settings().baseboard, noLevel);
  for (const Level& level : layout.settings().levels)
    take(level.outline, std::optional(level.id));
}

/// How far [low, high] has to go to lie in [first, last], which is at least as long.
double shiftInto(double low, double high, double first, double last) {
  return std::max(first - low, 0.0) - std::max(high - last, 0.0);
}

/// Keeps the box that comes into `room` with the shortest move.
class NearestBox {
 public:
  explicit NearestBox(const Box& room) : room_(room) {}

  void offer(const Polygon& outline) {
    BoxBuilder whole;
    whole.add(outline);
    if (!whole.box())
      return;
    if (fits(*whole.box()))
      return offer(*whole.box());
    for (std::size_t i = 0; i < outline.size(); ++i)
      offerEdge(outline[i], outline[(i + 1) % outline.size()]);
  }
  const std::optional<Box>& nearest() const { return nearest_; }

 private:
  bool fits(const Box& box) const {
    return box.maxX - box.minX <= room_.maxX - room_.minX &&
           box.maxY - box.minY <= room_.maxY - room_.minY;
  }
  void offer(const Box& box) {
    const double distance = std::hypot(shiftInto(box.minX, box.maxX, room_.minX, room_.maxX),
                                       shiftInto(box.minY, box.maxY, room_.minY, room_.maxY));
    if (distance < distance_) {
      distance_ = distance;
      nearest_ = box;
    }
  }
  /// A line comes nearest to a box at one of its own ends or beside a corner of the box.
  void offerEdge(Point a, Point b) {
    for (const Point corner : {a, Point{room_.minX, room_.minY}, Point{room_.maxX, room_.minY},
                               Point{room_.minX, room_.maxY}, Point{room_.maxX, room_.maxY}}) {
      const Point p = nearestOnEdge(corner, a, b);
      offer(Box{p.x, p.y, p.x, p.y});
    }
  }

  Box room_;
  std::optional<Box> nearest_;
  double distance_ = std::numeric_limits<double>::infinity();
};

} // namespace

std::optional<Box> contentBox(const Layout& layout) {
  BoxBuilder box;
  forEachOutline(layout, [&box](const Polygon& outline, auto) { box.add(outline); });
  return box.box();
}

std::optional<Box> selectedContentBox(const Layout& layout) {
  BoxBuilder box;
  forEachSelectable(layout.content(), [&](const auto& records) {
    for (const auto& record : records)
      if (record.sel)
        std::ranges::for_each(outlinesOf(layout, record, 0),
                              [&box](const Polygon& outline) { box.add(outline); });
  });
  return box.box();
}

std::optional<Box> nearestContent(const Layout& layout, const Box& window, const Box& room) {
  NearestBox nearest(room);
  bool shown = false;
  forEachOutline(layout, [&](const Polygon& outline, std::optional<std::int32_t> level) {
    if (shown || (level && !layout.levelVisible(*level)))
      return;
    shown = touches(outline, window);
    if (!shown)
      nearest.offer(outline);
  });
  return shown ? std::nullopt : nearest.nearest();
}

} // namespace trassix
