#pragma once

#include "document/layout.h"
#include "editing/selection/plan_index.h"

#include <cstdint>
#include <vector>

namespace trassix {

enum class RecordKind : std::uint8_t { Label, Measurement, Piece, Scenery, Shape };

/// A record of the plan that can be selected.
struct Pick {
  RecordKind kind = RecordKind::Piece;
  std::int32_t id = -1;

  bool operator==(const Pick&) const = default;
};

/// Everything under a point of the plan, topmost first. `mmPerPx` scales the tolerance and the
/// extent of labels.
std::vector<Pick> picksAt(const Layout& layout, const PlanIndex& index, Point at, double mmPerPx);

/// Height of the text of labels in pixels. Seen from afar they are smaller, so that they do not
/// hide the plan.
double labelTextSize(double mmPerPx);

/// About what a label covers, in mm.
Box labelBox(const Label& label, double mmPerPx);

bool isSelected(const Layout& layout, const Pick& pick);
void setSelected(Layout& layout, const Pick& pick, bool selected);

/// Selects what the box touches, or with `whole` what lies in it altogether, in addition to what is
/// selected already.
void selectInBox(Layout& layout, const PlanIndex& index, const Box& box, bool whole);

} // namespace trassix
