#pragma once

#include "output/picture_form.h"

#include <wx/dialog.h>

#include <functional>
#include <vector>

class wxButton;
class wxChoice;
class wxStaticText;
class wxTextCtrl;

namespace trassix {

class ProblemText;

/// Asks in which form a plan goes out as a picture.
class ExportPictureDialog : public wxDialog {
 public:
  ExportPictureDialog(wxWindow* parent, PictureForm form);

  const PictureForm& form() const { return form_; }

 private:
  struct Row {
    wxWindow* control;
    std::function<bool()> used;
  };

  wxChoice* addChoice(wxSizer& grid, const wxString& label, const char* name,
                      const std::vector<wxString>& rows, const std::function<void(int)>& chosen);
  void addField(wxSizer& grid, const wxString& label, PictureForm::Field which, const char* name);
  void addBox(wxSizer& column, const wxString& label, const char* name, bool on,
              const std::function<void(bool)>& chosen, const std::function<bool()>& used = {});
  void addBoxes(wxSizer& column);
  void refresh();

  PictureForm form_;
  std::vector<Row> rows_;
  wxStaticText* summary_ = nullptr;
  ProblemText* problem_ = nullptr;
  wxButton* ok_ = nullptr;
};

} // namespace trassix
