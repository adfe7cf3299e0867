#include "editing/canvas/selection_commands.h"

#include "document/plan_content.h"
#include "editing/elevation/grades.h"
#include "editing/elevation/propagation.h"
#include "editing/levels/level_edits.h"
#include "editing/placing/block_placing.h"
#include "editing/records_by_id.h"
#include "editing/scenery/annotations.h"
#include "editing/selection/picking.h"
#include "editing/selection/property_edits.h"
#include "editing/selection/selection.h"
#include "host/shape_answer.h"
#include "measures/measure_format.h"
#include "texts/texts.h"

#include <cmath>

namespace trassix {

bool refuseLocked(ToolSite& site, const char* verb) {
  const std::optional<Notice> refusal = lockGuard(site.layout(), verb);
  if (refusal)
    site.questions().show(*refusal);
  return refusal.has_value();
}

bool maySteepen(ToolSite& site, const std::string& title, double slope) {
  return std::abs(slope) <= kSteepestSlope ||
         site.questions().confirm(
             {title, tr("The track would be %1% %% steep, and more than %2% %% is too much for any "
                        "train. Go on?",
                        {formatFixed(std::abs(percentOf(slope)), 1),
                         formatFixed(percentOf(kSteepestSlope), 0)})});
}

bool mayLeaveGrades(ToolSite& site, const SelectionMove& move, const std::string& title) {
  return !move.opensGradedJoints() ||
         site.questions().confirm(
             {title, tr("This takes the selection apart from graded track. Go on?"), true});
}

void turnSelection(ToolSite& site, double degrees) {
  SelectionMove turn(site.layout(), {});
  turn.turn({}, degrees);
  if (!refuseLocked(site, "rotate") && mayLeaveGrades(site, turn, tr("Rotate")))
    site.report(rotateSelection(site.layout(), degrees));
}

void deleteSelected(ToolSite& site) {
  if (refuseLocked(site, "delete"))
    return;
  if (selectionHasGrades(site.layout()) &&
      !site.questions().confirm({tr("Delete"), tr("Selection includes graded pieces. Delete?")}))
    return;
  if (!deleteSelection(site.layout()))
    return;
  site.workspace.selectionChanged();
  site.workspace.changed();
}

bool copySelection(ToolSite& site) {
  return site.clipboard.copy(site.layout(), site.workspace.clipboard());
}

SharedBlock pastedBlock(const ToolSite& site) {
  return site.clipboard.paste(site.workspace.clipboard());
}

void cutSelection(ToolSite& site) {
  selectPartners(site.layout());
  if (copySelection(site))
    deleteSelected(site);
  site.workspace.selectionChanged(); // whatever was answered, the partners are selected now
}

void duplicateSelection(ToolSite& site) {
  site.carry(copyOfSelection(site.layout()));
}

void askLabelText(ToolSite& site, std::int32_t label) {
  const Label* record = recordWithId(site.layout().content().labels, label);
  const auto text = site.questions().askText(tr("Edit Label"), tr("Text:"), record->text);
  if (text && editLabelText(site.layout(), label, *text))
    site.workspace.changed();
}

void editShape(ToolSite& site, std::int32_t shape) {
  const Shape* record = recordWithId(site.layout().content().shapes, shape);
  if (record == nullptr)
    return;
  const std::optional<ShapeAnswer> answer = site.questions().askShape(site.layout(), *record);
  if (!answer || !(answer->asBaseboard ? useAsBaseboard(site.layout(), shape)
                                       : replaceRecord(site.layout(), answer->wanted)))
    return;
  site.workspace.selectionChanged();
  site.workspace.changed();
}

void changeHeights(ToolSite& site) {
  if (const std::optional<HeightPlan> wanted = site.questions().askHeights(site.workspace))
    site.report(applyHeights(site.layout(), *wanted));
}

void selectChain(ToolSite& site, std::int32_t piece) {
  Layout& layout = site.layout();
  layout.clearSelection();
  for (const std::int32_t id : chainOf(layout, piece))
    setSelected(layout, {RecordKind::Piece, id}, true);
  site.workspace.selectionChanged();
}

} // namespace trassix
