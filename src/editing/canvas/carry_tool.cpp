#include "editing/canvas/carry_tool.h"

#include "texts/texts.h"

namespace trassix {

namespace {

constexpr double kTurn = 30.0;
constexpr double kFineTurn = 15.0;
constexpr double kStep = 10.0; ///< mm, by the arrow keys
constexpr double kFineStep = 1.0;

} // namespace

void CarryTool::moveTo(Point world) {
  pose_.x = world.x;
  pose_.y = world.y;
  posed();
  site_.workspace.repaint();
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
  settle();
}

void CarryTool::settle() {
  done_ = true;
  // Let go beside the plan: it goes back to where it came from.
  if (site_.holds(site_.view.toScreen({pose_.x, pose_.y})))
    site_.report(drop());
}

void CarryTool::turn(double degrees) {
  pose_.heading = normaliseHeading(pose_.heading + degrees);
  posed();
  site_.workspace.repaint();
}

void CarryTool::wheel(const PointerInput& input, int direction) {
  moveTo(input.world);
  turn(direction * (input.shift ? kFineTurn : kTurn));
}

bool CarryTool::key(const KeyInput& input) {
  const double step = input.shift ? kFineStep : kStep;
  switch (input.key) {
  case Key::R:
    turn(input.shift ? kFineTurn : kTurn);
    return true;
  case Key::F:
    if (!turnRound(input.shift ? -1 : 1))
      return false;
    posed();
    site_.workspace.repaint();
    return true;
  case Key::Enter:
    settle();
    return true;
  case Key::Left:
    moveTo({pose_.x - step, pose_.y});
    return true;
  case Key::Right:
    moveTo({pose_.x + step, pose_.y});
    return true;
  case Key::Up:
    moveTo({pose_.x, pose_.y - step});
    return true;
  case Key::Down:
    moveTo({pose_.x, pose_.y + step});
    return true;
  default:
    return false;
  }
}

std::string CarryTool::turningHint() {
  return hintOf({tr("Wheel or R: turn (Shift: finer)"), tr("Esc: put it back")});
}

} // namespace trassix
