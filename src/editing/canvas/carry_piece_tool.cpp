#include "editing/canvas/carry_piece_tool.h"

#include "catalog/track_catalog.h"
#include "editing/canvas/piece_painter.h"
#include "editing/canvas/plan_colors.h"
#include "editing/placing.h"

namespace trassix {

CarryPieceTool::CarryPieceTool(ToolSite& site, std::string_view article, bool held)
    : CanvasTool(site), article_(article), definition_(TrackCatalog::instance().find(article)),
      armed_(held), done_(definition_ == nullptr) {}

void CarryPieceTool::search() {
  snap_ =
      site_.host.switches().snap ? site_.snapIndex().findSnap(*definition_, pose_) : SnapResult();
  site_.host.repaint();
}

void CarryPieceTool::press(const PointerInput& input) {
  armed_ = true;
  hover(input);
}

void CarryPieceTool::hover(const PointerInput& input) {
  if (done_)
    return;
  pose_.x = input.world.x;
  pose_.y = input.world.y;
  search();
}

void CarryPieceTool::release(const PointerInput& input, bool) {
  // The release that ends the double-click in the palette is not a drop.
  if (!armed_ || done_)
    return;
  hover(input);
  done_ = true;
  if (!site_.holds(input.px))
    return;
  const EditResult result =
      dropPiece(site_.layout(), article_, pose_, snap_, site_.host.switches().snap);
  if (result.refusal)
    site_.host.show(*result.refusal);
  if (!result.changed())
    return;
  if (wantsSmallTrackView(site_.layout()))
    site_.view.resetForSmall();
  site_.host.selectionChanged();
  site_.host.changed();
}

void CarryPieceTool::turn(double degrees) {
  pose_.heading = normaliseHeading(pose_.heading + degrees);
  search();
}

bool CarryPieceTool::wheel(const PointerInput& input, int direction) {
  if (done_)
    return false;
  pose_.x = input.world.x;
  pose_.y = input.world.y;
  turn(direction * (input.shift ? kFineCarryTurn : kCarryTurn));
  return true;
}

bool CarryPieceTool::key(const KeyInput& input) {
  if (input.key != Key::R || done_)
    return false;
  turn(input.shift ? kFineCarryTurn : kCarryTurn);
  return true;
}

void CarryPieceTool::paint(Surface& surface) const {
  if (done_)
    return;
  PieceLook look;
  look.bed = snap_.snapped ? Rgba{150, 208, 172, 235} : Rgba{170, 198, 236, 215};
  look.accent = snap_.snapped ? plan_colors::kSnapped : plan_colors::kSelected;
  const Pose at = snap_.snapped ? snap_.pose : pose_;
  PiecePainter(surface, site_.view).paint(trackGeometryOf(*definition_), at, look);
  PlacedPiece ghost;
  ghost.x = at.x;
  ghost.y = at.y;
  ghost.heading = at.heading;
  for (const WorldConnector& end : WorldConnectorsOf(ghost, *definition_)) {
    const bool joins = snap_.snapped && end.index == snap_.newConnector;
    surface.circle(site_.view.toScreen({end.x, end.y}), joins ? 6 : 3.5,
                   joins ? plan_colors::kSnapped : plan_colors::kPaper,
                   Stroke{joins ? plan_colors::kPaper : plan_colors::kSelected, 2});
  }
}

std::string CarryPieceTool::hint() const {
  if (!definition_)
    return {};
  return (snap_.snapped ? "Let go to join " : "Click or let go to place ") + article_ +
         "    Wheel or R: turn 30\u00b0 (Shift: 15\u00b0)    Esc: put it back";
}

} // namespace trassix
