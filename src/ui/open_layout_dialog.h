#pragma once

#include "ui/saved_layouts.h"

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
  std::function<void(const std::filesystem::path&)> deleted_;
  wxListBox* names_;
};

} // namespace trassix
