#include "ui/purchase_list_dialog.h"

#include "app/services/app_prefs.h"
#include "app/services/user_paths.h"
#include "panels/piece_names.h"
#include "ui/picture_panel.h"
#include "ui/shopping_scene.h"
#include "ui/utf8.h"

#include <wx/button.h>
#include <wx/listctrl.h>
#include <wx/msgdlg.h>
#include <wx/sizer.h>
#include <wx/spinctrl.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/utils.h>

#include <numeric>

namespace trassix {

namespace {

enum Column { kArticle, kName, kNeeded, kOwned, kToBuy };

std::filesystem::path stockFile() {
  return UserPaths::layoutsFolder() / kOwnedFileName;
}

} // namespace

PurchaseListDialog::PurchaseListDialog(wxWindow* parent, std::vector<TallyRow> tally)
    : wxDialog(wxGetTopLevelParent(parent), wxID_ANY, _("Purchase List"), wxDefaultPosition,
               wxDefaultSize, wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER, "purchaseList"),
      tally_(std::move(tally)),
      list_(new wxListCtrl(this, wxID_ANY, wxDefaultPosition, FromDIP(wxSize(620, 260)),
                           wxLC_REPORT | wxLC_SINGLE_SEL, wxDefaultValidator, "purchases")),
      summary_(new wxStaticText(this, wxID_ANY, wxEmptyString)),
      problem_(new wxStaticText(this, wxID_ANY, fromUtf8(stock_.load(stockFile())))),
      address_(new wxTextCtrl(this, wxID_ANY, wxEmptyString, wxDefaultPosition,
                              FromDIP(wxSize(-1, 64)), wxTE_MULTILINE | wxTE_READONLY,
                              wxDefaultValidator, "address")) {
  buildList();
  auto* ownedRow = makeOwnedRow();
  auto* buttons = new wxBoxSizer(wxHORIZONTAL);
  auto* open = new wxButton(this, wxID_ANY, _("Open in &Browser"), wxDefaultPosition, wxDefaultSize,
                            0, wxDefaultValidator, "openShop");
  open->SetToolTip(_("Opens the address above with your browser"));
  buttons->Add(summary_, wxSizerFlags(1).CenterVertical());
  buttons->Add(open, wxSizerFlags().Border(wxRIGHT, FromDIP(8)));
  buttons->Add(new wxButton(this, wxID_CANCEL, _("Close")));

  const int gap = FromDIP(10);
  auto* column = new wxBoxSizer(wxVERTICAL);
  if (appPrefs().playful) {
    auto* picture = new PicturePanel(this, FromDIP(wxSize(620, 110)), paintShoppingScene);
    picture->SetName("purchasePicture");
    column->Add(picture, wxSizerFlags().Expand());
  }
  column->Add(list_, wxSizerFlags(1).Expand().Border(wxLEFT | wxRIGHT | wxTOP, gap));
  column->Add(ownedRow, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxTOP, gap));
  column->Add(problem_, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxTOP, gap));
  column->Add(
      new wxStaticText(this, wxID_ANY, _("Address of the shop's cart with what is to buy:")),
      wxSizerFlags().Border(wxLEFT | wxRIGHT | wxTOP, gap));
  column->Add(address_, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxTOP, gap));
  column->Add(buttons, wxSizerFlags().Expand().Border(wxALL, gap));
  problem_->Show(!problem_->GetLabel().empty());
  SetSizerAndFit(column);
  SetEscapeId(wxID_CANCEL);
  CentreOnParent();

  list_->Bind(wxEVT_LIST_ITEM_SELECTED, [this](wxListEvent&) { showSelected(); });
  owned_->Bind(wxEVT_SPINCTRL, [this](wxSpinEvent& event) { setOwned(event.GetPosition()); });
  owned_->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { setOwned(owned_->GetValue()); });
  open->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { openShop(); });
  fill();
}

void PurchaseListDialog::buildList() {
  list_->AppendColumn(_("Article"), wxLIST_FORMAT_LEFT, FromDIP(80));
  list_->AppendColumn(_("Name"), wxLIST_FORMAT_LEFT, FromDIP(290));
  list_->AppendColumn(_("Needed"), wxLIST_FORMAT_RIGHT, FromDIP(76));
  list_->AppendColumn(_("Owned"), wxLIST_FORMAT_RIGHT, FromDIP(76));
  list_->AppendColumn(_("To buy"), wxLIST_FORMAT_RIGHT, FromDIP(76));
}

