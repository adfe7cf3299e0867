#pragma once

#include "document/open_plan.h"
#include "editing/elevation/propagation.h"
#include "editing/helix/helix_plan.h"
#include "editing/selection/selection.h"
#include "host/clipboard.h"
#include "host/long_work.h"
#include "host/questions.h"
#include "host/shape_answer.h"
#include "host/workspace.h"

#include <deque>

namespace trassix::test {

/// The window as a tool sees it, without a window: answers are given beforehand, calls are kept.
class FakeHost : public Questions, public Clipboard {
 public:
  OpenPlan open;
  Layout& plan = open.layout();
  Workspace workspace{open, *this, *this};
  std::deque<bool> answers; ///< to the questions to come; a question without one fails the test
  std::optional<std::size_t> choice;
  std::function<void()> whileChoosing;
  std::optional<std::string> typed;
  std::function<HelixWish(HelixWish)> wishing; ///< what is asked for a helix; none cancels
  std::string clipboardText;
  int patience = -1; ///< steps of long work after which it is cancelled; negative: never

  struct Seen : PlanObserver {
    using PlanObserver::PlanObserver;
    int changes = 0;
    std::string hint;
    Point pointer;

    void planChanged() override { ++changes; }
    void hintChanged(const std::string& text) override { hint = text; }
    void pointerMoved(Point world) override { pointer = world; }
  } seen{workspace};
  std::vector<Notice> notices;
  std::vector<Question> questions;
  std::vector<MenuRow> menu;
  std::vector<std::string> offered;
  std::vector<std::string> notes;

  void setSnap(bool on) {
    EditorSwitches switches = workspace.switches();
    switches.snap = on;
    workspace.setSwitches(switches);
  }

  void show(const Notice& notice) override { notices.push_back(notice); }
  bool confirm(const Question& question) override {
    questions.push_back(question);
    const bool answer = answers.at(0);
    answers.pop_front();
    return answer;
  }
  std::optional<std::size_t> choose(const Choice& rows) override {
    offered = rows.rows;
    notes = rows.notes;
    if (choice && rows.highlighted)
      rows.highlighted(*choice);
    if (whileChoosing)
      whileChoosing();
    return choice;
  }
  std::optional<std::string> askText(const std::string&, const std::string&,
                                     const std::string&) override {
    return typed;
  }
  void popupMenu(const std::vector<MenuRow>& rows) override { menu = rows; }
  std::optional<ShapeAnswer> askShape(const Layout&, const Shape&) override { return {}; }
  std::optional<HeightPlan> askHeights(Workspace&) override { return {}; }
  std::optional<HelixWish> askHelix(Workspace&, const HelixWish& from, std::int32_t) override {
    return wishing ? std::optional(wishing(from)) : std::nullopt;
  }
  bool finish(const LongWork& work) override {
    for (int step = 0; step != patience; ++step)
      if (!work.step({}))
        return true;
    return false;
  }
  void put(const std::string& text) override { clipboardText = text; }
  std::string text() override { return clipboardText; }
};

} // namespace trassix::test
