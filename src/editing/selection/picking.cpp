#include "editing/selection/picking.h"

#include "document/record_kinds.h"
#include "document/reselecting.h"
#include "editing/helix/helix_edits.h"
#include "editing/selection/any_record.h"
#include "editing/selection/plan_index.h"
#include "editing/selection/record_body.h"
#include "editing/selection/selection.h"
#include "geometry/polygons.h"

#include <algorithm>

namespace trassix {

namespace {

constexpr double kTolerancePx = 4;
bool inBox(const Box& box, const Polygon& polygon, bool whole) {
  return !polygon.empty() && (whole ? liesIn(polygon, box) : touches(polygon, box));
}

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
  bool hits(const auto& record) const {
    const RecordBody body = bodyOf(layout_, record, mmPerPx_);
    return body.outline.size() >= 2 &&
           ((body.byEdge && nearOutline(body.outline, at_, tolerance_)) ||
            (body.byInside && inside(body.outline, at_)));
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

void selectInBox(Layout& layout, const PlanIndex& index, const Box& box, bool whole) {
  std::vector<std::size_t> caught = index.inBox(box, whole);
  std::ranges::sort(caught);
  const auto catches = [&](const auto& record) {
    using Record = std::remove_cvref_t<decltype(record)>;
    if constexpr (std::is_same_v<Record, PlacedPiece>)
      return std::ranges::binary_search(caught,
                                        static_cast<std::size_t>(&record - layout.pieces().data()));
    else
      return isVisible(layout, record) && inBox(box, bodyOf(layout, record, 0).outline, whole);
  };
  layout.reselect([&](const auto& record) { return record.sel || catches(record); });
  selectWholeHelices(layout);
}

} // namespace trassix
