#include "document/undo_scope.h"

#include "document/history.h"
#include "document/record_kinds.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace trassix {

namespace {

bool sameRecords(const PlanContent& a, const PlanContent& b) {
  bool same = a.currentGrade == b.currentGrade && a.gradeRuns == b.gradeRuns && a.pairs == b.pairs;
  forEachKindOfBoth(a, b, [&same](const auto& one, const auto& other) {
    same = same && std::ranges::equal(one, other, [](const auto& before, const auto& after) {
             return sameButSelected(before, after);
           });
  });
  return same;
}

} // namespace

UndoScope::UndoScope(Layout& layout)
    : layout_(layout),
      content_(std::make_unique<PlanContent>(layout.history().snapshot(layout.content()))),
      settings_(layout.settings_), nextPieceId_(layout.nextPieceId_),
      reusingIds_(layout.reusingIds_), revision_(layout.revision()),
      outermost_(!std::exchange(layout.inEdit_, true)) {}

UndoScope::~UndoScope() {
  if (!ended_)
    putBack();
}

bool UndoScope::keep() {
  if (!changed()) {
    putBack();
    return false;
  }
  if (outermost_) {
    layout_.history().push(std::move(*content_));
    layout_.inEdit_ = false;
  }
  ended_ = true;
  return true;
}

bool UndoScope::changed() const {
  return layout_.revision() != revision_ &&
         !(layout_.settings_ == settings_ && sameRecords(layout_.content(), *content_));
}

void UndoScope::putBack() {
  if (layout_.revision() != revision_) {
    layout_.edit() = std::move(*content_);
    layout_.editSettings() = std::move(settings_);
  }
  layout_.nextPieceId_ = nextPieceId_;
  layout_.reusingIds_ = reusingIds_;
  if (outermost_)
    layout_.inEdit_ = false;
  ended_ = true;
}

} // namespace trassix
