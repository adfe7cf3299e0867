#pragma once

#include "editing/selection/finding.h"

#include <wx/dialog.h>

#include <vector>

class wxStaticText;
class wxTextCtrl;

namespace trassix {

class Workspace;
class WrappedList;

/// Looks for pieces, scenery and labels while the user types; what is highlighted is selected on
/// the plan and in view. Closing it leaves that so.
class FindDialog : public wxDialog {
 public:
  FindDialog(wxWindow* parent, Workspace& workspace);

 private:
  void find();
  void showOnPlan();
  void onKey(wxKeyEvent& event);

  Workspace& workspace_;
  std::vector<Found> found_;
  wxTextCtrl* text_;
  WrappedList* rows_;
  wxStaticText* count_;
};

} // namespace trassix
