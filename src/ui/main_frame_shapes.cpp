// The frame's commands on levels, the baseboard and shapes.
#include "ui/level_manager_dialog.h"
#include "ui/main_frame.h"

namespace trassix {

void MainFrame::drawPolygon(const PolygonUse& use) {
  layout_.clearSelection();
  selectionChanged();
  // Half a polygon may be on the plan already, for something else.
  setToolMode(ToolMode::Select);
  enterMode(ToolMode::Polygon, use);
}

void MainFrame::manageLevels() {
  LevelManagerDialog dialog(this, layout_);
  if (dialog.ShowModal() != wxID_OK)
    return;
  if (dialog.apply()) {
    selectionChanged();
    changed();
  }
  if (const std::optional<std::int32_t> level = dialog.levelToDraw()) {
    layout_.ensureLevel(*level);
    drawPolygon({PolygonUse::Kind::LevelOutline, *level});
  }
}

} // namespace trassix
