#include "panels/shape_form.h"

#include "document/layout.h"
#include "editing/scenery/annotations.h"
#include "geometry/polygons.h"
#include "measures/measure_format.h"
#include "texts/texts.h"

#include <algorithm>
#include <cmath>

namespace trassix {

namespace {

constexpr double kHighest = 10000; // mm
constexpr double kSmallest = 1;
constexpr double kLargest = 100000;
constexpr double kOpaque = 255;

std::string named(const char* name, const std::string& problem) {
  return problem.empty() ? problem : tr("%1%: %2%", {tr(name), problem});
}

/// On a hidden level it would vanish at once.
Shape shownShape(const Layout& layout) {
  Shape shape = usualShape(layout);
  const auto& levels = layout.settings().levels;
  const auto shown = std::ranges::find(levels, true, &Level::visible);
  if (!layout.levelVisible(shape.level) && shown != levels.end())
    shape.level = shown->id;
  return shape;
}

/// A size that is a round number in the unit.
double usualSize(std::int32_t units, double mm, double inches) {
  return units == kInches ? inches * millimetresPer(kInches) : mm;
}

} // namespace

ShapeForm::ShapeForm(const Layout& layout, const Shape& edited)
    : shape(edited), levels_(layout.settings().levels),
      height_(edited.height, layout.settings().units, -kHighest, kHighest) {
  if (std::ranges::find(levels_, shape.level, &Level::id) == levels_.end()) {
    Level& lost = levels_.emplace_back();
    lost.id = shape.level;
    lost.name = tr("Level %1%", {shape.level});
  }
}

int ShapeForm::opacityPercent() const {
  return static_cast<int>(std::lround(shape.a * 100 / kOpaque));
}

void ShapeForm::setOpacity(int percent) {
  if (percent != opacityPercent())
    shape.a = static_cast<std::uint8_t>(std::lround(std::clamp(percent, 0, 100) * kOpaque / 100));
}

void ShapeForm::enterHeight(std::string_view text) {
  height_.enter(text);
  shape.height = height_.mm();
}

std::vector<std::string> ShapeForm::levelNames() const {
  std::vector<std::string> names;
  for (const Level& level : levels_)
    names.push_back(level.name);
  return names;
}

std::size_t ShapeForm::level() const {
  return static_cast<std::size_t>(std::ranges::find(levels_, shape.level, &Level::id) -
                                  levels_.begin());
}

RectangleForm::RectangleForm(const Layout& layout, Point centre)
    : ShapeForm(layout, shownShape(layout)), centre_{std::round(centre.x), std::round(centre.y)},
      width_(usualSize(layout.settings().units, 600, 24), layout.settings().units, kSmallest,
             kLargest),
      depth_(usualSize(layout.settings().units, 400, 16), layout.settings().units, kSmallest,
             kLargest) {}

std::vector<Point> RectangleForm::corners() const {
  const double right = width_.mm() / 2;
  const double down = depth_.mm() / 2;
  return {{centre_.x - right, centre_.y - down},
          {centre_.x + right, centre_.y - down},
          {centre_.x + right, centre_.y + down},
          {centre_.x - right, centre_.y + down}};
}

std::string RectangleForm::problem() const {
  for (const std::string& problem :
       {named(trLater("Width"), width_.problem()), named(trLater("Depth"), depth_.problem()),
        named(trLater("Height"), height().problem())})
    if (!problem.empty())
      return problem;
  return outlineProblem(corners());
}

bool RectangleForm::place(Layout& layout) const {
  if (!problem().empty())
    return false;
  Shape placed = shape;
  placed.points = corners();
  return addShape(layout, placed) != -1;
}

} // namespace trassix
