#pragma once

#include "document/layout.h"
#include "document/record_kinds.h"

#include <utility>

namespace trassix {

template <class Chosen>
void Layout::reselect(Chosen chosen) {
  bool changed = false;
  forEachSelectable(stored(), [&](auto& records) {
    for (auto& record : records) {
      const bool wanted = chosen(std::as_const(record));
      changed = changed || record.sel != wanted;
      record.sel = wanted;
    }
  });
  if (changed)
    selectionStamp_ = newStamp();
}

} // namespace trassix
