// Moving and turning a selection by hand.
#pragma once

#include "document/layout.h"
#include "editing/connector_geometry.h"
#include "editing/snapping.h"

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

  /// Rigid motion since the start: a point p goes to `pose` applied to (p - anchor).
  Point moved(Point p) const;
  Pose moved(const Pose& pose) const;

  const std::optional<SnapResult>& snap() const { return snap_; }
  const std::vector<std::int32_t>& pieces() const { return pieces_; }

  /// True when a joint between the group and the rest would open.
  bool opensJoints() const { return opensJoints_; }
  /// True when such a joint has a graded piece on either side: the user is asked first.
  bool opensGradedJoints() const { return opensGradedJoints_; }

  /// Carries it out as one undo step: opens joints to the rest, moves, joins where it landed. False
  /// and nothing changed when the group is where it was.
  bool commit(Layout& layout) const;

 private:
  const Layout& layout_;
  Point anchor_;
  std::vector<std::int32_t> pieces_;
  std::optional<SnapResult> snap_;
  bool opensJoints_ = false;
  bool opensGradedJoints_ = false;
};

/// Moves the selection by (dx, dy) as one undo step, without snapping; joints to the rest open.
/// With `continued` the step belongs to the run of nudges before it and pushes no history of its
/// own.
bool nudgeSelection(Layout& layout, double dx, double dy, bool continued);

} // namespace trassix