wxSizer* PurchaseListDialog::makeOwnedRow() {
  article_ = new wxStaticText(this, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize,
                              wxST_ELLIPSIZE_END);
  owned_ = new wxSpinCtrl(this, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize,
                          wxSP_ARROW_KEYS, 0, OwnedStock::kMost, 0, "owned");
  owned_->Disable();
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  row->Add(new wxStaticText(this, wxID_ANY, _("You own:")), wxSizerFlags().CenterVertical());
  row->Add(owned_, wxSizerFlags().Border(wxLEFT | wxRIGHT, FromDIP(8)));
  row->Add(article_, wxSizerFlags(1).CenterVertical());
  return row;
}

void PurchaseListDialog::fill() {
  rows_ = purchaseList(tally_, stock_);
  for (std::size_t row = 0; row < rows_.size(); ++row) {
    if (static_cast<int>(row) >= list_->GetItemCount())
      list_->InsertItem(static_cast<long>(row), wxEmptyString);
    showRow(row);
  }
  const auto sum = [this](std::int32_t PurchaseRow::*count) {
    return std::accumulate(
        rows_.begin(), rows_.end(), 0,
        [count](int total, const PurchaseRow& row) { return total + row.*count; });
  };
  summary_->SetLabel(wxString::Format(_("Needed: %d    To buy: %d"), sum(&PurchaseRow::needed),
                                      sum(&PurchaseRow::toBuy)));
  const wxString shop = address();
  address_->ChangeValue(shop.empty() ? _("Nothing is to buy.") : shop);
  FindWindow("openShop")->Enable(!shop.empty());
  if (list_->GetSelectedItemCount() == 0 && !rows_.empty())
    list_->SetItemState(0, wxLIST_STATE_SELECTED | wxLIST_STATE_FOCUSED,
                        wxLIST_STATE_SELECTED | wxLIST_STATE_FOCUSED);
}

void PurchaseListDialog::showRow(std::size_t row) {
  const PurchaseRow& shown = rows_[row];
  const auto set = [this, row](Column column, const wxString& text) {
    if (list_->GetItemText(static_cast<long>(row), column) != text)
      list_->SetItem(static_cast<long>(row), column, text);
  };
  set(kArticle, fromUtf8(shown.article));
  set(kName, shown.name.empty() ? _("not in the catalogue")
                                : fromUtf8(nameAfterArticle(shown.name, shown.article)));
  set(kNeeded, wxString::Format("%d", shown.needed));
  set(kOwned, wxString::Format("%d", shown.owned));
  set(kToBuy, wxString::Format("%d", shown.toBuy));
}

void PurchaseListDialog::showSelected() {
  const long row = list_->GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED);
  if (row < 0)
    return;
  const PurchaseRow& shown = rows_[static_cast<std::size_t>(row)];
  owned_->Enable();
  owned_->SetValue(shown.owned);
  article_->SetLabel(
      wxString::Format(_("of %s"), fromUtf8(shown.name.empty() ? shown.article : shown.name)));
  Layout();
}

void PurchaseListDialog::setOwned(int count) {
  const long row = list_->GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED);
  if (row < 0 || rows_[static_cast<std::size_t>(row)].owned == count)
    return;
  stock_.set(rows_[static_cast<std::size_t>(row)].article, count);
  fill();
  saveStock();
}

void PurchaseListDialog::saveStock() {
  const std::string message = stock_.save(stockFile());
  problem_->SetLabel(fromUtf8(message));
  if (problem_->IsShown() == message.empty()) {
    problem_->Show(!message.empty());
    Layout();
  }
}

wxString PurchaseListDialog::address() const {
  return fromUtf8(cartUrl(TRASSIX_SHOP_HOST, rows_));
}

void PurchaseListDialog::openShop() {
  if (!wxLaunchDefaultBrowser(address()))
    wxMessageBox(_("The browser could not be opened."), _("Purchase List"), wxOK | wxICON_ERROR,
                 this);
}

} // namespace trassix
