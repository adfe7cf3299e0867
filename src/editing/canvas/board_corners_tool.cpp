#include "editing/canvas/board_corners_tool.h"

#include "texts/texts.h"

namespace trassix {

CornerEditor& BoardCornersTool::corners() {
  const PolygonUse& use = site_.workspace.switches().polygonUse;
  corners_.edit(use.kind == PolygonUse::Kind::LevelOutline ? Outlined{{}, use.level} : Outlined{});
  return corners_;
}

void BoardCornersTool::hover(const PointerInput& input) {
  if (corners().hover(input))
    site_.workspace.repaint();
}

void BoardCornersTool::drag(const PointerInput& input) {
  if (!gesture_)
    gesture_ = corners().grab(pressed_);
  if (gesture_)
    gesture_->drag(input);
}

void BoardCornersTool::release(const PointerInput& input, bool dragged) {
  if (gesture_) {
    const std::unique_ptr<Gesture> ending = std::move(gesture_);
    ending->drag(input);
    ending->drop();
  } else if (!dragged) {
    corners().click(input);
  }
}

void BoardCornersTool::contextMenu(const PointerInput& input) {
  std::vector<MenuRow> rows = corners().menu(input.world);
  rows.push_back({tr("Back to Selecting"), tr("Esc"), {}, [this] {
                    site_.workspace.setToolMode(ToolMode::Select);
                  }});
  site_.questions().popupMenu(rows);
}

bool BoardCornersTool::key(const KeyInput& input) {
  if (input.key == Key::Backspace)
    return corners().removeChosen();
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
  if (std::string hint = corners_.hint(); !hint.empty())
    return hint;
  const PolygonUse& use = site_.workspace.switches().polygonUse;
  const Level* level = site_.layout().findLevel(use.level);
  return hintOf({level ? tr("Outline of %1%: drag its corners", {level->name})
                       : tr("Baseboard: drag its corners"),
                 tr("Esc or Enter: back to selecting")});
}

} // namespace trassix
