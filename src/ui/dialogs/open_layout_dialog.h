#pragma once

#include "ui/dialogs/saved_layouts.h"

#include <wx/dialog.h>

#include <functional>
#include <system_error>

class wxListBox;

namespace trassix {

/// Lists the saved plans, to open or delete one.
class OpenLayoutDialog : public wxDialog {
 public:
  using Remove = std::function<std::error_code(const std::filesystem::path&)>;

  /// `remove` deletes a file.
  OpenLayoutDialog(wxWindow* parent, SavedLayouts saved, Remove remove);

  std::optional<std::filesystem::path> chosen() const;

 private:
  void deleteSelected();
  void enableButtons();

  SavedLayouts saved_;
  std::vector<std::string> names_; ///< as the files have them; a row's data points to its own
  Remove remove_;
  wxListBox* rows_;
};

} // namespace trassix
