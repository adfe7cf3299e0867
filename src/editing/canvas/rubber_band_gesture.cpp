#include "editing/canvas/gesture.h"
#include "editing/canvas/plan_theme.h"
#include "editing/selection/picking.h"
#include "texts/texts.h"

#include <algorithm>
#include <array>

namespace trassix {

RubberBandGesture::RubberBandGesture(ToolSite& site, const PointerInput& from)
    : Gesture(site), from_(from), to_(from) {}

void RubberBandGesture::drag(const PointerInput& input) {
  to_ = input;
  site_.workspace.repaint();
}

void RubberBandGesture::drop() {
  const Box box{std::min(from_.world.x, to_.world.x), std::min(from_.world.y, to_.world.y),
                std::max(from_.world.x, to_.world.x), std::max(from_.world.y, to_.world.y)};
  if (!from_.shift && !to_.shift)
    site_.layout().clearSelection();
  selectInBox(site_.layout(), site_.planIndex(), box, encloses());
  site_.workspace.selectionChanged();
}

void RubberBandGesture::paint(Surface& surface) const {
  // The view may have been zoomed or moved since the press.
  const Point a = site_.view.toScreen(from_.world);
  const Point b = site_.view.toScreen(to_.world);
  const std::array<Point, 4> box{{{a.x, a.y}, {b.x, a.y}, {b.x, b.y}, {a.x, b.y}}};
  Rgba fill = site_.theme().selected;
  fill.a = encloses() ? 36 : 18;
  surface.polygon(
      box, fill,
      Stroke{site_.theme().selected, 1, encloses() ? Stroke::Style::Solid : Stroke::Style::Dashed});
}

std::string RubberBandGesture::hint() const {
  return hintOf({encloses() ? tr("Selects what lies in the box altogether")
                            : tr("Selects whatever the box touches"),
                 encloses() ? tr("Drag to the left: whatever it touches")
                            : tr("Drag to the right: only what lies in it altogether"),
                 tr("Shift: add"), tr("Esc: cancel")});
}

} // namespace trassix
