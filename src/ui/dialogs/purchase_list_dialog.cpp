#include "ui/dialogs/purchase_list_dialog.h"

#include "app/desktop/standard_folders.h"
#include "app/desktop/user_paths.h"
#include "app/services/app_prefs.h"
#include "app/services/program_memory.h"
#include "panels/piece_names.h"
#include "ui/widgets/picture_panel.h"
#include "ui/widgets/problem_text.h"
#include "ui/widgets/remembered_size.h"
#include "ui/widgets/shopping_scene.h"
#include "ui/widgets/utf8.h"

#include <wx/button.h>
#include <wx/listctrl.h>
#include <wx/log.h>
#include <wx/msgdlg.h>
#include <wx/sizer.h>
#include <wx/spinctrl.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/utils.h>

#include <algorithm>
#include <numeric>

namespace trassix {

namespace {

constexpr int kWidth = 620;

enum Column { kArticle, kName, kNeeded, kOwned, kToBuy };

ProgramMemory memory() {
  return ProgramMemory(StandardFolders::memoryFile());
}

} // namespace

PurchaseListDialog::PurchaseListDialog(wxWindow* parent, std::vector<TallyRow> tally)
    : wxDialog(wxGetTopLevelParent(parent), wxID_ANY, _("Purchase List"), wxDefaultPosition,
               wxDefaultSize, wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER, "purchaseList"),
      tally_(std::move(tally)) {
  const int gap = FromDIP(10);
  auto* column = new wxBoxSizer(wxVERTICAL);
  if (appPrefs().playful) {
    auto* picture = new PicturePanel(this, FromDIP(wxSize(kWidth, 110)), paintShoppingScene);
    picture->SetName("purchasePicture");
    column->Add(picture, wxSizerFlags().Expand());
  }
  // In the order in which Tab goes through them.
  const auto add = [column, gap](auto* item, int share = 0) {
    column->Add(item, wxSizerFlags(share).Expand().Border(wxLEFT | wxRIGHT | wxTOP, gap));
  };
  add(makeList(), 1);
  add(makeOwnedRow());
  problem_ = new wxStaticText(this, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize, 0,
                              "purchaseProblem");
  problem_->SetForegroundColour(problemColour());
  add(problem_);
  add(new wxStaticText(this, wxID_ANY, _("Address of the shop's cart with what is to buy:")));
  address_ =
      new wxTextCtrl(this, wxID_ANY, wxEmptyString, wxDefaultPosition, FromDIP(wxSize(-1, 64)),
                     wxTE_MULTILINE | wxTE_READONLY, wxDefaultValidator, "address");
  add(address_);
  add(makeButtons());
  column->AddSpacer(gap);
  SetSizer(column);
  SetEscapeId(wxID_CANCEL);
  showProblem(stock_.load(memory(), UserPaths::layoutsFolder() / OwnedStock::kOlderFileName));
  fill();
  column->SetSizeHints(this);
  rememberSize(*this);
  CentreOnParent();
}

wxWindow* PurchaseListDialog::makeList() {
  list_ = new wxListCtrl(this, wxID_ANY, wxDefaultPosition, FromDIP(wxSize(kWidth, 260)),
                         wxLC_REPORT | wxLC_SINGLE_SEL, wxDefaultValidator, "purchases");
  list_->AppendColumn(_("Article"), wxLIST_FORMAT_LEFT, FromDIP(80));
  list_->AppendColumn(_("Name"), wxLIST_FORMAT_LEFT, FromDIP(290));
  list_->AppendColumn(_("Needed"), wxLIST_FORMAT_RIGHT, FromDIP(76));
  list_->AppendColumn(_("Owned"), wxLIST_FORMAT_RIGHT, FromDIP(76));
  list_->AppendColumn(_("To buy"), wxLIST_FORMAT_RIGHT, FromDIP(76));
  list_->Bind(wxEVT_LIST_ITEM_SELECTED, [this](wxListEvent&) { showSelected(); });
  return list_;
}

wxSizer* PurchaseListDialog::makeOwnedRow() {
  auto* prompt = new wxStaticText(this, wxID_ANY, _("You own:"));
  owned_ = new wxSpinCtrl(this, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize,
                          wxSP_ARROW_KEYS, 0, OwnedStock::kMost, 0, "owned");
  owned_->Disable();
  owned_->Bind(wxEVT_SPINCTRL, [this](wxSpinEvent& event) { setOwned(event.GetPosition()); });
  owned_->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { setOwned(owned_->GetValue()); });
  article_ = new wxStaticText(this, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize,
                              wxST_ELLIPSIZE_END);
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  row->Add(prompt, wxSizerFlags().CenterVertical());
  row->Add(owned_, wxSizerFlags().Border(wxLEFT | wxRIGHT, FromDIP(8)));
  row->Add(article_, wxSizerFlags(1).CenterVertical());
  return row;
}

wxSizer* PurchaseListDialog::makeButtons() {
  summary_ = new wxStaticText(this, wxID_ANY, wxEmptyString);
  open_ = new wxButton(this, wxID_ANY, _("Open in &Browser"), wxDefaultPosition, wxDefaultSize, 0,
                       wxDefaultValidator, "openShop");
  open_->SetToolTip(_("Opens the address above with your browser"));
  open_->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { openShop(); });
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  row->Add(summary_, wxSizerFlags(1).CenterVertical());
  row->Add(open_, wxSizerFlags().Border(wxRIGHT, FromDIP(8)));
  row->Add(new wxButton(this, wxID_CANCEL, _("Close")));
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
  open_->Enable(!shop.empty());
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
  owned_->Enable(!stock_.unreadable());
  owned_->SetValue(shown.owned);
  article_->SetLabelText(
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
  showProblem(stock_.save(memory()));
}

void PurchaseListDialog::showProblem(const std::string& problem) {
  showWrapped(*problem_, fromUtf8(problem), std::max(list_->GetSize().x, FromDIP(kWidth)));
  problem_->Show(!problem.empty());
  Layout();
}

wxString PurchaseListDialog::address() const {
  return fromUtf8(cartUrl(TRASSIX_SHOP_HOST, rows_));
}

void PurchaseListDialog::openShop() {
  const wxLogNull quiet; // of the toolkit's own words
  if (!wxLaunchDefaultBrowser(address()))
    wxMessageBox(_("The browser could not be opened."), _("Purchase List"), wxOK | wxICON_ERROR,
                 this);
}

} // namespace trassix
