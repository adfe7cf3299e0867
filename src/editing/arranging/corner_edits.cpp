#include "editing/arranging/corner_edits.h"

#include "document/record_kinds.h"
#include "document/undo_scope.h"
#include "editing/levels/level_edits.h"
#include "editing/records_by_id.h"
#include "editing/selection/property_edits.h"
#include "editing/selection/selection.h"
#include "geometry/polygons.h"

#include <algorithm>

namespace trassix {

const std::vector<Point>* cornersOf(const Layout& layout, const Outlined& what) {
  if (what.level) {
    const Level* level = layout.findLevel(*what.level);
    return level == nullptr || level->outline.size() < 3 ? nullptr : &level->outline;
  }
  if (!what.shape)
    return layout.settings().baseboard.empty() ? nullptr : &layout.settings().baseboard;
  const Shape* shape = recordWithId(layout.content().shapes, *what.shape);
  return shape == nullptr ? nullptr : &shape->points;
}

std::optional<Outlined> outlinedSelection(const Layout& layout) {
  const auto& shapes = layout.content().shapes;
  const auto found = std::ranges::find(shapes, true, &Shape::sel);
  if (found == shapes.end() || !layout.levelVisible(found->level))
    return {};
  std::ptrdiff_t selected = 0;
  forEachSelectable(layout.content(), [&selected](const auto& records) {
    selected += std::ranges::count_if(records, [](const auto& record) { return record.sel; });
  });
  return selected == 1 ? std::optional(Outlined{found->id}) : std::nullopt;
}

ChangeResult setCorners(Layout& layout, const Outlined& what, std::vector<Point> corners) {
  if (cornersOf(layout, what) == nullptr)
    return false;
  if (std::string problem = outlineProblem(corners); !problem.empty())
    return Notice{tr("Corners"), std::move(problem)};
  if (what.level)
    return setLevelOutline(layout, *what.level, corners);
  if (!what.shape)
    return setBaseboard(layout, corners, layout.settings().lastShape);
  Shape wanted = *recordWithId(layout.content().shapes, *what.shape);
  wanted.points = std::move(corners);
  return replaceRecord(layout, wanted);
}

ChangeResult moveCorner(Layout& layout, const Outlined& what, std::size_t corner, Point to) {
  const std::vector<Point>* present = cornersOf(layout, what);
  if (present == nullptr || corner >= present->size())
    return false;
  std::vector<Point> corners = *present;
  corners[corner] = to;
  return setCorners(layout, what, std::move(corners));
}

ChangeResult addCorner(Layout& layout, const Outlined& what, std::size_t after, Point at) {
  const std::vector<Point>* present = cornersOf(layout, what);
  if (present == nullptr || after >= present->size())
    return false;
  std::vector<Point> corners = *present;
  corners.insert(corners.begin() + static_cast<std::ptrdiff_t>(after) + 1, at);
  return setCorners(layout, what, std::move(corners));
}

ChangeResult removeCorner(Layout& layout, const Outlined& what, std::size_t corner) {
  const std::vector<Point>* present = cornersOf(layout, what);
  if (present == nullptr || corner >= present->size())
    return false;
  std::vector<Point> corners = *present;
  corners.erase(corners.begin() + static_cast<std::ptrdiff_t>(corner));
  return setCorners(layout, what, std::move(corners));
}

} // namespace trassix
