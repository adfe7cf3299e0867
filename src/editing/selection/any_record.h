// What is asked of a record whatever its kind.
#pragma once

#include "document/layout.h"
#include "document/record_kinds.h"
#include "editing/records_by_id.h"
#include "editing/selection/picking.h"

namespace trassix {

/// On no hidden level; of track also in no tunnel that hides it.
template <class Record>
bool isVisible(const Layout& layout, const Record& record) {
  if constexpr (Record::kKind == RecordKind::Piece)
    return layout.pieceVisible(record);
  else if constexpr (OnLevel<Record>)
    return layout.levelVisible(record.level);
  else
    return true;
}

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

} // namespace trassix
