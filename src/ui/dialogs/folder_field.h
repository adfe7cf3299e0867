#pragma once

#include <wx/panel.h>

#include <filesystem>

class wxTextCtrl;

namespace trassix {

/// A folder as text, which can be typed, and a button that lets the user look for it. The text's
/// changes arrive as `wxEVT_TEXT`.
class FolderField : public wxPanel {
 public:
  /// `question` is the title of the folder chooser, which starts at the field's folder.
  FolderField(wxWindow* parent, const std::filesystem::path& folder, wxString question,
              const wxString& name);

  /// The typed folder without blanks around it; empty when there is none.
  std::filesystem::path folder() const;

 private:
  void browse();

  wxString question_;
  wxTextCtrl* text_;
};

} // namespace trassix
