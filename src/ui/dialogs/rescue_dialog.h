#pragma once

#include "document/rescue/rescue_session.h"

#include <wx/dialog.h>

#include <vector>

namespace trassix {

class PlanShowcase;

/// Offers unsaved changes that a program left which ended without saving them: to open one of them,
/// to throw some away, or to be asked again later.
class RescueDialog : public wxDialog {
 public:
  RescueDialog(wxWindow* parent, std::vector<RescuedPlan> plans);

  /// After wxID_OK.
  RescuedPlan& chosen();

 private:
  void list();
  void throwAwaySelected();

  std::vector<RescuedPlan> plans_;
  PlanShowcase* showcase_;
};

} // namespace trassix
