#pragma once

#include "host/workspace.h"

#include <memory>
#include <vector>

class wxSplitterWindow;
class wxWindow;

namespace trassix {

/// The panels beside the plan, which the user folds away and back by a switch of the workspace or a
/// double-click on the sash; the sash stays at the window's edge, from where it can be pulled too.
/// Whether they are folded, and how wide they are, is kept for the next start.
class SidePanels : private PlanObserver {
 public:
  explicit SidePanels(Workspace& workspace);
  ~SidePanels() override;

  /// A panel in a vertical splitter, on its left or right, that is `width` wide at first and never
  /// less than `least`; the panel's name is what it is remembered by.
  void add(wxSplitterWindow& splitter, wxWindow& panel, bool EditorSwitches::*shown, int width,
           int least);

 private:
  struct Side;

  void switchesChanged() override;
  void fold(Side& side, bool away);
  void bind(Side& side);

  Workspace& workspace_;
  std::vector<std::unique_ptr<Side>> sides_;
};

} // namespace trassix
