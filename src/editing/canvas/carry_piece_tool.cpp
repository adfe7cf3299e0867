#include "editing/canvas/carry_piece_tool.h"

#include "editing/canvas/piece_painter.h"
#include "editing/canvas/plan_colors.h"
#include "editing/placing.h"

namespace trassix {

void CarryPieceTool::posed() {
  snap_ =
      site_.host.switches().snap ? site_.snapIndex().findSnap(definition_, pose()) : SnapResult();
}

EditResult CarryPieceTool::drop() {
  const EditResult result =
      dropPiece(site_.layout(), definition_.article, pose(), snap_, site_.host.switches().snap);
  if (result.changed() && wantsSmallTrackView(site_.layout()))
    site_.view.resetForSmall();
  return result;
}

void CarryPieceTool::paint(Surface& surface) const {
  const Pose at = snap_.snapped ? snap_.pose : pose();
  PiecePainter(surface, site_.view)
      .paint(trackGeometryOf(definition_), at, carriedLook(snap_.snapped));
  PlacedPiece ghost;
  ghost.x = at.x;
  ghost.y = at.y;
  ghost.heading = at.heading;
  for (const WorldConnector& end : WorldConnectorsOf(ghost, definition_)) {
    const bool joins = snap_.snapped && end.index == snap_.newConnector;
    surface.circle(site_.view.toScreen({end.x, end.y}), joins ? 6 : 3.5,
                   joins ? plan_colors::kSnapped : plan_colors::kPaper,
                   Stroke{joins ? plan_colors::kPaper : plan_colors::kSelected, 2});
  }
}

std::string CarryPieceTool::hint() const {
  return (snap_.snapped ? "Let go to join " : "Click or let go to place ") + definition_.article +
         turningHint();
}

} // namespace trassix
