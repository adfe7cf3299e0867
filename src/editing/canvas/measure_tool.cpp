#include "editing/canvas/measure_tool.h"

#include "document/plan_content.h"
#include "editing/canvas/plan_theme.h"
#include "editing/canvas/record_pictures.h"
#include "editing/scenery/annotations.h"
#include "texts/texts.h"

#include <cmath>

namespace trassix {

namespace {

constexpr double kCatchPx = 9;

} // namespace

Point MeasureTool::caught(Point world) {
  double best = site_.mm(kCatchPx);
  Point point = world;
  const PlanIndex& index = site_.planIndex();
  const Box around{world.x - best, world.y - best, world.x + best, world.y + best};
  for (const std::size_t position : index.inBox(around, false)) {
    const PieceDef* definition = index.definition(position);
    if (!definition)
      continue;
    for (const WorldConnector& end :
         WorldConnectorsOf(site_.layout().pieces()[position], *definition)) {
      const double distance = std::hypot(end.x - world.x, end.y - world.y);
      if (distance < best) {
        best = distance;
        point = {end.x, end.y};
      }
    }
  }
  return point;
}

void MeasureTool::hover(const PointerInput& input) {
  to_ = caught(input.world);
  site_.workspace.repaint();
}

void MeasureTool::press(const PointerInput& input) {
  pressedAt_ = caught(input.world);
}

void MeasureTool::drag(const PointerInput& input) {
  if (!from_)
    from_ = pressedAt_;
  hover(input);
}

void MeasureTool::release(const PointerInput& input, bool dragged) {
  hover(input);
  if (!from_) {
    from_ = to_;
    return;
  }
  // A hand that shook at the first click has drawn nothing yet.
  if (std::hypot(to_.x - from_->x, to_.y - from_->y) <= (dragged ? site_.mm(kCatchPx) : 0))
    return;
  if (addMeasurement(site_.layout(), *from_, to_) == -1)
    return site_.questions().show(beyondPlan());
  from_.reset();
  site_.workspace.selectionChanged();
  site_.workspace.changed();
}

bool MeasureTool::key(const KeyInput& input) {
  if (input.key != Key::Escape)
    return false;
  if (from_)
    cancel();
  else
    site_.workspace.setToolMode(ToolMode::Select);
  return true;
}

void MeasureTool::cancel() {
  from_.reset();
  site_.workspace.repaint();
}

void MeasureTool::paint(Surface& surface) const {
  if (from_)
    paintTape({surface, {}, site_.view, site_.layout(), site_.theme()}, *from_, to_, false);
  surface.circle(site_.view.toScreen(to_), 4, {}, Stroke{site_.theme().measure, 1.5});
}

std::string MeasureTool::hint() const {
  return from_ ? hintOf({tr("Click the second point"), tr("Esc: start again")})
               : hintOf({tr("Measuring tape: click the first point (track ends catch it)"),
                         tr("Esc: back to selecting")});
}

} // namespace trassix
