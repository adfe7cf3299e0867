#pragma once

#include "editing/selection/selection.h"
#include "host/layout_host.h"

#include <deque>

namespace trassix::test {

/// The window as a tool sees it, without a window: answers are given beforehand, calls are kept.
class FakeHost : public LayoutHost {
 public:
  Layout plan;
  EditorSwitches state;
  std::deque<bool> answers; ///< to the questions to come; a question without one fails the test
  std::optional<std::size_t> choice;
  std::optional<std::string> typed;
  std::string clipboardText;

  int changes = 0;
  std::vector<Notice> notices;
  std::vector<Question> questions;
  std::vector<MenuRow> menu;
  std::vector<std::string> offered;
  std::vector<std::string> notes;
  std::string hint;
  Point pointer;

  Layout& layout() override { return plan; }
  const EditorSwitches& switches() const override { return state; }
  void changed() override { ++changes; }
  void selectionChanged() override {}
  void repaint() override {}
  void setHint(const std::string& text) override { hint = text; }
  void setPointer(Point world) override { pointer = world; }
  void setToolMode(ToolMode mode) override { state.mode = mode; }
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
    return choice;
  }
  std::optional<std::string> askText(const std::string&, const std::string&,
                                     const std::string&) override {
    return typed;
  }
  void popupMenu(const std::vector<MenuRow>& rows) override { menu = rows; }
  void editShape(std::int32_t) override {}
  void deleteSelection() override {
    if (trassix::deleteSelection(plan))
      changed();
  }
  void putClipboard(const std::string& text) override { clipboardText = text; }
  std::string clipboard() override { return clipboardText; }
};

} // namespace trassix::test
