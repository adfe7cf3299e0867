#include "ui/tally_panel.h"

#include "app/services/path_text.h"
#include "document/text_file.h"
#include "editing/canvas/layout_host.h"
#include "editing/measure_format.h"
#include "panels/piece_names.h"
#include "ui/purchase_list_dialog.h"
#include "ui/utf8.h"

#include <wx/button.h>
#include <wx/filedlg.h>
#include <wx/listctrl.h>
#include <wx/msgdlg.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include <algorithm>
#include <array>

namespace trassix {

namespace {

struct ColumnLook {
  TallyColumn column;
  int width; ///< device independent
  wxListColumnFormat align;
};

/// Counts first, so that they are seen in a narrow panel.
constexpr std::array<ColumnLook, kTallyColumnCount> kColumns{
    {{TallyColumn::Placed, 60, wxLIST_FORMAT_RIGHT},
     {TallyColumn::Article, 70, wxLIST_FORMAT_LEFT},
     {TallyColumn::Name, 220, wxLIST_FORMAT_LEFT},
     {TallyColumn::Sold, 72, wxLIST_FORMAT_RIGHT},
     {TallyColumn::System, 130, wxLIST_FORMAT_LEFT}}};

TallyHeadings translatedHeadings() {
  TallyHeadings headings = tallyHeadings();
  for (std::string& heading : headings)
    heading = toUtf8(wxGetTranslation(fromUtf8(heading)));
  return headings;
}

wxString cellText(const TallyRow& row, TallyColumn column) {
  switch (column) {
  case TallyColumn::System:
    return row.system ? fromUtf8(systemName(*row.system)) : wxString();
  case TallyColumn::Article:
    return fromUtf8(row.article);
  case TallyColumn::Name:
    return row.name.empty() ? _("not in the catalogue")
                            : fromUtf8(nameAfterArticle(row.name, row.article));
  case TallyColumn::Placed:
    return wxString::Format("%d", row.placed);
  case TallyColumn::Sold:
    return wxString::Format("%d", row.sold);
  }
  return {};
}

} // namespace

/// Asks for the cells in view only, so that a large plan is shown at once.
class TallyList : public wxListCtrl {
 public:
  TallyList(wxWindow* parent, const std::vector<TallyRow>& rows)
      : wxListCtrl(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                   wxLC_REPORT | wxLC_SINGLE_SEL | wxLC_VIRTUAL, wxDefaultValidator, "tally"),
        rows_(rows) {
    const TallyHeadings headings = translatedHeadings();
    for (const ColumnLook& look : kColumns)
      AppendColumn(fromUtf8(headings.at(static_cast<std::size_t>(look.column))), look.align,
                   FromDIP(look.width));
  }

 private:
  wxString OnGetItemText(long item, long column) const override {
    const auto row = static_cast<std::size_t>(item);
    return row < rows_.size()
               ? cellText(rows_[row], kColumns.at(static_cast<std::size_t>(column)).column)
               : wxString();
  }

