#include "editing/selection/moving.h"

#include "document/record_kinds.h"
#include "document/undo_scope.h"
#include "editing/elevation/inheritance.h"
#include "editing/selection/selection.h"

#include <algorithm>

namespace trassix {

namespace {

void moveSelected(Layout& layout, const RigidMotion& motion) {
  moveSelectedBodies(layout.edit(), motion);
  moveSelectedNotes(layout.edit(), motion);
}

/// What stood on one level goes to another.
void changeLevel(PlanContent& content, std::int32_t from, std::int32_t to) {
  forEachOnLevels(content, [from, to](auto& records) {
    for (auto& record : records)
      if (record.sel && record.level == from)
        record.level = to;
  });
}

} // namespace

SelectionMove::SelectionMove(const Layout& layout, Point anchor)
    : layout_(layout), anchor_(anchor), motion_{anchor, {anchor.x, anchor.y, 0}},
      pieces_(selectedPieces(layout)), detachment_(detachmentOf(layout, pieces_)) {
  std::int32_t position = 0;
  for (const PlacedPiece& piece : layout.pieces()) {
    if (piece.sel)
      appendEnds(ends_, piece, position, true);
    ++position;
  }
  std::erase_if(ends_, [this](const PlacedEnd& end) {
    return end.joinedTo != -1 && containsId(pieces_, end.joinedTo);
  });
}

void SelectionMove::update(Point pointer, bool snapping, const SnapIndex& index) {
  motion_ = {anchor_, {pointer.x, pointer.y, 0}};
  snap_.reset();
  snappingPiece_ = -1;
  rise_ = 0;
  if (!snapping)
    return;
  std::vector<PlacedEnd> ends = ends_;
  for (PlacedEnd& end : ends)
    end.at = motion_(end.at);
  const std::optional<EndContact> contact = index.findGroupSnap(ends, pieces_);
  if (!contact)
    return;
  const auto own = std::find_if(ends_.begin(), ends_.end(), [&contact](const PlacedEnd& end) {
    return end.piece == contact->own.piece && end.connector == contact->own.connector;
  });
  const PlacedEnd& target = contact->target;
  motion_ = motionOnto(*own, target);
  rise_ = target.height - own->height;
  snappingPiece_ = own->piece;
  snap_ = SnapResult{true,
                     target.piece,
                     target.connector,
                     own->connector,
                     moved(poseOf(*layout_.findPiece(own->piece))),
                     contact->distance};
}

void SelectionMove::turn(Point centre, double degrees) {
  motion_ = {centre, {centre.x, centre.y, degrees}};
  snap_.reset();
  snappingPiece_ = -1;
  rise_ = 0;
}

std::vector<EndContact> SelectionMove::meetings(const SnapIndex& index) const {
  if (!snap_)
    return {};
  std::vector<PlacedEnd> ends = ends_;
  for (PlacedEnd& end : ends) {
    end.at = motion_(end.at);
    end.heading = normaliseHeading(end.heading + motion_.to.heading);
    end.height += rise_;
  }
  return index.findMeetings(ends, pieces_);
}

bool SelectionMove::changes() const {
  if (snap_ &&
      layout_.findPiece(snappingPiece_)->joint(static_cast<std::size_t>(snap_->newConnector)) !=
          Joint{snap_->target, snap_->targetConnector})
    return true;
  return !isStill({motion_.from.x, motion_.from.y, 0}, motion_.to);
}

ChangeResult SelectionMove::commit(Layout& layout) const {
  if (!hasSelection(layout) || !changes())
    return false;
  if (!staysInLimits(layout.content(), motion_, rise_))
    return beyondPlan();
  UndoScope step(layout);
  detach(layout, pieces_);
  moveSelected(layout, motion_);
  const PlacedPiece* target = snap_ ? layout.findPiece(snap_->target) : nullptr;
  if (target != nullptr) {
    const std::int32_t from = layout.findPiece(snappingPiece_)->level;
    const std::int32_t to = target->level;
    landGroup(layout, pieces_, {snappingPiece_, snap_->newConnector},
              {snap_->target, snap_->targetConnector});
    if (from != to)
      changeLevel(layout.edit(), from, to);
    join(layout, snappingPiece_, snap_->newConnector, snap_->target, snap_->targetConnector);
  }
  // Let go of by hand, ends that were joined a moment ago must not be joined again with a gap.
  closeMeetingEnds(layout, pieces_, snap_ ? MeetingPlay{} : MeetingPlay::none());
  ChangeResult result = step.keep();
  if (result && snap_)
    result.remark = missedEndsNotice(layout, missedEnds(layout, pieces_));
  return result;
}

ChangeResult nudgeSelection(Layout& layout, double dx, double dy, bool continued) {
  if (!hasSelection(layout) || (dx == 0 && dy == 0))
    return false;
  const RigidMotion motion{{0, 0}, {dx, dy, 0}};
  if (!staysInLimits(layout.content(), motion))
    return beyondPlan();
  std::optional<UndoScope> step;
  if (!continued)
    step.emplace(layout);
  const std::vector<std::int32_t> pieces = selectedPieces(layout);
  detach(layout, pieces);
  moveSelected(layout, motion);
  closeMeetingEnds(layout, pieces, MeetingPlay::none());
  return continued || step->keep();
}

} // namespace trassix
