#include "editing/canvas/selection_commands.h"

#include "document/helix_records.h"
#include "document/plan_content.h"
#include "editing/elevation/grades.h"
#include "editing/elevation/propagation.h"
#include "editing/helix/helix_edits.h"
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

#include <algorithm>
#include <cmath>

namespace trassix {

namespace {

/// How the user gets on with what is locked, for the status line.
std::string wayOn(const Layout& layout) {
  return helixGuard(layout, selectedPieces(layout), "")
             ? tr("Of a helix, \"Delete Helix\" and \"Turn into Loose Track\" in the context menu "
                  "treat all track alike")
             : tr("\"Remove Tunnel\" in the context menu and the tool bar leaves the track as it "
                  "lies");
}

/// True, and told, when helices are selected in part.
bool refuseParts(ToolSite& site) {
  const std::vector<std::int32_t> whole = selectedHelices(site.layout().content());
  const bool parts = std::ranges::any_of(site.layout().pieces(), [&](const PlacedPiece& piece) {
    return piece.sel && piece.helix != -1 && !std::ranges::binary_search(whole, piece.helix);
  });
  if (parts)
    site.questions().show(
        {tr("Copy"), tr("Only a part of a helix is selected. A click on its track "
                        "selects all of it, which can be copied.")});
  return parts;
}

bool refuse(ToolSite& site, const std::optional<Notice>& refusal) {
  if (!refusal)
    return false;
  site.questions().show(*refusal);
  site.workspace.setHint(wayOn(site.layout()));
  return true;
}

} // namespace

bool refuseLocked(ToolSite& site, const char* verb) {
  return refuse(site, lockGuard(site.layout(), verb));
}

bool refuseMoving(ToolSite& site, const char* verb) {
  return refuse(site, moveGuard(site.layout(), verb));
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
  if (!refuseMoving(site, "rotate") && mayLeaveGrades(site, turn, tr("Rotate")))
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
  if (refuseParts(site))
    return false;
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
  if (!refuseParts(site))
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
  selectWholeHelices(layout);
  deselectHidden(layout);
  site.workspace.selectionChanged();
}

} // namespace trassix
