#pragma once

#include "output/print_form.h"

#include <wx/dialog.h>

#include <string>
#include <vector>

class wxButton;
class wxCheckBox;
class wxCheckListBox;
class wxChoice;
class wxRadioBox;
class wxStaticText;

namespace trassix {

class PicturePanel;
class ProblemText;

/// Asks what is to be printed and how, over a picture of the plan with the sheets on it.
class PrintOptionsDialog : public wxDialog {
 public:
  /// `printer` is the name under which the measures of the ruler are kept.
  PrintOptionsDialog(wxWindow* parent, PrintForm form, const wxString& printer);

  const PrintForm& form() const { return form_; }

 private:
  wxSizer* makeMode();
  wxSizer* makeWhat();
  wxSizer* makeRuler(const wxString& printer);
  void addScale(wxSizer& row);
  void addField(wxSizer& row, const wxString& label, PrintForm::Field which, const char* name);
  void addBox(wxSizer& column, const wxString& label, const char* name, bool on,
              const std::function<void(bool)>& chosen);
  wxSizer* makePages();
  void showPages();
  void clickPicture(wxMouseEvent& event);
  void refresh();

  PrintForm form_;
  std::vector<std::pair<wxWindow*, PrintForm::Field>> fields_;
  PicturePanel* picture_ = nullptr;
  wxCheckListBox* pages_ = nullptr;
  wxButton* none_ = nullptr;
  wxStaticText* summary_ = nullptr;
  ProblemText* problem_ = nullptr;
  wxButton* ok_ = nullptr;
};

} // namespace trassix
