#include "panels/sheets/sheet_builder.h"
#include "texts/texts.h"

#include <cmath>

namespace trassix {

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
}

} // namespace trassix
