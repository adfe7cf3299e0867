#include "editing/selection/picking.h"

#include "editing/records_by_id.h"
#include "editing/scenery/scenery_footprint.h"
#include "geometry/polygons.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace trassix {

namespace {

constexpr double kTolerancePx = 4;
/// Of the label font, as shares of its size: mean advance, and half the height with the frame.
constexpr double kLabelAdvance = 0.62;
constexpr double kLabelHalfHeight = 0.85;

bool inBox(const Box& box, const Polygon& polygon, bool whole) {
  return !polygon.empty() && (whole ? liesIn(polygon, box) : touches(polygon, box));
}

/// Calls `visit` with the record, if there is one. `piece` is the one with the pick's id.
template <typename Content, typename Piece, typename Visit>
void withRecord(Content& content, Piece* piece, const Pick& pick, Visit visit) {
  const auto call = [&visit](auto* record) {
    if (record)
      visit(*record);
  };
  switch (pick.kind) {
  case RecordKind::Label:
    return call(recordWithId(content.labels, pick.id));
  case RecordKind::Measurement:
    return call(recordWithId(content.measurements, pick.id));
  case RecordKind::Piece:
    return call(piece);
  case RecordKind::Scenery:
    return call(recordWithId(content.scenery, pick.id));
  case RecordKind::Shape:
    return call(recordWithId(content.shapes, pick.id));
  }
}

/// Of a text in UTF-8, whose letters may take several bytes.
double letterCount(std::string_view text) {
  return static_cast<double>(std::ranges::count_if(
      text, [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; }));
}

} // namespace

double labelTextSize(double mmPerPx) {
  constexpr double kFull = 13;
  constexpr double kFromAfar = 9;
  constexpr double kFullFromZoom = 0.2;
  return std::clamp(kFull / (mmPerPx * kFullFromZoom), kFromAfar, kFull);
}

Box labelBox(const Label& label, double mmPerPx) {
  const double size = labelTextSize(mmPerPx);
  const double halfWidth = (letterCount(label.text) * size * kLabelAdvance / 2 + 5) * mmPerPx;
  const double halfHeight = size * kLabelHalfHeight * mmPerPx;
  return {label.x - halfWidth, label.y - halfHeight, label.x + halfWidth, label.y + halfHeight};
}

std::vector<Pick> picksAt(const Layout& layout, const PlanIndex& index, Point at, double mmPerPx) {
  std::vector<Pick> picks;
  const PlanContent& content = layout.content();
  const double tolerance = kTolerancePx * mmPerPx;
  for (auto label = content.labels.rbegin(); label != content.labels.rend(); ++label) {
    if (holds(labelBox(*label, mmPerPx), at))
      picks.push_back({RecordKind::Label, label->id});
  }
  for (const Measurement& tape : content.measurements)
    if (distanceToEdge(at, tape.from, tape.to) <= tolerance)
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
  withRecord(layout.content(), layout.findPiece(pick.id), pick,
             [&](const auto& record) { selected = record.sel; });
  return selected;
}

void setSelected(Layout& layout, const Pick& pick, bool selected) {
  withRecord(layout.edit(), layout.editPiece(pick.id), pick,
             [selected](auto& record) { record.sel = selected; });
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
