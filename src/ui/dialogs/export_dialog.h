#pragma once

#include "ui/dialogs/saved_layouts.h"

#include <wx/dialog.h>

#include <filesystem>

class wxListBox;
class wxTextCtrl;

namespace trassix {

class FolderField;
class ProblemText;

/// Asks which of the user's plans to copy, and where to. Ends with wxID_OK only when a plan, a
/// folder and a name are given.
class ExportDialog : public wxDialog {
 public:
  ExportDialog(wxWindow* parent, SavedLayouts saved, const std::filesystem::path& destination);

  std::filesystem::path source() const;
  std::filesystem::path destination() const;
  /// Of the copy, without the extension that the user may have typed.
  wxString fileName() const;

 private:
  wxString typedName() const;
  void offerName();
  void enableButtons();

  SavedLayouts saved_;
  std::vector<std::string> fileNames_; ///< in the order of the list
  wxListBox* names_;
  FolderField* folder_;
  wxTextCtrl* name_;
  ProblemText* problem_;
  wxString offered_; ///< the name filled in for the user
};

} // namespace trassix
