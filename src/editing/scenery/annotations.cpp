#include "editing/scenery/annotations.h"

#include "document/limits.h"
#include "document/record_kinds.h"
#include "document/undo_scope.h"
#include "geometry/polygons.h"

#include <algorithm>
#include <utility>

namespace trassix {

namespace {

constexpr Color kShapeColor{120, 170, 110};
constexpr std::uint8_t kShapeOpacity = 140;

} // namespace

bool isBlank(std::string_view text) {
  return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

std::int32_t addLabel(Layout& layout, Point at, std::string_view text) {
  if (isBlank(text) || !inLimits(at))
    return -1;
  UndoScope step(layout);
  layout.clearSelection();
  Label label;
  label.id = layout.takeId();
  label.text = text;
  label.x = at.x;
  label.y = at.y;
  label.sel = true;
  layout.edit().labels.push_back(label);
  step.keep();
  return label.id;
}

std::int32_t addMeasurement(Layout& layout, Point from, Point to) {
  if (!inLimits(from) || !inLimits(to))
    return -1;
  UndoScope step(layout);
  layout.clearSelection();
  const std::int32_t id = layout.takeId();
  layout.edit().measurements.push_back({id, from, to, true});
  step.keep();
  return id;
}

Shape usualShape(const Layout& layout) {
  Shape shape;
  shape.color = kShapeColor;
  shape.a = kShapeOpacity;
  shape.level = layout.settings().activeLevel;
  return shape;
}

std::int32_t addShape(Layout& layout, Shape shape) {
  if (!inLimits(shape) || !outlineProblem(shape.points).empty())
    return -1;
  UndoScope step(layout);
  layout.clearSelection();
  shape.id = layout.takeId();
  shape.sel = true;
  layout.edit().shapes.push_back(std::move(shape));
  step.keep();
  return layout.content().shapes.back().id;
}

std::int32_t addShape(Layout& layout, const std::vector<Point>& points) {
  Shape shape = usualShape(layout);
  shape.points = points;
  return addShape(layout, std::move(shape));
}

bool editLabelText(Layout& layout, std::int32_t label, std::string_view text) {
  const auto& labels = layout.content().labels;
  const auto found = std::find_if(labels.begin(), labels.end(),
                                  [label](const Label& record) { return record.id == label; });
  if (found == labels.end() || found->text == text)
    return false;
  const auto position = found - labels.begin();
  UndoScope step(layout);
  auto& edited = layout.edit().labels;
  if (isBlank(text))
    edited.erase(edited.begin() + position);
  else
    edited[static_cast<std::size_t>(position)].text = text;
  return step.keep();
}

} // namespace trassix
