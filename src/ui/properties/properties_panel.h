#pragma once

#include "host/workspace.h"

#include <wx/panel.h>

namespace trassix {

class PropertyFields;
class TallyPanel;

/// What is selected, with its values to edit, and below it what the plan consists of. Its many
/// controls are made when it has been on the screen once, so that the start does not wait for them.
class PropertiesPanel : public wxPanel, private PlanObserver {
 public:
  PropertiesPanel(wxWindow* parent, Workspace& workspace);

  /// The document changed.
  void recompute();
  void selectionChanged() override;
  /// What is being typed into a field counts from now on.
  void enterPending();

 private:
  void planChanged() override { recompute(); }
  void planReplaced() override { recompute(); }
  void unitsChanged() override { recompute(); }

  void onFirstPaint(wxPaintEvent& event);
  void build();

  Workspace& workspace_;
  PropertyFields* fields_ = nullptr; ///< none before it was painted
  TallyPanel* tally_ = nullptr;      ///< none before it was painted
};

} // namespace trassix
