// The frame's commands on levels, the baseboard and shapes.
#include "editing/levels/level_edits.h"
#include "editing/selection/property_edits.h"
#include "ui/canvas/canvas_panel.h"
#include "ui/dialogs/baseboard_shape_dialog.h"
#include "ui/dialogs/level_manager_dialog.h"
#include "ui/dialogs/rectangle_dialog.h"
#include "ui/dialogs/shape_dialog.h"
#include "ui/frame/main_frame.h"

#include <algorithm>

namespace trassix {

void MainFrame::drawPolygon(const PolygonUse& use) {
  plan_.layout().clearSelection();
  selectionChanged();
  // Half a polygon may be on the plan already, for something else.
  setToolMode(ToolMode::Select);
  enterMode(ToolMode::Polygon, use);
}

void MainFrame::planReplaced() {
  // An outline that was going to be drawn belonged to the plan before.
  if (switches_.polygonUse.kind != PolygonUse::Kind::Shape)
    setToolMode(ToolMode::Select);
  canvas_->canvas().documentReplaced();
}

void MainFrame::manageLevels() {
  LevelManagerDialog dialog(this, plan_.layout());
  if (dialog.ShowModal() != wxID_OK)
    return;
  const ChangeResult applied = dialog.apply();
  if (applied.refusal)
    show(*applied.refusal);
  if (applied) {
    selectionChanged();
    changed();
  }
  if (const std::optional<std::int32_t> level = dialog.levelToDraw()) {
    plan_.layout().ensureLevel(*level);
    drawPolygon({PolygonUse::Kind::LevelOutline, *level});
  }
}

void MainFrame::chooseBaseboard() {
  BaseboardShapeDialog dialog(this, plan_.layout());
  const int answer = dialog.ShowModal();
  if (answer == BaseboardShapeDialog::kDraw)
    drawPolygon({PolygonUse::Kind::Baseboard, -1});
  const bool first = plan_.layout().settings().baseboard.empty();
  if (answer != wxID_OK || !dialog.apply())
    return;
  selectionChanged();
  changed();
  // A first board may lie anywhere; a changed one is where the user looks already.
  if (first)
    zoomToFit();
}

void MainFrame::placeRectangle() {
  RectangleDialog dialog(this, plan_.layout(), canvas_->canvas().centre());
  if (dialog.ShowModal() != wxID_OK || !dialog.place())
    return;
  setToolMode(ToolMode::Select); // so that it can be moved
  selectionChanged();
  changed();
}

void MainFrame::editShape(std::int32_t id) {
  const auto& shapes = plan_.layout().content().shapes;
  const auto shape = std::ranges::find(shapes, id, &Shape::id);
  if (shape == shapes.end())
    return;
  ShapeDialog dialog(this, plan_.layout(), *shape);
  const int answer = dialog.ShowModal();
  const bool done = answer == wxID_OK ? replaceRecord(plan_.layout(), dialog.wanted())
                                      : answer == ShapeDialog::kUseAsBaseboard &&
                                            useAsBaseboard(plan_.layout(), id);
  if (!done)
    return;
  selectionChanged();
  changed();
}

} // namespace trassix
