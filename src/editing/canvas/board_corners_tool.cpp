#include "editing/canvas/board_corners_tool.h"

#include "texts/texts.h"

namespace trassix {

BoardCornersTool::BoardCornersTool(ToolSite& site) : CanvasTool(site), corners_(site) {
  corners_.edit(Outlined{});
}

void BoardCornersTool::hover(const PointerInput& input) {
  if (corners_.hover(input))
    site_.workspace.repaint();
}

void BoardCornersTool::drag(const PointerInput& input) {
  if (!gesture_)
    gesture_ = corners_.grab(pressed_);
  if (gesture_)
    gesture_->drag(input);
}

void BoardCornersTool::release(const PointerInput& input, bool dragged) {
  if (gesture_) {
    const std::unique_ptr<Gesture> ending = std::move(gesture_);
    ending->drag(input);
    ending->drop();
  } else if (!dragged) {
    corners_.click(input);
  }
}

void BoardCornersTool::contextMenu(const PointerInput& input) {
  std::vector<MenuRow> rows = corners_.menu(input.world);
  rows.push_back({tr("Back to Selecting"), tr("Esc"), true,
                  [this] { site_.workspace.setToolMode(ToolMode::Select); }});
  site_.questions().popupMenu(rows);
}

bool BoardCornersTool::key(const KeyInput& input) {
  if (input.key == Key::Backspace)
    return corners_.removeChosen();
  if (input.key != Key::Escape && input.key != Key::Enter)
    return false;
  site_.workspace.setToolMode(ToolMode::Select);
  return true;
}

void BoardCornersTool::paint(Surface& surface) const {
  if (gesture_)
    gesture_->paint(surface);
  else
    corners_.paint(surface);
}

std::string BoardCornersTool::hint() const {
  if (gesture_)
    return gesture_->hint();
  const std::string hint = corners_.hint();
  return hint.empty()
             ? hintOf({tr("Baseboard: drag its corners"), tr("Esc or Enter: back to selecting")})
             : hint;
}

} // namespace trassix
