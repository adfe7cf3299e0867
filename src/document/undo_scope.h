#pragma once

#include "document/layout.h"

#include <cstdint>
#include <memory>

namespace trassix {

/// An edit as one undo step. The plan is remembered when the scope begins; `keep` makes that the
/// step to undo, unless the plan is as it was but for what is selected. A scope that ends without
/// `keep`, by a refusal or an exception, puts the whole plan back and gives back the ids it took.
/// Undo and redo stay as they are until a change is kept. A scope inside another one belongs to
/// its step.
class UndoScope {
 public:
  /// The layout must outlive the scope and must not be cleared, undone or replaced meanwhile.
  explicit UndoScope(Layout& layout);
  ~UndoScope();
  UndoScope(const UndoScope&) = delete;
  UndoScope& operator=(const UndoScope&) = delete;

  /// Ends the edit. False when nothing has changed; the plan is then put back as well.
  bool keep();

 private:
  bool changed() const;
  void putBack();

  Layout& layout_;
  std::unique_ptr<PlanContent> content_;
  PlanSettings settings_;
  std::int32_t nextPieceId_;
  bool reusingIds_;
  std::uint64_t revision_;
  bool outermost_;
  bool ended_ = false;
};

} // namespace trassix
