#include "editing/canvas/carry_scenery_tool.h"

#include "editing/canvas/plan_theme.h"
#include "editing/placing/placing.h"
#include "editing/scenery/scenery_footprint.h"
#include "texts/texts.h"

namespace trassix {

EditResult CarrySceneryTool::drop() {
  return dropScenery(site_.layout(), definition_.key, pose());
}

void CarrySceneryTool::paint(Surface& surface) const {
  const std::vector<Point> outline =
      sceneryOutline(definition_.form, definition_.footprint(planSystem(site_.layout())),
                     {pose().x, pose().y}, pose().heading);
  Rgba fill = site_.theme().sceneryColor(&definition_);
  fill.a = 110;
  surface.polygon(site_.view.toScreen(outline), fill, Stroke{site_.theme().selected, 2});
}

std::string CarrySceneryTool::hint() const {
  return hintOf({tr("Click or let go to place %1%", {definition_.name}),
                 site_.landingHint({dropLevel(site_.layout())}), turningHint()});
}

} // namespace trassix
