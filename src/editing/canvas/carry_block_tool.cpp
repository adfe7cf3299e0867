#include "editing/canvas/carry_block_tool.h"

#include "document/block.h"
#include "document/record_kinds.h"
#include "editing/canvas/carried_painter.h"
#include "editing/canvas/meetings.h"
#include "editing/elevation/inheritance.h"
#include "editing/placing/block_placing.h"
#include "texts/texts.h"

namespace trassix {

CarryBlockTool::CarryBlockTool(ToolSite& site, SharedBlock block, bool held)
    : CarryTool(site, held), block_(std::move(block)), ends_(openEndsOf(block_->content.pieces)) {}

void CarryBlockTool::posed() {
  landing_ = pose();
  meetings_.clear();
  landsOn_.reset();
  if (!site_.workspace.switches().snap)
    return;
  const auto endsAt = [this](const Pose& at, double rise) {
    const RigidMotion motion{{}, at};
    std::vector<PlacedEnd> ends = ends_;
    for (PlacedEnd& end : ends) {
      end.at = motion(end.at);
      end.heading = normaliseHeading(end.heading + at.heading);
      end.height += rise;
    }
    return ends;
  };
  const auto snap = site_.snapIndex().findGroupSnap(endsAt(pose(), 0), {});
  if (!snap)
    return;
  landing_ = motionOnto(snap->own, snap->target)(pose());
  landsOn_ = TrackEnd{snap->target.piece, snap->target.connector};
  const double rise = snap->target.height - snap->own.height;
  meetings_ = site_.snapIndex().findMeetings(endsAt(landing_, rise), {});
}

EditResult CarryBlockTool::drop() {
  return placeBlock(site_.layout(), *block_, landing_, landsOn_);
}

std::optional<CarriedBody> CarryBlockTool::body() const {
  return CarriedBody{landing_, {}, !meetings_.empty()};
}

void CarryBlockTool::paintBody(Surface& surface) const {
  CarriedPainter(surface, site_.view, site_.layout(), site_.theme(), !meetings_.empty())
      .paint(block_->content, {{}, landing_});
}

void CarryBlockTool::paint(Surface& surface) const {
  paintMeetings(surface, site_.view, site_.theme(), meetings_);
}

std::string CarryBlockTool::hint() const {
  std::set<std::int32_t> levels;
  forEachOnLevels(block_->content, [&levels](const auto& records) {
    for (const auto& record : records)
      levels.insert(record.level);
  });
  return hintOf({block_->name.empty() ? tr("Click to place the copy")
                                      : tr("Click to place %1%", {block_->name}),
                 meetingsHint(meetings_), missText(meetings_, site_.layout().settings().units),
                 site_.landingHint(levels), turningHint()});
}

} // namespace trassix
