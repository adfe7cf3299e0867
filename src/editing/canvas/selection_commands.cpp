#include "editing/canvas/selection_commands.h"

#include "editing/placing/block_placing.h"
#include "editing/records_by_id.h"
#include "editing/scenery/annotations.h"
#include "editing/selection/picking.h"
#include "editing/selection/selection.h"

namespace trassix {

bool refuseLocked(ToolSite& site, const char* verb) {
  const std::optional<Notice> refusal = lockGuard(site.layout(), verb);
  if (refusal)
    site.host.show(*refusal);
  return refusal.has_value();
}

bool mayLeaveGrades(ToolSite& site, const SelectionMove& move, const char* title) {
  return !move.opensGradedJoints() ||
         site.host.confirm(
             {title, "This takes the selection apart from graded track. Go on?", true});
}

void turnSelection(ToolSite& site, double degrees) {
  SelectionMove turn(site.layout(), {});
  turn.turn({}, degrees);
  if (!refuseLocked(site, "rotate") && mayLeaveGrades(site, turn, "Rotate"))
    site.report(rotateSelection(site.layout(), degrees));
}

void cutSelection(ToolSite& site) {
  selectPartners(site.layout());
  if (site.clipboard.copy(site.host))
    site.host.deleteSelection();
}

void duplicateSelection(ToolSite& site) {
  site.carryBlock(copyOfSelection(site.layout()));
}

void askLabelText(ToolSite& site, std::int32_t label) {
  const Label* record = recordWithId(site.layout().content().labels, label);
  const auto text = site.host.askText("Edit Label", "Text:", record->text);
  if (text && editLabelText(site.layout(), label, *text))
    site.host.changed();
}

void selectChain(ToolSite& site, std::int32_t piece) {
  Layout& layout = site.layout();
  layout.clearSelection();
  for (const std::int32_t id : chainOf(layout, piece))
    setSelected(layout, {RecordKind::Piece, id}, true);
  site.host.selectionChanged();
}

} // namespace trassix
