#pragma once

#include "host/plan_preview.h"
#include "panels/helix_form.h"

#include <wx/dialog.h>

#include <array>
#include <functional>
#include <optional>
#include <vector>

class wxButton;
class wxChoice;
class wxFlexGridSizer;
class wxStaticText;
class wxTextCtrl;

namespace trassix {

class PicturePanel;
class ProblemText;
class Workspace;

/// Asks for a helix and shows what becomes of every entry; one that is on the plan is shown there
/// as it would be. `wish` is what is wanted after wxID_OK.
class HelixDialog : public wxDialog {
 public:
  /// `helix` is the one that is to change, -1 for a new one.
  HelixDialog(wxWindow* parent, Workspace& workspace, const HelixWish& from, std::int32_t helix);

  const HelixWish& wish() const { return form_.wish(); }

 private:
  wxSizer* makeEntries();
  wxSizer* makeAnswers();
  wxChoice* addChoice(wxFlexGridSizer& grid, const wxString& label, const char* name,
                      const std::vector<std::string>& rows,
                      std::function<void(std::size_t)> chosen);
  void addField(wxFlexGridSizer& grid, const wxString& label, const char* name,
                HelixForm::Field field);
  void refresh();
  void showVerdict();

  struct Fact {
    wxStaticText* name;
    wxStaticText* text;
  };

  Workspace& workspace_;
  HelixForm form_;
  std::int32_t helix_;
  std::optional<PlanPreview> preview_; ///< of one that is on the plan
  std::vector<TrackSystem> systems_;
  std::vector<std::string> shownSizes_;
  wxChoice* size_ = nullptr;
  wxChoice* tracks_ = nullptr;
  wxChoice* turns_ = nullptr;
  std::array<wxTextCtrl*, HelixForm::kFields> fields_{};
  ProblemText* problem_ = nullptr;
  PicturePanel* picture_ = nullptr;
  PicturePanel* light_ = nullptr;
  wxStaticText* verdict_ = nullptr;
  wxStaticText* advice_ = nullptr;
  std::vector<Fact> facts_;
  wxButton* ok_ = nullptr;
};

} // namespace trassix
