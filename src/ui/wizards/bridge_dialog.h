#pragma once

#include "document/layout.h"
#include "host/plan_preview.h"
#include "host/workspace.h"
#include "panels/bridge_form.h"

#include <wx/dialog.h>
#include <wx/timer.h>

#include <array>
#include <functional>
#include <string>
#include <vector>

class wxButton;
class wxCheckBox;
class wxChoice;
class wxFlexGridSizer;
class wxListBox;
class wxStaticText;
class wxTextCtrl;

namespace trassix {

class PicturePanel;
class ProblemText;

/// Asks for a bridge over, from or under the selected track and shows at every entry what would
/// come of it: from the side, from above and in figures. `form` is to be applied after wxID_OK.
class BridgeDialog : public wxDialog {
 public:
  /// There is something to choose: the selection has track.
  BridgeDialog(wxWindow* parent, Workspace& workspace, const OwnedStock& owned);

  const BridgeForm& form() const { return form_; }

 private:
  wxSizer* makeEntries();
  wxSizer* makePictures();
  wxSizer* makeAnswers();
  wxChoice* makeChoice(const char* name, const wxString& tip,
                       std::function<void(std::size_t)> chosen);
  wxChoice* addChoice(wxFlexGridSizer& grid, const wxString& label, const char* name,
                      const wxString& tip, std::function<void(std::size_t)> chosen);
  wxCheckBox* addCheck(wxFlexGridSizer& grid, const wxString& label, const char* name,
                       const wxString& tip, std::function<void(bool)> checked);
  void addField(wxFlexGridSizer& grid, const wxString& label, const char* name, const wxString& tip,
                BridgeForm::Field field);
  PicturePanel* addPicture(wxSizer& row, const wxSize& size, const char* name, const wxString& tip,
                           std::function<void(wxGraphicsContext&, const wxSize&)> painter);

  void entered();
  /// Other bridges are sought once the user pauses, one at a time.
  void seekChoice();
  void showChoices();
  void refresh();
  void showEntries();
  void showFacts();

  struct Fact {
    wxStaticText* name;
    wxStaticText* text;
  };

  Workspace& workspace_;
  BridgeForm form_;
  PlanPreview preview_;
  trassix::Layout built_;
  wxTimer pause_;
  std::vector<std::string> shownSpans_;
  wxStaticText* crossed_ = nullptr;
  wxCheckBox* wire_ = nullptr;
  wxCheckBox* rampPieces_ = nullptr;
  wxChoice* span_ = nullptr;
  wxChoice* piers_ = nullptr;
  std::array<wxTextCtrl*, BridgeForm::kFields> fields_{};
  wxListBox* choices_ = nullptr;
  ProblemText* problem_ = nullptr;
  std::vector<PicturePanel*> pictures_;
  std::vector<Fact> facts_;
  wxButton* ok_ = nullptr;
};

} // namespace trassix
