#pragma once

#include "ui/dialogs/saved_layouts.h"

#include <wx/dialog.h>

#include <functional>

class wxListBox;

namespace trassix {

/// Lists the saved plans, to open or delete one.
class OpenLayoutDialog : public wxDialog {
 public:
  /// `deleted` hears of each file that was deleted.
  OpenLayoutDialog(wxWindow* parent, SavedLayouts saved,
                   std::function<void(const std::filesystem::path&)> deleted);

  std::optional<std::filesystem::path> chosen() const;

 private:
  void deleteSelected();
  void enableButtons();

  SavedLayouts saved_;
  std::vector<std::string> names_; ///< as the files have them; a row's data points to its own
  std::function<void(const std::filesystem::path&)> deleted_;
  wxListBox* rows_;
};

} // namespace trassix
