#include "document/limits.h"
#include "document/plan_content.h"
#include "editing/elevation/end_heights.h"
#include "editing/selection/content_box.h"
#include "measures/measure_format.h"
#include "panels/sheets/sheet_builder.h"
#include "panels/tally.h"
#include "texts/texts.h"

#include <algorithm>
#include <cmath>

namespace trassix {

namespace {

/// Lengths in mm.
struct Climbs {
  double low = 0;
  double high = 0;
  double total = 0; ///< rises and falls of all main routes
  const PlacedPiece* steepest = nullptr;
};

Climbs climbsOf(const Layout& layout) {
  Climbs climbs{kFarthest, -kFarthest};
  for (const PlacedPiece& piece : layout.pieces()) {
    const PieceDef* definition = definitionOf(piece);
    if (definition == nullptr)
      continue;
    for (std::int32_t i = 0; i < static_cast<std::int32_t>(definition->connectors.size()); ++i) {
      climbs.low = std::min(climbs.low, endHeight(piece, *definition, i));
      climbs.high = std::max(climbs.high, endHeight(piece, *definition, i));
    }
    if (!isGraded(piece))
      continue;
    climbs.total += std::abs(endHeight(piece, *definition, 1) - endHeight(piece, *definition, 0));
    if (climbs.steepest == nullptr ||
        std::abs(slopeOf(piece)) > std::abs(slopeOf(*climbs.steepest)))
      climbs.steepest = &piece;
  }
  return climbs;
}

} // namespace

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
  if (const Climbs climbs = climbsOf(layout); climbs.steepest != nullptr) {
    const PlacedPiece& steepest = *climbs.steepest;
    build.fixed(tr("Heights"), tr("%1% to %2%", {formatLength(climbs.low, build.units),
                                                 formatLength(climbs.high, build.units)}));
    build.fixedLength(tr("Total climb"), climbs.total);
    build.fixed(tr("Steepest"),
                tr("%1% on %2%", {gradeText(std::abs(slopeOf(steepest))), steepest.cat}));
    build.fixed(tr("Steepest at"),
                tr("x %1%, y %2%", {std::llround(steepest.x), std::llround(steepest.y)}));
  }
  if (!layout.content().scenery.empty())
    build.fixed(tr("Scenery"), layout.content().scenery.size());
  build.fixed(tr("Levels"), layout.settings().levels.size());
  if (const Level* active = layout.findLevel(layout.settings().activeLevel))
    build.fixed(tr("Active level"), active->name);
}

} // namespace trassix
