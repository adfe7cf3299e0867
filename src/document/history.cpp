#include "document/history.h"

#include "document/plan_content.h"

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

PlanContent History::snapshot(const PlanContent& content) {
  dropped_ = content;
  return std::exchange(dropped_, {});
}

void History::push(PlanContent snapshot) {
  undo_.push_back(std::move(snapshot));
  while (undo_.size() > kUndoLimit) {
    dropped_ = std::move(undo_.front());
    undo_.pop_front();
  }
  redo_.clear();
}

bool History::undo(PlanContent& content) {
  return step(undo_, redo_, content);
}

bool History::redo(PlanContent& content) {
  return step(redo_, undo_, content);
}

bool History::redoChanges(const PlanContent& content) const {
  return !redo_.empty() && redo_.back() != content;
}

void History::clear() {
  undo_.clear();
  redo_.clear();
  dropped_ = {};
}

} // namespace trassix
