#include "editing/canvas/carry_tool.h"

namespace trassix {

namespace {

constexpr double kTurn = 30.0;
constexpr double kFineTurn = 15.0;

} // namespace

void CarryTool::moveTo(Point world) {
  pose_.x = world.x;
  pose_.y = world.y;
  posed();
  site_.host.repaint();
}

void CarryTool::press(const PointerInput& input) {
  armed_ = true;
  moveTo(input.world);
}

void CarryTool::hover(const PointerInput& input) {
  if (!done_)
    moveTo(input.world);
}

void CarryTool::release(const PointerInput& input, bool) {
  if (!armed_ || done_)
    return;
  moveTo(input.world);
  done_ = true;
  // Let go beside the plan: it goes back to where it came from.
  if (!site_.holds(input.px))
    return;
  site_.report(drop());
}

void CarryTool::turn(double degrees) {
  pose_.heading = normaliseHeading(pose_.heading + degrees);
  posed();
  site_.host.repaint();
}

void CarryTool::wheel(const PointerInput& input, int direction) {
  moveTo(input.world);
  turn(direction * (input.shift ? kFineTurn : kTurn));
}

bool CarryTool::key(const KeyInput& input) {
  if (input.key != Key::R)
    return false;
  turn(input.shift ? kFineTurn : kTurn);
  return true;
}

const char* CarryTool::turningHint() {
  return "    Wheel or R: turn 30\u00b0 (Shift: 15\u00b0)    Esc: put it back";
}

} // namespace trassix
