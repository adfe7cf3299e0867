#pragma once

#include "host/workspace.h"

class wxFrame;

namespace trassix {

/// The status bar: what the mouse does now, how many pieces there are, where the pointer is.
class StatusLine : private PlanObserver {
 public:
  StatusLine(wxFrame& window, Workspace& workspace);

 private:
  enum Field { kHintField, kPiecesField, kPointerField };

  void planChanged() override;
  void planReplaced() override { planChanged(); }
  void unitsChanged() override { pointerMoved(pointer_); }
  void hintChanged(const std::string& hint) override;
  void showHint();
  void pointerMoved(Point world) override;

  wxFrame& window_;
  const Workspace& workspace_;
  std::string hint_;
  Point pointer_; ///< on the plan, mm
};

} // namespace trassix
