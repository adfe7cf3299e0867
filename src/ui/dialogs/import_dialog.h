#pragma once

#include <wx/dialog.h>

#include <filesystem>
#include <vector>

class wxListBox;
class wxTextCtrl;

namespace trassix {

class FolderField;
class ProblemText;

/// Asks for a plan file anywhere on the disk and the name that it is to have among the user's
/// plans. Ends with wxID_OK only when both are given.
class ImportDialog : public wxDialog {
 public:
  ImportDialog(wxWindow* parent, const std::filesystem::path& folder);

  const std::filesystem::path& source() const;
  wxString layoutName() const; ///< trimmed, not empty

 private:
  void list();
  void offerName();
  void enableButtons();

  FolderField* folder_;
  wxListBox* names_;
  wxTextCtrl* name_;
  ProblemText* problem_;
  std::vector<std::filesystem::path> files_; ///< in the order of the list
  wxString offered_;                         ///< the name filled in for the user
};

} // namespace trassix
