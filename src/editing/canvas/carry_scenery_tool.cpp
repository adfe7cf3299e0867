#include "editing/canvas/carry_scenery_tool.h"

#include "editing/canvas/plan_colors.h"
#include "editing/placing.h"
#include "editing/scenery_footprint.h"

namespace trassix {

CarrySceneryTool::CarrySceneryTool(ToolSite& site, std::string_view key, bool held)
    : CanvasTool(site), definition_(findScenery(key)), armed_(held), done_(definition_ == nullptr) {
}

void CarrySceneryTool::press(const PointerInput& input) {
  armed_ = true;
  hover(input);
}

void CarrySceneryTool::hover(const PointerInput& input) {
  pose_.x = input.world.x;
  pose_.y = input.world.y;
  site_.host.repaint();
}

void CarrySceneryTool::release(const PointerInput& input, bool) {
  if (!armed_ || done_)
    return;
  hover(input);
  done_ = true;
  if (!site_.holds(input.px))
    return;
  if (!dropScenery(site_.layout(), definition_->key, pose_).changed())
    return;
  site_.host.selectionChanged();
  site_.host.changed();
}

void CarrySceneryTool::turn(double degrees) {
  pose_.heading = normaliseHeading(pose_.heading + degrees);
  site_.host.repaint();
}

bool CarrySceneryTool::wheel(const PointerInput& input, int direction) {
  turn(direction * (input.shift ? kFineCarryTurn : kCarryTurn));
  return true;
}

bool CarrySceneryTool::key(const KeyInput& input) {
  if (input.key != Key::R)
    return false;
  turn(input.shift ? kFineCarryTurn : kCarryTurn);
  return true;
}

void CarrySceneryTool::paint(Surface& surface) const {
  if (done_)
    return;
  std::vector<Point> px;
  for (const Point& p :
       sceneryOutline(definition_->form, definition_->footprint(planSystem(site_.layout())),
                      {pose_.x, pose_.y}, pose_.heading))
    px.push_back(site_.view.toScreen(p));
  surface.polygon(px, Rgba{150, 116, 84, 110}, Stroke{plan_colors::kSelected, 2});
}

std::string CarrySceneryTool::hint() const {
  return "Click or let go to place " + std::string(definition_ ? definition_->name : "") +
         "    Wheel or R: turn 30\u00b0 (Shift: 15\u00b0)    Esc: put it back";
}

} // namespace trassix
