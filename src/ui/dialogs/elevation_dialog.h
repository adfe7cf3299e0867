#pragma once

#include "host/plan_preview.h"
#include "panels/elevation_form.h"

#include <wx/dialog.h>

#include <functional>
#include <vector>

class wxButton;
class wxCheckBox;
class wxChoice;
class wxFlexGridSizer;
class wxStaticText;
class wxTextCtrl;

namespace trassix {

class ElevationProfile;
class ProblemText;
class Workspace;

/// Asks for heights and grades of the selected track and shows on the plan what they would be;
/// `plan` is to be done after wxID_OK.
class ElevationDialog : public wxDialog {
 public:
  ElevationDialog(wxWindow* parent, Workspace& workspace);

  const HeightPlan& plan() const { return form_.plan(); }

 private:
  wxFlexGridSizer* makeChoices();
  wxFlexGridSizer* makeFields();
  wxChoice* addChoice(wxFlexGridSizer& grid, const wxString& label, const char* name,
                      const std::function<void(std::size_t)>& chosen);
  void addSwitches(wxSizer& page);
  void showEnds();
  /// Which rows there are goes by the task.
  void showRows();
  void refresh();

  struct Row {
    wxWindow* label;
    wxWindow* control;
    std::function<bool()> used;
  };

  ElevationForm form_;
  PlanPreview preview_;
  std::vector<Row> rows_;
  wxChoice* from_ = nullptr;
  wxChoice* to_ = nullptr;
  wxChoice* way_ = nullptr;
  wxButton* turn_ = nullptr;
  std::vector<wxTextCtrl*> fields_;
  std::vector<wxCheckBox*> switches_;
  ElevationProfile* profile_ = nullptr;
  wxStaticText* summary_ = nullptr;
  ProblemText* problem_ = nullptr;
  wxButton* ok_ = nullptr;
};

} // namespace trassix
