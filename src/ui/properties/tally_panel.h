#pragma once

#include "panels/tally.h"

#include <wx/panel.h>

#include <filesystem>

class wxStaticText;

namespace trassix {

class Workspace;
class TallyList;

/// What the plan is made of, article by article.
class TallyPanel : public wxPanel {
 public:
  TallyPanel(wxWindow* parent, Workspace& workspace);

  void recompute();
  /// Something else is selected: no row tells of it any more.
  void selectionChanged();

  /// Tells the user when the file cannot be written.
  void saveCsv(const std::filesystem::path& file);

 private:
  void sortBy(TallyColumn column);
  void fill();
  /// Selects the pieces of a row on the plan and brings them into view.
  void showOnPlan(long row);
  void showSummary();
  void copy();
  void saveAsCsv();
  void openPurchaseList();

  Workspace& workspace_;
  Tally tally_;
  TallyColumn column_ = TallyColumn::System;
  bool ascending_ = true;
  bool selecting_ = false; ///< the pieces of a row
  TallyList* list_;
  wxStaticText* summary_;
};

} // namespace trassix
