#pragma once

#include "document/plan_content.h"

#include <cstddef>
#include <deque>

namespace trassix {

/// Undo and redo by whole snapshots. Snapshots are plain copies because records refer to one
/// another by id only.
class History {
 public:
  static constexpr std::size_t kUndoLimit = 50;

  /// A copy to be pushed if it is needed. It takes over the storage of the snapshot that was
  /// dropped last, which saves most of the cost of a copy.
  PlanContent snapshot(const PlanContent& content);

  /// Appends a snapshot, drops the oldest beyond the limit and forgets everything undone.
  void push(PlanContent snapshot);

  /// Swaps `content` with the newest snapshot; false when there is none. Neither direction applies
  /// the limit.
  bool undo(PlanContent& content);
  bool redo(PlanContent& content);

  /// Whether the newest step of redo differs from `content`.
  bool redoChanges(const PlanContent& content) const;

  bool canUndo() const { return !undo_.empty(); }
  bool canRedo() const { return !redo_.empty(); }
  void clear();

  /// Shows everything that undo or redo could bring back.
  template <class Visit>
  void visit(const Visit& visitor) const {
    for (const auto* stack : {&undo_, &redo_})
      for (const PlanContent& content : *stack)
        visitor(content);
  }

 private:
  std::deque<PlanContent> undo_;
  std::deque<PlanContent> redo_;
  PlanContent dropped_; ///< for its storage
};

} // namespace trassix
