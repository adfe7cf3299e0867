#pragma once

#include "document/file_names.h"

#include <wx/textdlg.h>

#include <functional>

namespace trassix {

class ProblemText;

/// What `adviseOnName` says about a name as it is typed, blanks around it left out.
NameAdvice adviseOnTyped(const wxString& name);

/// Asks for the name of a file and judges it while it is typed. Only a name that leads out of the
/// folder cannot be accepted.
class NameDialog : public wxTextEntryDialog {
 public:
  using Advise = std::function<NameAdvice(const wxString& name)>;

  NameDialog(wxWindow* parent, const wxString& prompt, const wxString& title, const wxString& value,
             Advise advise = adviseOnTyped);

 private:
  void judge();

  Advise advise_;
  ProblemText* line_;
};

} // namespace trassix
