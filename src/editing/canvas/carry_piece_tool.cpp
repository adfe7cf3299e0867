#include "editing/canvas/carry_piece_tool.h"

#include "editing/canvas/piece_painter.h"
#include "editing/canvas/plan_colors.h"
#include "editing/placing/placing.h"
#include "texts/texts.h"

namespace trassix {

void CarryPieceTool::posed() {
  snap_ = {};
  insert_.reset();
  if (!site_.workspace.switches().snap)
    return;
  snap_ = site_.snapIndex().findSnap(definition_, pose());
  if (!snap_.snapped)
    insert_ = findInsertSpot(site_.layout(), site_.snapIndex(), definition_, pose());
}

EditResult CarryPieceTool::drop() {
  if (insert_)
    return insertPiece(site_.layout(), definition_.article, *insert_);
  const EditResult result = dropPiece(site_.layout(), definition_.article, pose(), snap_,
                                      site_.workspace.switches().snap);
  if (result.changed() && wantsSmallTrackView(site_.layout()))
    site_.resetViewForSmall();
  return result;
}

Pose CarryPieceTool::landing() const {
  return insert_ ? insert_->pose : snap_.snapped ? snap_.pose : pose();
}

std::int32_t CarryPieceTool::joiningEnd() const {
  return insert_ ? insert_->enter : snap_.snapped ? snap_.newConnector : -1;
}

void CarryPieceTool::paint(Surface& surface) const {
  const Pose at = landing();
  const std::int32_t joining = joiningEnd();
  PiecePainter(surface, site_.view)
      .paint(trackGeometryOf(definition_), at, carriedLook(joining != -1));
  for (const WorldConnector& end : WorldConnectorsOf(pieceAt(at), definition_)) {
    const bool joins = end.index == joining;
    surface.circle(site_.view.toScreen({end.x, end.y}), joins ? 6 : 3.5,
                   joins ? plan_colors::kSnapped : plan_colors::kPaper,
                   Stroke{joins ? plan_colors::kPaper : plan_colors::kSelected, 2});
  }
}

std::string CarryPieceTool::hint() const {
  const Layout& layout = site_.layout();
  const PlacedPiece* joined = layout.findPiece(insert_ ? insert_->piece : snap_.target);
  const std::string landing =
      site_.landingHint({joined != nullptr ? joined->level : dropLevel(layout)});
  const char* what = insert_ ? trLater("Let go to insert %1% here: the shorter side makes room")
                     : snap_.snapped ? trLater("Let go to join %1%")
                                     : trLater("Click or let go to place %1%");
  return hintOf({tr(what, {definition_.article}), landing, turningHint()});
}

} // namespace trassix
