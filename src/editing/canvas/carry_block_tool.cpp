#include "editing/canvas/carry_block_tool.h"

#include "editing/canvas/carried_painter.h"
#include "editing/placing/block_placing.h"
#include "texts/texts.h"

namespace trassix {

EditResult CarryBlockTool::drop() {
  return placeBlock(site_.layout(), block_, pose());
}

void CarryBlockTool::paint(Surface& surface) const {
  CarriedPainter(surface, site_.view, site_.layout(), false).paint(block_.content, {{}, pose()});
}

std::string CarryBlockTool::hint() const {
  std::set<std::int32_t> levels;
  forEachOnLevels(block_.content, [&levels](const auto& records) {
    for (const auto& record : records)
      levels.insert(record.level);
  });
  return hintOf({block_.name.empty() ? tr("Click to place the copy")
                                     : tr("Click to place %1%", {block_.name}),
                 site_.landingHint(levels), turningHint()});
}

} // namespace trassix
