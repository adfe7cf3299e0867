#include "wizards/layout/layout_placing.h"

#include "document/layout.h"
#include "document/limits.h"
#include "document/plan_content.h"
#include "document/undo_scope.h"
#include "editing/joining/joining.h"
#include "editing/placing/block_placing.h"
#include "texts/texts.h"

#include <algorithm>

namespace trassix {

namespace {

/// All track with what cannot be without it.
void removeTrack(Layout& layout) {
  PlanContent& content = layout.edit();
  content.pieces.clear();
  content.pairs.clear();
  content.helices.clear();
  content.tunnels.clear();
  content.gradeRuns.clear();
  content.mirrorLastGradeRun();
}

/// As it lies on the active level, which may be the first one.
Block onActiveLevel(const Layout& layout, const LayoutProposal& proposal) {
  const std::int32_t level = layout.settings().activeLevel;
  Block track = proposal.track;
  for (PlacedPiece& piece : track.content.pieces) {
    piece.level = level;
    piece.z = layout.levelHeight(level);
  }
  return track;
}

} // namespace

EditResult placeLayout(Layout& layout, const LayoutProposal& proposal, LayoutPlacing placing) {
  if (!inLimits(proposal.outline))
    return {{}, beyondPlan()};
  UndoScope step(layout);
  if (placing == LayoutPlacing::Replace)
    removeTrack(layout);
  EditResult result = placeBlock(layout, onActiveLevel(layout, proposal), Pose{});
  if (result.refusal)
    return result;
  layout.editSettings().baseboard = proposal.outline;
  step.keep();
  return result;
}

std::string baseboardNotice(const Layout& layout, const LayoutProposal& proposal) {
  if (layout.settings().baseboard == proposal.outline)
    return {};
  return tr("The table becomes the baseboard of the plan. Undo takes the track back; the "
            "baseboard stays.");
}

} // namespace trassix
