#include "editing/picking.h"

#include "editing/scenery_footprint.h"

#include <algorithm>
#include <cmath>

namespace trassix {

namespace {

constexpr double kTolerancePx = 4;
constexpr double kLabelCharPx = 8; ///< mean advance of the label font
constexpr double kLabelHalfHeightPx = 11;

bool inside(const std::vector<Point>& polygon, Point at) {
  bool in = false;
  for (std::size_t i = 0, j = polygon.size() - 1; i < polygon.size(); j = i++) {
    const Point& a = polygon[i];
    const Point& b = polygon[j];
    if ((a.y > at.y) != (b.y > at.y) && at.x < (b.x - a.x) * (at.y - a.y) / (b.y - a.y) + a.x)
      in = !in;
  }
  return in;
}

double distanceToSegment(Point at, Point a, Point b) {
  const double dx = b.x - a.x;
  const double dy = b.y - a.y;
  const double squared = dx * dx + dy * dy;
  const double t =
      squared > 0 ? std::clamp(((at.x - a.x) * dx + (at.y - a.y) * dy) / squared, 0.0, 1.0) : 0.0;
  return std::hypot(at.x - a.x - t * dx, at.y - a.y - t * dy);
}

bool nearOutline(const std::vector<Point>& polygon, Point at, double tolerance) {
  for (std::size_t i = 0; i < polygon.size(); ++i)
    if (distanceToSegment(at, polygon[i], polygon[(i + 1) % polygon.size()]) <= tolerance)
      return true;
  return false;
}

bool holds(const Box& box, Point p) {
  return p.x >= box.minX && p.x <= box.maxX && p.y >= box.minY && p.y <= box.maxY;
}

bool inBox(const Box& box, const std::vector<Point>& polygon, bool whole) {
  if (polygon.empty())
    return false;
  const auto in = [&box](Point p) { return holds(box, p); };
  if (whole)
    return std::all_of(polygon.begin(), polygon.end(), in);
  // Touching is generous for areas: a vertex in the box, a corner of the box in the area, or edges
  // that pass through the middle of the box.
  return std::any_of(polygon.begin(), polygon.end(), in) || inside(polygon, {box.minX, box.minY}) ||
         inside(polygon, {box.maxX, box.maxY}) ||
         nearOutline(polygon, {(box.minX + box.maxX) / 2, (box.minY + box.maxY) / 2},
                     std::min(box.maxX - box.minX, box.maxY - box.minY) / 2);
}

template <typename Records>
auto* findRecord(Records& records, std::int32_t id) {
  const auto found = std::find_if(records.begin(), records.end(),
                                  [id](const auto& record) { return record.id == id; });
  return found == records.end() ? nullptr : &*found;
}

/// Calls `visit` with the record, if there is one.
template <typename Content, typename Visit>
void withRecord(Content& content, const Pick& pick, Visit visit) {
  const auto call = [&visit](auto* record) {
    if (record)
      visit(*record);
  };
  switch (pick.kind) {
  case RecordKind::Label:
    return call(findRecord(content.labels, pick.id));
  case RecordKind::Measurement:
    return call(findRecord(content.measurements, pick.id));
  case RecordKind::Piece:
    return call(findRecord(content.pieces, pick.id));
  case RecordKind::Scenery:
    return call(findRecord(content.scenery, pick.id));
  case RecordKind::Shape:
    return call(findRecord(content.shapes, pick.id));
  }
}

} // namespace

std::vector<Pick> picksAt(const Layout& layout, const PlanIndex& index, Point at, double mmPerPx) {
  std::vector<Pick> picks;
  const PlanContent& content = layout.content();
  const double tolerance = kTolerancePx * mmPerPx;
  for (const Label& label : content.labels) {
    const double halfWidth =
        (static_cast<double>(label.text.size()) * kLabelCharPx / 2 + 5) * mmPerPx;
    if (std::abs(at.x - label.x) <= halfWidth &&
        std::abs(at.y - label.y) <= kLabelHalfHeightPx * mmPerPx)
      picks.push_back({RecordKind::Label, label.id});
  }
  for (const Measurement& tape : content.measurements)
    if (distanceToSegment(at, tape.from, tape.to) <= tolerance)
      picks.push_back({RecordKind::Measurement, tape.id});
  for (const std::size_t position : index.hits(at, tolerance))
    picks.push_back({RecordKind::Piece, layout.pieces()[position].id});
  for (auto item = content.scenery.rbegin(); item != content.scenery.rend(); ++item)
    if (layout.levelVisible(item->level) && inside(sceneryOutline(layout, *item), at))
      picks.push_back({RecordKind::Scenery, item->id});
  for (auto shape = content.shapes.rbegin(); shape != content.shapes.rend(); ++shape) {
    if (!layout.levelVisible(shape->level) || shape->points.size() < 2)
      continue;
    if (nearOutline(shape->points, at, tolerance) || (!shape->outline && inside(shape->points, at)))
      picks.push_back({RecordKind::Shape, shape->id});
  }
  return picks;
}

bool isSelected(const Layout& layout, const Pick& pick) {
  bool selected = false;
  withRecord(layout.content(), pick, [&](const auto& record) { selected = record.sel; });
  return selected;
}

void setSelected(Layout& layout, const Pick& pick, bool selected) {
  withRecord(layout.edit(), pick, [selected](auto& record) { record.sel = selected; });
}

void selectInBox(Layout& layout, const PlanIndex& index, const Box& box, bool whole) {
  const std::vector<std::size_t> pieces = index.inBox(box, whole);
  PlanContent& content = layout.edit();
  for (const std::size_t position : pieces)
    content.pieces[position].sel = true;
  for (SceneryItem& item : content.scenery)
    if (layout.levelVisible(item.level) && inBox(box, sceneryOutline(layout, item), whole))
      item.sel = true;
  for (Shape& shape : content.shapes)
    if (layout.levelVisible(shape.level) && inBox(box, shape.points, whole))
      shape.sel = true;
  for (Label& label : content.labels)
    if (holds(box, {label.x, label.y}))
      label.sel = true;
  for (Measurement& tape : content.measurements)
    if (inBox(box, {tape.from, tape.to}, whole))
      tape.sel = true;
}

} // namespace trassix
