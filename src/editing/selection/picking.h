#pragma once

#include "document/layout.h"
#include "editing/records_by_id.h"
#include "editing/selection/plan_index.h"

#include <cstdint>
#include <vector>

namespace trassix {

/// A record of the plan that can be selected.
struct Pick {
  RecordKind kind = RecordKind::Piece;
  std::int32_t id = -1;

  bool operator==(const Pick&) const = default;
};

/// Everything under a point of the plan, topmost first. `mmPerPx` scales the tolerance and the
/// extent of labels.
std::vector<Pick> picksAt(const Layout& layout, const PlanIndex& index, Point at, double mmPerPx);

/// Calls `visit` with the record, if there is one.
template <class Visit>
void withRecord(const Layout& layout, const Pick& pick, Visit visit) {
  if (pick.kind == RecordKind::Piece) { // of which there are many
    if (const PlacedPiece* piece = layout.findPiece(pick.id))
      visit(*piece);
    return;
  }
  forEachSelectable(layout.content(), [&](const auto& records) {
    using Record = typename std::remove_cvref_t<decltype(records)>::value_type;
    if (Record::kKind == pick.kind)
      if (const Record* record = recordWithId(records, pick.id))
        visit(*record);
  });
}

bool isSelected(const Layout& layout, const Pick& pick);
inline void setSelected(Layout& layout, const Pick& pick, bool selected) {
  layout.select(pick.kind, pick.id, selected);
}

/// Selects what the box touches, or with `whole` what lies in it altogether, in addition to what is
/// selected already.
void selectInBox(Layout& layout, const PlanIndex& index, const Box& box, bool whole);

} // namespace trassix
