#include "document/plan_content.h"
#include "editing/selection/content_box.h"
#include "measures/measure_format.h"
#include "panels/sheets/sheet_builder.h"
#include "panels/tally.h"
#include "texts/texts.h"

namespace trassix {

void describePlan(SheetBuilder& build) {
  const Layout& layout = build.layout;
  build.sheet.title = tr("Plan");
  const Tally tally = tallyOf(layout);
  build.fixed(tr("Pieces"), layout.pieces().size());
  build.fixedLength(tr("Track length"), tally.trackLength);
  build.fixed(tr("Open ends"), static_cast<std::size_t>(tally.openEnds));
  if (const std::optional<Box> box = contentBox(layout))
    build.fixed(tr("Extent"),
                formatSize(box->maxX - box->minX, box->maxY - box->minY, build.units));
  if (!layout.content().scenery.empty())
    build.fixed(tr("Scenery"), layout.content().scenery.size());
  build.fixed(tr("Levels"), layout.settings().levels.size());
  if (const Level* active = layout.findLevel(layout.settings().activeLevel))
    build.fixed(tr("Active level"), active->name);
}

} // namespace trassix