  const std::vector<TallyRow>& rows_;
};

TallyPanel::TallyPanel(wxWindow* parent, LayoutHost& host)
    : wxPanel(parent), host_(host), list_(new TallyList(this, tally_.rows)),
      summary_(new wxStaticText(this, wxID_ANY, wxEmptyString)) {
  auto* title = new wxStaticText(this, wxID_ANY, _("Pieces on the plan"));
  title->SetFont(title->GetFont().Bold());
  const auto button = [this](const wxString& label, const char* name, const wxString& tip,
                             void (TallyPanel::*action)()) {
    auto* made = new wxButton(this, wxID_ANY, label, wxDefaultPosition, wxDefaultSize,
                              wxBU_EXACTFIT, wxDefaultValidator, name);
    made->SetToolTip(tip);
    made->SetMinSize(made->GetBestSize() + wxSize(FromDIP(14), 0));
    made->Bind(wxEVT_BUTTON, [this, action](wxCommandEvent&) { (this->*action)(); });
    return made;
  };
  auto* buttons = new wxBoxSizer(wxHORIZONTAL);
  buttons->Add(button(_("Copy"), "tally.copy", _("Copy the list as a table"), &TallyPanel::copy));
  buttons->AddSpacer(FromDIP(4));
  buttons->Add(button(_("Save..."), "tally.save", _("Save the list for a spreadsheet"),
                      &TallyPanel::saveAsCsv));
  buttons->AddSpacer(FromDIP(4));
  buttons->Add(button(_("Purchase List..."), "tally.purchase",
                      _("What to buy, less what you have at home"), &TallyPanel::openPurchaseList));
  const int gap = FromDIP(6);
  auto* sizer = new wxBoxSizer(wxVERTICAL);
  sizer->Add(title, wxSizerFlags().Border(wxALL, gap));
  sizer->Add(list_, wxSizerFlags(1).Expand());
  sizer->Add(summary_, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxTOP, gap));
  sizer->Add(buttons, wxSizerFlags().Border(wxALL, gap));
  SetSizer(sizer);
  list_->Bind(wxEVT_LIST_COL_CLICK, [this](wxListEvent& event) {
    if (event.GetColumn() >= 0)
      sortBy(kColumns.at(static_cast<std::size_t>(event.GetColumn())).column);
  });
}

void TallyPanel::recompute() {
  tally_ = tallyOf(host_.layout());
  fill();
}

void TallyPanel::sortBy(TallyColumn column) {
  ascending_ = column != column_ || !ascending_;
  column_ = column;
  const auto shown = std::ranges::find(kColumns, column, &ColumnLook::column);
  list_->ShowSortIndicator(static_cast<int>(shown - kColumns.begin()), ascending_);
  fill();
}

void TallyPanel::fill() {
  // By system is how the tally comes, within it in the catalogue's order.
  if (column_ != TallyColumn::System || !ascending_)
    sortTally(tally_.rows, column_, ascending_);
  list_->SetItemCount(static_cast<long>(tally_.rows.size()));
  list_->Refresh();
  showSummary();
}

void TallyPanel::showSummary() {
  const std::int32_t units = host_.layout().settings().units;
  const Box box = tally_.extent.value_or(Box());
  summary_->SetLabel(
      wxString::Format(_("Pieces: %d, open ends: %d"), tally_.pieces, tally_.openEnds) + "\n" +
      wxString::Format(_("Track length: %s"), fromUtf8(formatLength(tally_.trackLength, units))) +
      "\n" +
      wxString::Format(_("Track extent: %s"),
                       fromUtf8(formatSize(box.maxX - box.minX, box.maxY - box.minY, units))));
  Layout(); // not every platform does that when a text gets more lines
}

void TallyPanel::copy() {
  host_.putClipboard(tallyAsTable(tally_.rows, translatedHeadings()));
}

void TallyPanel::saveAsCsv() {
  wxFileDialog dialog(this, _("Save Tally"), wxEmptyString, _("Tally.csv"),
                      _("Comma-separated values (*.csv)|*.csv"), wxFD_SAVE | wxFD_OVERWRITE_PROMPT);
  if (dialog.ShowModal() != wxID_OK)
    return;
  std::filesystem::path file = toPath(dialog.GetPath());
  if (!file.has_extension()) {
    // The dialog has asked about the name as it was typed only.
    file += ".csv";
    std::error_code error;
    if (std::filesystem::exists(file, error) &&
        wxMessageBox(wxString::Format(_("\"%s\" exists. Replace it?"), fromUtf8(pathText(file))),
                     _("Save Tally"), wxYES_NO | wxICON_QUESTION, this) != wxYES)
      return;
  }
  saveCsv(file);
}

void TallyPanel::saveCsv(const std::filesystem::path& file) {
  const std::string message = writeTextFile(file, tallyAsCsv(tally_.rows, translatedHeadings()));
  if (!message.empty())
    wxMessageBox(fromUtf8(message), _("Save Failed"), wxOK | wxICON_ERROR, this);
}

void TallyPanel::openPurchaseList() {
  PurchaseListDialog(this, tally_.rows).ShowModal();
}

} // namespace trassix
