#include "document/history.h"

#include <utility>

namespace trassix {

namespace {

bool step(std::deque<PlanContent>& from, std::deque<PlanContent>& to, PlanContent& content) {
  if (from.empty())
    return false;
  to.push_back(std::move(content));
  content = std::move(from.back());
  from.pop_back();
  return true;
}

} // namespace

void History::push(const PlanContent& content) {
  if (undo_.size() < kUndoLimit) {
    undo_.push_back(content);
  } else {
    // Copying over the oldest snapshot reuses its storage, which is most of the cost of a copy.
    PlanContent oldest = std::move(undo_.front());
    oldest = content;
    while (undo_.size() >= kUndoLimit)
      undo_.pop_front();
    undo_.push_back(std::move(oldest));
  }
  redo_.clear();
}

bool History::undo(PlanContent& content) {
  return step(undo_, redo_, content);
}

bool History::redo(PlanContent& content) {
  return step(redo_, undo_, content);
}

void History::clear() {
  undo_.clear();
  redo_.clear();
}

} // namespace trassix
