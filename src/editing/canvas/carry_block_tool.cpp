#include "editing/canvas/carry_block_tool.h"

#include "catalog/track_catalog.h"
#include "editing/canvas/piece_painter.h"
#include "editing/canvas/plan_colors.h"
#include "editing/placing/block_placing.h"
#include "editing/scenery/scenery_footprint.h"

namespace trassix {

EditResult CarryBlockTool::drop() {
  return placeBlock(site_.layout(), block_, pose());
}

void CarryBlockTool::paint(Surface& surface) const {
  const auto carried = [this](double x, double y, double heading) {
    const Point at = toWorld(pose(), {x, y});
    return Pose{at.x, at.y, normaliseHeading(heading + pose().heading)};
  };
  PiecePainter painter(surface, site_.view);
  const PieceLook look = carriedLook(false);
  for (const PlacedPiece& piece : block_.pieces)
    if (const PieceDef* definition = TrackCatalog::instance().find(piece.cat))
      painter.paint(trackGeometryOf(*definition), carried(piece.x, piece.y, piece.heading), look);
  for (SceneryItem item : block_.scenery) {
    const Pose at = carried(item.x, item.y, item.heading);
    item.x = at.x;
    item.y = at.y;
    item.heading = at.heading;
    surface.polygon(site_.view.toScreen(sceneryOutline(site_.layout(), item)), {},
                    Stroke{plan_colors::kSelected, 1.5, Stroke::Style::Dashed});
  }
}

std::string CarryBlockTool::hint() const {
  std::set<std::int32_t> levels;
  for (const PlacedPiece& piece : block_.pieces)
    levels.insert(piece.level);
  for (const SceneryItem& item : block_.scenery)
    levels.insert(item.level);
  return "Click to place " + (block_.name.empty() ? "the copy" : block_.name) +
         site_.landingHint(levels) + turningHint();
}

} // namespace trassix
