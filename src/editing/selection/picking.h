#pragma once

#include "document/layout.h"
#include "geometry/box.h"

#include <cstdint>
#include <vector>

namespace trassix {

class PlanIndex;

/// A record of the plan that can be selected.
struct Pick {
  RecordKind kind = RecordKind::Piece;
  std::int32_t id = -1;

  bool operator==(const Pick&) const = default;
};

/// Everything under a point of the plan, topmost first. `mmPerPx` scales the tolerance and the
/// extent of labels.
std::vector<Pick> picksAt(const Layout& layout, const PlanIndex& index, Point at, double mmPerPx);

bool isSelected(const Layout& layout, const Pick& pick);
inline void setSelected(Layout& layout, const Pick& pick, bool selected) {
  layout.select(pick.kind, pick.id, selected);
}

/// Selects what the box touches, or with `whole` what lies in it altogether, in addition to what is
/// selected already. A helix is taken whole.
void selectInBox(Layout& layout, const PlanIndex& index, const Box& box, bool whole);

} // namespace trassix
