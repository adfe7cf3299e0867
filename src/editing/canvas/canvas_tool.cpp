#include "editing/canvas/canvas_tool.h"

namespace trassix {

const PlanIndex& ToolSite::planIndex() {
  if (planIndex_.revision() != layout().revision())
    planIndex_ = PlanIndex(layout());
  return planIndex_;
}

const SnapIndex& ToolSite::snapIndex() {
  if (snapIndex_.revision() != layout().revision())
    snapIndex_ = SnapIndex(layout());
  return snapIndex_;
}

void ToolSite::report(const EditResult& result) {
  if (result.refusal)
    host.show(*result.refusal);
  if (!result.changed())
    return;
  host.selectionChanged();
  host.changed();
  if (result.remark)
    host.show(*result.remark);
}

void ToolSite::report(const ChangeResult& result) {
  if (result.refusal)
    host.show(*result.refusal);
  if (result.changed)
    host.changed();
}

void ToolSite::reportExtension(const EditResult& result) {
  if (const std::optional<Box> box = result.changed() ? selectionBox(layout()) : std::nullopt)
    view.reveal(*box, size.width, size.height);
  report(result);
}

} // namespace trassix
