#include "editing/canvas/polygon_tool.h"

#include "document/limits.h"
#include "document/plan_content.h"
#include "editing/canvas/plan_theme.h"
#include "editing/levels/level_edits.h"
#include "editing/scenery/annotations.h"
#include "geometry/polygons.h"
#include "texts/texts.h"

#include <cmath>

namespace trassix {

namespace {

constexpr double kCatchPx = 8;

bool usePolygon(Layout& layout, const std::vector<Point>& points, const PolygonUse& use) {
  switch (use.kind) {
  case PolygonUse::Kind::Baseboard:
    return points.size() >= 3 && setBaseboard(layout, points, layout.settings().lastShape);
  case PolygonUse::Kind::LevelOutline:
    return setLevelOutline(layout, use.level, points);
  case PolygonUse::Kind::Shape:
    break;
  }
  return addShape(layout, points) != -1;
}

/// What is drawn, where that is not a shape.
std::string subject(const Layout& layout, const PolygonUse& use) {
  switch (use.kind) {
  case PolygonUse::Kind::Baseboard:
    return tr("Baseboard");
  case PolygonUse::Kind::LevelOutline: {
    const Level* level = layout.findLevel(use.level);
    return level == nullptr ? std::string() : tr("Outline of %1%", {level->name});
  }
  case PolygonUse::Kind::Shape:
    break;
  }
  return {};
}

} // namespace

void PolygonTool::hover(const PointerInput& input) {
  pointer_ = input.world;
  site_.workspace.repaint();
}

void PolygonTool::release(const PointerInput& input, bool) {
  hover(input);
  if (blocked())
    return;
  if (atFirst()) {
    close();
    return;
  }
  if (!inLimits(input.world))
    return site_.questions().show(beyondPlan());
  if (points_.empty() || points_.back() != input.world)
    points_.push_back(input.world);
  site_.workspace.repaint();
}

void PolygonTool::doubleClick(const PointerInput&) {
  // The first click of the two has already added the last point; no release follows for this press.
  if (!blocked())
    close();
}

bool PolygonTool::atFirst() const {
  if (points_.size() < 3)
    return false;
  const Point first = points_.front();
  return std::hypot(first.x - pointer_.x, first.y - pointer_.y) <= site_.mm(kCatchPx);
}

bool PolygonTool::blocked() const {
  if (points_.empty() || points_.back() == pointer_ || atFirst())
    return false;
  std::vector<Point> line = points_;
  line.push_back(pointer_);
  return crossesItself(line);
}

void PolygonTool::close() {
  const PolygonUse use = site_.workspace.switches().polygonUse;
  if (points_.size() >= 3 && !outlineProblem(points_).empty()) {
    site_.questions().show(
        {"Polygon",
         "Closed here, the outline would cross itself. Add corners that lead around, "
         "or take the last one back with Backspace.",
         Notice::Icon::Information});
    return;
  }
  if (!usePolygon(site_.layout(), points_, use))
    return;
  points_.clear();
  // There is one outline to draw, but there may be more shapes.
  if (use.kind != PolygonUse::Kind::Shape)
    site_.workspace.setToolMode(ToolMode::Select);
  site_.workspace.selectionChanged();
  site_.workspace.changed();
}

bool PolygonTool::key(const KeyInput& input) {
  switch (input.key) {
  case Key::Enter:
    close();
    return true;
  case Key::Backspace:
    if (points_.empty())
      return false;
    points_.pop_back();
    site_.workspace.repaint();
    return true;
  case Key::Escape:
    if (points_.empty())
      site_.workspace.setToolMode(ToolMode::Select);
    cancel();
    return true;
  default:
    return false;
  }
}

void PolygonTool::cancel() {
  points_.clear();
  site_.workspace.repaint();
}

void PolygonTool::paint(Surface& surface) const {
  std::vector<Point> px = site_.view.toScreen(points_);
  const std::size_t fixed = px.size();
  px.push_back(atFirst() ? px.front() : site_.view.toScreen(pointer_));
  const bool bad = blocked();
  if (fixed >= 2 && !bad)
    surface.polygon(px, Rgba{120, 170, 110, 70}, {});
  if (fixed >= 2)
    surface.polyline(std::span(px).first(fixed), {site_.theme().selected, 1.5});
  if (fixed >= 1)
    surface.polyline(std::span(px).last(2),
                     {bad ? site_.theme().openEnd : site_.theme().selected, 1.5});
  for (std::size_t i = 0; i < fixed; ++i)
    surface.circle(px[i], 3.5, site_.theme().paper, Stroke{site_.theme().selected, 1.5});
}

std::string PolygonTool::hint() const {
  const std::string what = subject(site_.layout(), site_.workspace.switches().polygonUse);
  const std::string hint = what.empty() ? nextStep() : what + ": " + nextStep();
  return site_.workspace.switches().polygonUse.kind == PolygonUse::Kind::Shape
             ? hintOf({hint, site_.landingHint({site_.layout().settings().activeLevel})})
             : hint;
}

std::string PolygonTool::nextStep() const {
  const bool shape = site_.workspace.switches().polygonUse.kind == PolygonUse::Kind::Shape;
  if (points_.empty())
    return shape ? hintOf({tr("Polygon: click its corners"), tr("Esc: back to selecting")})
                 : hintOf({tr("click its corners"), tr("Esc: leave it as it is")});
  const std::string back = tr("Backspace: take the last one back");
  const std::string again = tr("Esc: start again");
  if (blocked())
    return hintOf({tr("The outline would cross itself here"), back, again});
  const std::string next = shape ? tr("Click the next corner") : tr("click the next corner");
  if (points_.size() < 3)
    return hintOf({next, back, again});
  return hintOf({next, tr("Double-click, Enter or the first corner: close"), back, again});
}

} // namespace trassix
