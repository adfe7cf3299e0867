#pragma once

#include "document/layout.h"

#include <wx/panel.h>

#include <filesystem>
#include <functional>
#include <optional>
#include <vector>

class wxListCtrl;
class wxStaticText;

namespace trassix {

class PicturePanel;

/// A list of plans that are kept apart, beside a picture of the selected one. Its list is named
/// "storedPlans"; a double-click or Enter presses the dialog's OK button.
class PlanShowcase : public wxPanel {
 public:
  struct Column {
    wxString title;
    int width; ///< px at the usual resolution
  };
  struct Row {
    std::vector<wxString> cells;
    std::filesystem::path file;
    wxString note; ///< shown under the picture
  };

  /// `selected` is called when another row is, or none.
  PlanShowcase(wxWindow* parent, const std::vector<Column>& columns,
               std::function<void()> selected);

  /// Selects the first row.
  void show(std::vector<Row> rows);
  std::optional<std::size_t> chosen() const;
  void focusList();

 private:
  void showSelected();

  std::vector<Row> rows_;
  std::function<void()> selected_;
  wxListCtrl* list_;
  PicturePanel* picture_;
  wxStaticText* note_;
  trassix::Layout plan_; ///< in the picture
};

} // namespace trassix
