#include "editing/canvas/autofill_command.h"

#include "editing/autofill/autofill.h"
#include "editing/autofill/autofill_messages.h"
#include "editing/selection/selection.h"

namespace trassix {

namespace {

void endUnfilled(ToolSite& site, const std::optional<Notice>& notice) {
  if (notice)
    site.questions().show(*notice);
  site.layout().clearSelection();
  site.workspace.selectionChanged();
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

  Choice choice;
  choice.title = "Autofill Gap";
  choice.line = autofillPrompt(*fills->gap);
  for (const FillCandidate& candidate : fills->candidates) {
    choice.rows.push_back(autofillRow(fills->gap->kind, candidate));
    choice.notes.push_back(autofillRest(restOf(*fills->gap, candidate)));
  }
  choice.accept = "Place";
  choice.about = {(fills->gap->start.x + fills->gap->end.x) / 2,
                  (fills->gap->start.y + fills->gap->end.y) / 2};
  choice.highlighted = [&site, &fills](std::size_t row) {
    site.preview.clear();
    for (const FillPiece& piece : fillPieces(*fills->gap, fills->candidates[row]))
      site.preview.push_back({piece.definition, piece.pose});
    site.workspace.repaint();
  };
  const std::optional<std::size_t> chosen = site.questions().choose(choice);
  site.preview.clear();
  site.workspace.repaint();
  if (!chosen)
    return;
  const EditResult result = placeFill(site.layout(), *fills->gap, fills->candidates[*chosen]);
  if (result.refusal)
    endUnfilled(site, result.refusal);
  else
    site.report(result);
}

} // namespace trassix
