#include "document/undo_scope.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace trassix {

namespace {

template <class Record>
bool sameButSelected(const std::vector<Record>& a, const std::vector<Record>& b) {
  return std::ranges::equal(a, b, [](const Record& one, const Record& other) {
    if (one.sel == other.sel)
      return one == other;
    Record likewise = other;
    likewise.sel = one.sel;
    return one == likewise;
  });
}

bool sameButSelected(const PlanContent& a, const PlanContent& b) {
  return sameButSelected(a.pieces, b.pieces) && sameButSelected(a.scenery, b.scenery) &&
         sameButSelected(a.labels, b.labels) && sameButSelected(a.measurements, b.measurements) &&
         sameButSelected(a.shapes, b.shapes) && a.tunnels == b.tunnels && a.helices == b.helices &&
         a.currentGrade == b.currentGrade && a.gradeRuns == b.gradeRuns && a.pairs == b.pairs;
}

} // namespace

UndoScope::UndoScope(Layout& layout)
    : layout_(layout), content_(layout.history_.snapshot(layout.content_)),
      settings_(layout.settings_), nextPieceId_(layout.nextPieceId_),
      reusingIds_(layout.reusingIds_), revision_(layout.revision_),
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
    layout_.history_.push(std::move(content_));
    layout_.inEdit_ = false;
  }
  ended_ = true;
  return true;
}

bool UndoScope::changed() const {
  return layout_.revision_ != revision_ &&
         !(layout_.settings_ == settings_ && sameButSelected(layout_.content_, content_));
}

void UndoScope::putBack() {
  if (layout_.revision_ != revision_) {
    layout_.edit() = std::move(content_);
    layout_.editSettings() = std::move(settings_);
  }
  layout_.nextPieceId_ = nextPieceId_;
  layout_.reusingIds_ = reusingIds_;
  if (outermost_)
    layout_.inEdit_ = false;
  ended_ = true;
}

} // namespace trassix
