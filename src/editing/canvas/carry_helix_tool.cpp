#include "editing/canvas/carry_helix_tool.h"

#include "document/plan_content.h"
#include "editing/canvas/helix_picture.h"
#include "editing/canvas/meetings.h"
#include "editing/elevation/inheritance.h"
#include "editing/helix/helix_edits.h"
#include "editing/placing/placing.h"
#include "measures/measure_format.h"
#include "texts/texts.h"

namespace trassix {

namespace {

std::vector<PlacedEnd> placedEndsOf(const HelixPlan& plan) {
  std::vector<PlacedEnd> ends;
  for (const HelixEnd& end : endsOf(plan))
    ends.push_back(end.placed);
  return ends;
}

} // namespace

CarryHelixTool::CarryHelixTool(ToolSite& site, const HelixWish& wish, bool held)
    : CarryTool(site, held), plan_(wish.plan), end_(wish.leadsDown ? plan_.kit->tracks() : 0),
      landing_(plan_) {}

std::int32_t CarryHelixTool::level() const {
  const PlacedPiece* joined = snap_ ? site_.layout().findPiece(snap_->target.piece) : nullptr;
  return joined != nullptr ? joined->level : dropLevel(site_.layout());
}

HelixPlan CarryHelixTool::hanging() const {
  PlacedEnd at;
  at.at = {pose().x, pose().y};
  at.heading = pose().heading;
  at.height = site_.layout().levelHeight(dropLevel(site_.layout()));
  return standingBy(plan_, end_, at);
}

void CarryHelixTool::posed() {
  landing_ = hanging();
  snap_.reset();
  meetings_.clear();
  if (!site_.workspace.switches().snap)
    return;
  const std::vector<PlacedEnd> ends = placedEndsOf(landing_);
  const SnapIndex& index = site_.snapIndex();
  snap_ = index.findGroupSnap(std::span(&ends[end_], 1), {});
  if (!snap_)
    snap_ = index.findGroupSnap(ends, {});
  if (!snap_)
    return;
  landing_ = standingBy(landing_, static_cast<std::size_t>(snap_->own.connector), snap_->target);
  meetings_ = index.findMeetings(placedEndsOf(landing_), {});
}

bool CarryHelixTool::turnRound(int step) {
  const std::size_t count = endsOf(plan_).size();
  end_ = (end_ + count + static_cast<std::size_t>(step > 0 ? 1 : count - 1)) % count;
  return true;
}

EditResult CarryHelixTool::drop() {
  return placeHelix(site_.layout(), landing_, level());
}

void CarryHelixTool::paint(Surface& surface) const {
  paintHelixTrack(surface, site_.view, site_.theme(), landing_,
                  carriedLook(site_.theme(), snap_.has_value()));
  paintHelixMarks(surface, site_.view, site_.theme(), landing_,
                  snap_ ? static_cast<std::size_t>(snap_->own.connector) : end_,
                  site_.layout().settings().units);
  paintMeetings(surface, site_.view, site_.theme(), meetings_);
}

std::string CarryHelixTool::hint() const {
  const std::int32_t units = site_.layout().settings().units;
  const std::vector<HelixEnd> ends = endsOf(landing_);
  const HelixEnd& held = ends[snap_ ? static_cast<std::size_t>(snap_->own.connector) : end_];
  const char* what = snap_ ? trLater("Let go to join the %1% of the helix")
                           : trLater("Click to place the helix by its %1%");
  return hintOf({tr(what, {nameOf(landing_, held)}),
                 tr("%1% to %2% high", {formatLength(landing_.height, units),
                                        formatLength(landing_.height + landing_.climb(), units)}),
                 meetingsHint(meetings_), missText(meetings_, units), site_.landingHint({level()}),
                 tr("F: by another end"), turningHint()});
}

} // namespace trassix
