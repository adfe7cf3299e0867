#include "document/plan_content.h"
#include "panels/sheets/sheet_builder.h"
#include "texts/texts.h"

#include <cmath>

namespace trassix {

void describe(SheetBuilder& build, const Measurement& tape) {
  build.sheet.title = tr("Measurement");
  build.fixedLength(tr("Length"), std::hypot(tape.to.x - tape.from.x, tape.to.y - tape.from.y));
}

} // namespace trassix
