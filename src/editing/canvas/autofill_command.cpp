#include "editing/canvas/autofill_command.h"

#include "editing/autofill/autofill.h"
#include "editing/autofill/autofill_messages.h"
#include "editing/canvas/selection_commands.h"
#include "editing/selection/selection.h"
#include "host/plan_preview.h"
#include "texts/texts.h"

namespace trassix {

namespace {

void endUnfilled(ToolSite& site, const std::optional<Notice>& notice) {
  if (notice)
    site.questions().show(*notice);
  site.layout().clearSelection();
  site.workspace.selectionChanged();
}

/// The fill that the user wants; each is shown on the plan while it is highlighted.
std::optional<std::size_t> chooseFill(ToolSite& site, const Autofill& fills) {
  const Gap& gap = *fills.gap;
  PlanPreview preview(site.workspace);
  Choice choice;
  choice.title = tr("Autofill Gap");
  choice.line = autofillPrompt(gap);
  for (const FillCandidate& candidate : fills.candidates) {
    choice.rows.push_back(autofillRow(gap.kind, candidate));
    choice.notes.push_back(autofillRest(restOf(gap, candidate)));
  }
  choice.accept = tr("Place");
  choice.about = {(gap.start.x + gap.end.x) / 2, (gap.start.y + gap.end.y) / 2};
  choice.highlighted = [&](std::size_t row) {
    preview.showEdit([&](Layout& scratch) { placeFill(scratch, gap, fills.candidates[row]); });
  };
  return site.questions().choose(choice);
}

} // namespace

void runAutofill(ToolSite& site) {
  if (!canAutofill(site.layout()))
    return;
  const std::vector<std::int32_t> pieces = selectedPieces(site.layout());
  const std::optional<Autofill> fills = solveAutofill(site.layout(), pieces[0], pieces[1]);
  if (!fills)
    return;
  if (!fills->success()) {
    endUnfilled(site, autofillNotice(site.layout(), pieces[0], pieces[1], *fills));
    return;
  }
  const std::optional<std::size_t> chosen = chooseFill(site, *fills);
  if (!chosen)
    return;
  // A fill that only too steep a grade would join may be laid level instead.
  const FillCandidate& fill = fills->candidates[*chosen];
  const Rest rest = restOf(*fills->gap, fill);
  const Rest steep = restOf(*fills->gap, fill, 1);
  const bool steepens =
      !rest.joins() && steep.joins() && maySteepen(site, tr("Autofill Gap"), steep.slope);
  const EditResult result =
      placeFill(site.layout(), *fills->gap, fill, steepens ? 1 : kSteepestSlope);
  if (result.refusal)
    endUnfilled(site, result.refusal);
  else
    site.report(result);
}

} // namespace trassix
