#include "document/plan_content.h"
#include "editing/arranging/corner_edits.h"
#include "geometry/lengths.h"
#include "panels/sheets/sheet_builder.h"
#include "texts/texts.h"

#include <algorithm>
#include <cmath>

namespace trassix {

namespace {

/// More make a sheet too long to be of use; those are moved on the plan.
constexpr std::size_t kMostCorners = 12;

void describeCorner(SheetBuilder& build, const Shape& shape, std::size_t corner) {
  const auto row = [&](const char* name, double Point::*axis) {
    build.length("corner", tr(name, {corner + 1}), shape.points[corner].*axis, -kFarthest,
                 kFarthest, [id = shape.id, corner, axis](Layout& layout, double mm, const auto&) {
                   const std::vector<Point>* present = cornersOf(layout, {id});
                   if (present == nullptr || corner >= present->size())
                     return ChangeResult(false);
                   Point to = (*present)[corner];
                   to.*axis = mm;
                   return moveCorner(layout, {id}, corner, to);
                 });
  };
  row(trLater("Corner %1% x"), &Point::x);
  row(trLater("Corner %1% y"), &Point::y);
}

} // namespace

void describe(SheetBuilder& build, const Shape& shape) {
  build.sheet.title = tr("Shape");
  build.text(tr("Label"), shape.label, setting(shape, &Shape::label));
  build.fixed(tr("Corners"), shape.points.size());
  build.color(shape.color, replacing(shape, [](Shape& wanted, const OwnColor& color) {
                wanted.color = color.value_or(wanted.color);
              }));
  build.percent("opacity", tr("Opacity"), std::round(shape.a * 100.0 / 255.0),
                replacing(shape, [](Shape& wanted, double percent) {
                  wanted.a = static_cast<std::uint8_t>(std::lround(percent * 255 / 100));
                }));
  build.check("outline", tr("Outline only"), shape.outline, setting(shape, &Shape::outline));
  build.height(shape.height, setting(shape, &Shape::height));
  build.level(shape.level);
  for (std::size_t i = 0; i < std::min(shape.points.size(), kMostCorners); ++i)
    describeCorner(build, shape, i);
}

} // namespace trassix
