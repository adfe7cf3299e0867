// Moving and turning a selection by hand.
#pragma once

#include "document/layout.h"
#include "editing/edit_result.h"
#include "editing/joining/end_grid.h"
#include "editing/joining/joining.h"
#include "editing/joining/snapping.h"
#include "editing/selection/rigid_motion.h"
#include "editing/track/connector_geometry.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace trassix {

/// A selection that is being carried. Lives only during the drag; the document is not touched until
/// `commit`, so that letting go of the object cancels the move.
class SelectionMove {
 public:
  /// `anchor` is the layout point that was grasped.
  SelectionMove(const Layout& layout, Point anchor);

  /// Where the group would land with the pointer at `pointer`: the free move, or with `snapping`
  /// the nearest snap of one of the group's free ends (same distance, system and facing rules as a
  /// carried piece; the whole group turns to fit).
  void update(Point pointer, bool snapping, const SnapIndex& index);

  /// Turns the group freely by `degrees` about `centre`, from where it was grasped.
  void turn(Point centre, double degrees);

  /// Where a point or a piece of the group would land.
  Point moved(Point p) const { return motion_(p); }
  const RigidMotion& motion() const { return motion_; }
  Pose moved(const Pose& pose) const { return motion_(pose); }

  /// The snap, with the pose of the piece of the group that snaps; `snappingPiece` is its id.
  const std::optional<SnapResult>& snap() const { return snap_; }
  std::int32_t snappingPiece() const { return snappingPiece_; }
  /// Ends of the group that will be joined where it snapped.
  std::vector<EndContact> meetings(const SnapIndex& index) const;
  const std::vector<std::int32_t>& pieces() const { return pieces_; }

  /// False when the group would land where it is and nothing would be joined.
  bool changes() const;

  /// True when a joint between the group and the rest would open.
  bool opensJoints() const { return detachment_.opensJoints && changes(); }
  /// True when such a joint has a graded piece on either side: the user is asked first.
  bool opensGradedJoints() const { return detachment_.opensGradedJoints && changes(); }

  /// Carries it out as one undo step: opens joints to the rest, moves, joins where it landed; after
  /// a free move only ends that lie exactly on each other. A group that snapped takes the height of
  /// the end it snapped to, and what was on the level of the snapping piece goes to the level of
  /// the target. Nothing changes when the group is where it was, and what would lie beyond the
  /// limits of a plan is refused.
  ChangeResult commit(Layout& layout) const;

 private:
  const Layout& layout_;
  Point anchor_;
  RigidMotion motion_;
  std::vector<std::int32_t> pieces_;
  std::vector<PlacedEnd> ends_; ///< those that are free or would become so, where they are now
  Detachment detachment_;
  std::optional<SnapResult> snap_;
  std::int32_t snappingPiece_ = -1;
  double rise_ = 0; ///< mm by which the snap lifts the group
};

/// Moves the selection by (dx, dy) as one undo step, without snapping; joints to the rest open
/// unless their ends still lie on each other. Refused beyond the limits of a plan.
/// With `continued` the step belongs to the run of nudges before it and pushes no history of its
/// own.
ChangeResult nudgeSelection(Layout& layout, double dx, double dy, bool continued);

} // namespace trassix
