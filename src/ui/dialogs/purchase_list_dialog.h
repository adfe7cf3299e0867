#pragma once

#include "panels/owned_stock.h"
#include "panels/purchase_list.h"

#include <wx/dialog.h>

#include <vector>

class wxButton;
class wxListCtrl;
class wxSpinCtrl;
class wxStaticText;
class wxTextCtrl;

namespace trassix {

/// What the plan needs, what the user has at home and what is to buy. The stock is
/// remembered as soon as it changes.
class PurchaseListDialog : public wxDialog {
 public:
  PurchaseListDialog(wxWindow* parent, std::vector<TallyRow> tally);

  /// The address that the shop would be opened with; empty when nothing is to buy.
  wxString address() const;

 private:
  wxWindow* makeList();
  wxSizer* makeOwnedRow();
  wxSizer* makeButtons();
  void fill();
  void showRow(std::size_t row);
  void showSelected();
  void setOwned(int count);
  void saveStock();
  void showProblem(const std::string& problem);
  void openShop();

  std::vector<TallyRow> tally_;
  OwnedStock stock_;
  std::vector<PurchaseRow> rows_;
  wxListCtrl* list_;
  wxStaticText* article_;
  wxSpinCtrl* owned_;
  wxStaticText* summary_;
  wxStaticText* problem_;
  wxTextCtrl* address_;
  wxButton* open_;
};

} // namespace trassix
