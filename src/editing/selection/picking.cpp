#include "editing/selection/picking.h"

#include "editing/scenery/scenery_footprint.h"
#include "editing/selection/selection.h"
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

namespace {

/// What lies under a point, kind by kind and the topmost of each first.
class PicksAt {
 public:
  PicksAt(const Layout& layout, const PlanIndex& index, Point at, double mmPerPx)
      : layout_(layout), index_(index), at_(at), mmPerPx_(mmPerPx),
        tolerance_(kTolerancePx * mmPerPx) {}

  template <class Record>
  std::vector<Pick> of(const std::vector<Record>& records) const {
    std::vector<Pick> picks;
    for (auto record = records.rbegin(); record != records.rend(); ++record)
      if (isVisible(layout_, *record) && hits(*record))
        picks.push_back({Record::kKind, record->id});
    return picks;
  }
  /// Of which there are many, found by the index.
  std::vector<Pick> of(const std::vector<PlacedPiece>& pieces) const {
    std::vector<Pick> picks;
    for (const std::size_t position : index_.hits(at_, tolerance_))
      picks.push_back({RecordKind::Piece, pieces[position].id});
    return picks;
  }

 private:
  bool hits(const Label& label) const { return holds(labelBox(label, mmPerPx_), at_); }
  bool hits(const Measurement& tape) const {
    return distanceToEdge(at_, tape.from, tape.to) <= tolerance_;
  }
  bool hits(const SceneryItem& item) const { return inside(sceneryOutline(layout_, item), at_); }
  bool hits(const Shape& shape) const {
    return shape.points.size() >= 2 && (nearOutline(shape.points, at_, tolerance_) ||
                                        (!shape.outline && inside(shape.points, at_)));
  }

  const Layout& layout_;
  const PlanIndex& index_;
  Point at_;
  double mmPerPx_;
  double tolerance_;
};

} // namespace

std::vector<Pick> picksAt(const Layout& layout, const PlanIndex& index, Point at, double mmPerPx) {
  const PicksAt found(layout, index, at, mmPerPx);
  std::vector<Pick> picks;
  forEachSelectable(layout.content(), [&](const auto& records) {
    const std::vector<Pick> above = found.of(records);
    picks.insert(picks.begin(), above.begin(), above.end());
  });
  return picks;
}

bool isSelected(const Layout& layout, const Pick& pick) {
  bool selected = false;
  withRecord(layout, pick, [&selected](const auto& record) { selected = record.sel; });
  return selected;
}

namespace {

/// What a record covers, to be caught with a box.
Polygon areaOf(const Layout& layout, const SceneryItem& item) {
  return sceneryOutline(layout, item);
}
Polygon areaOf(const Layout&, const Shape& shape) {
  return shape.points;
}
Polygon areaOf(const Layout&, const Measurement& tape) {
  return {tape.from, tape.to};
}

} // namespace

void selectInBox(Layout& layout, const PlanIndex& index, const Box& box, bool whole) {
  std::vector<std::size_t> caught = index.inBox(box, whole);
  std::ranges::sort(caught);
  const auto catches = [&](const auto& record) {
    using Record = std::remove_cvref_t<decltype(record)>;
    if constexpr (std::is_same_v<Record, PlacedPiece>)
      return std::ranges::binary_search(caught,
                                        static_cast<std::size_t>(&record - layout.pieces().data()));
    else if constexpr (std::is_same_v<Record, Label>)
      return holds(box, {record.x, record.y});
    else
      return isVisible(layout, record) && inBox(box, areaOf(layout, record), whole);
  };
  layout.reselect([&](const auto& record) { return record.sel || catches(record); });
}

} // namespace trassix
