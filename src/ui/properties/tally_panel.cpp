#include "ui/properties/tally_panel.h"

#include "app/services/text_file.h"
#include "catalog/track_catalog.h"
#include "editing/selection/finding.h"
#include "editing/track/short_name.h"
#include "host/clipboard.h"
#include "host/workspace.h"
#include "measures/measure_format.h"
#include "panels/piece_names.h"
#include "ui/dialogs/purchase_list_dialog.h"
#include "ui/widgets/file_boxes.h"
#include "ui/widgets/save_box.h"
#include "ui/widgets/utf8.h"

#include <wx/button.h>
#include <wx/listctrl.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace trassix {

namespace {

struct ColumnLook {
  TallyColumn column;
  const char* heading; ///< shorter than in a file, to leave room for the names
  int width;           ///< device independent; 0: by what is to be shown
  wxListColumnFormat align;
};

constexpr std::array<ColumnLook, kTallyColumnCount> kColumns{
    {{TallyColumn::Placed, wxTRANSLATE("Qty"), 40, wxLIST_FORMAT_RIGHT},
     {TallyColumn::Article, wxTRANSLATE("Article"), 58, wxLIST_FORMAT_LEFT},
     {TallyColumn::Name, wxTRANSLATE("Name"), 0, wxLIST_FORMAT_LEFT},
     {TallyColumn::Sold, wxTRANSLATE("Need"), 48, wxLIST_FORMAT_RIGHT},
     {TallyColumn::System, wxTRANSLATE("System"), 0, wxLIST_FORMAT_LEFT}}};
constexpr int kNarrowestName = 56;
constexpr int kCellMargin = 16;
constexpr int kWidestSystem = 96; ///< tells apart even what does not fit

constexpr std::size_t placeOf(TallyColumn column) {
  return static_cast<std::size_t>(std::ranges::find(kColumns, column, &ColumnLook::column) -
                                  kColumns.begin());
}

TallyHeadings translatedHeadings() {
  TallyHeadings headings = tallyHeadings();
  for (std::string& heading : headings)
    heading = toUtf8(wxGetTranslation(fromUtf8(heading)));
  return headings;
}

bool severalSystems(const std::vector<TallyRow>& rows) {
  return !rows.empty() && std::ranges::any_of(rows, [&rows](const TallyRow& row) {
    return row.system != rows.front().system && row.section != TallySection::SupportsHeading;
  });
}

wxString systemText(const TallyRow& row) {
  return row.system ? fromUtf8(systemShortName(*row.system)) : wxString();
}

wxString nameText(const TallyRow& row, std::int32_t units) {
  if (row.section != TallySection::Pieces)
    return fromUtf8(row.name);
  const PieceDef* piece = row.system ? TrackCatalog::instance().find(row.article) : nullptr;
  return piece ? fromUtf8(nameInList(*piece, units)) : _("not in the catalogue");
}

wxString cellText(const TallyRow& row, TallyColumn column, std::int32_t units) {
  if (row.section == TallySection::SupportsHeading && column != TallyColumn::Name)
    return {};
  switch (column) {
  case TallyColumn::System:
    return systemText(row);
  case TallyColumn::Article:
    return fromUtf8(row.article);
  case TallyColumn::Name:
    return nameText(row, units);
  case TallyColumn::Placed:
    return wxString::Format("%d", row.placed);
  case TallyColumn::Sold:
    return wxString::Format("%d", row.sold);
  }
  return {};
}

} // namespace

/// Asks for the cells in view only, so that a large plan is shown at once. A row that is too long
/// for the panel is shown in full where the pointer rests on it.
class TallyList : public wxListCtrl {
 public:
  TallyList(wxWindow* parent, const Workspace& workspace, const std::vector<TallyRow>& rows)
      : wxListCtrl(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                   wxLC_REPORT | wxLC_SINGLE_SEL | wxLC_VIRTUAL, wxDefaultValidator, "tally"),
        workspace_(workspace), rows_(rows) {
    for (const ColumnLook& look : kColumns)
      AppendColumn(wxGetTranslation(look.heading), look.align, FromDIP(look.width));
    Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
      event.Skip();
      CallAfter(&TallyList::fitColumns); // by then it is known whether there is a scroll bar
    });
    Bind(wxEVT_MOTION, &TallyList::onMotion, this);
    for (wxWindow* child : GetChildren())
      child->Bind(wxEVT_MOTION, &TallyList::onMotion, this);
  }

  void showRows() {
    SetItemCount(static_cast<long>(rows_.size()));
    Refresh();
    fitColumns();
    tipped_ = -1;
  }

 private:
  wxString OnGetItemText(long item, long column) const override {
    const auto row = static_cast<std::size_t>(item);
    return row < rows_.size()
               ? cellText(rows_[row], kColumns.at(static_cast<std::size_t>(column)).column,
                          workspace_.units())
               : wxString();
  }

  /// Some platforms draw the rows in a window within this one, below that of the headings.
  wxWindow& rowsArea() {
    wxWindow* tallest = this;
    for (wxWindow* child : GetChildren())
      if (tallest == this || child->GetSize().y > tallest->GetSize().y)
        tallest = child;
    return *tallest;
  }

  /// Wide enough for the names in the list, which begin alike.
  int systemWidth() const {
    int widest = 0;
    std::optional<TrackSystem> measured;
    for (const TallyRow& row : rows_) {
      if (std::exchange(measured, row.system) != row.system)
        widest = std::max(widest, GetTextExtent(systemText(row)).x);
    }
    return std::min(widest + FromDIP(kCellMargin), FromDIP(kWidestSystem));
  }

  /// The name takes what the others leave. Which system a piece is of matters only where there are
  /// several; the column goes last, so that it can be away.
  void fitColumns() {
    const int system = severalSystems(rows_) ? systemWidth() : 0;
    int left = rowsArea().GetClientSize().x - system;
    for (std::size_t i = 0; i + 1 < kColumns.size(); ++i)
      left -= FromDIP(kColumns.at(i).width);
    if (left == fitted_)
      return; // a width that the user chose stays
    fitted_ = left;
    setWidth(placeOf(TallyColumn::System), system);
    setWidth(placeOf(TallyColumn::Name), std::max(left, FromDIP(kNarrowestName)));
  }

  void setWidth(std::size_t column, int width) {
    if (GetColumnWidth(static_cast<int>(column)) != width)
      SetColumnWidth(static_cast<int>(column), width);
  }

  void onMotion(wxMouseEvent& event) {
    event.Skip();
    wxWindow& area = rowsArea();
    int flags = 0;
    if (event.GetEventObject() == &area)
      showInFull(area, HitTest(event.GetPosition(), flags));
  }

  void showInFull(wxWindow& area, long item) {
    if (item == tipped_)
      return;
    tipped_ = item;
    const auto index = static_cast<std::size_t>(item);
    if (item < 0 || index >= rows_.size()) {
      area.UnsetToolTip();
      return;
    }
    const TallyRow& row = rows_[index];
    const wxString name = row.name.empty() ? nameText(row, workspace_.units())
                                           : fromUtf8(nameAfterArticle(row.name, row.article));
    const wxString system = systemText(row);
    area.SetToolTip(fromUtf8(row.article) + "  " + name + "\n" +
                    (system.empty() ? system : system + "\n") +
                    wxString::Format(_("%d on the plan, %d to order"), row.placed, row.sold));
  }

  const Workspace& workspace_;
  const std::vector<TallyRow>& rows_;
  int fitted_ = -1;  ///< what was left for the name
  long tipped_ = -1; ///< the row that the tool tip tells of
};

TallyPanel::TallyPanel(wxWindow* parent, Workspace& workspace)
    : wxPanel(parent), workspace_(workspace), list_(new TallyList(this, workspace, tally_.rows)),
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
  list_->Bind(wxEVT_LIST_ITEM_SELECTED,
              [this](wxListEvent& event) { showOnPlan(event.GetIndex()); });
  list_->Bind(wxEVT_LIST_COL_CLICK, [this](wxListEvent& event) {
    if (event.GetColumn() >= 0)
      sortBy(kColumns.at(static_cast<std::size_t>(event.GetColumn())).column);
  });
}

void TallyPanel::showOnPlan(long row) {
  if (tally_.rows.at(static_cast<std::size_t>(row)).section != TallySection::Pieces)
    return;
  const std::string& article = tally_.rows.at(static_cast<std::size_t>(row)).article;
  const std::vector<Pick> pieces = piecesOfArticle(workspace_.layout(), article);
  const auto box = selectThese(workspace_.layout(), pieces);
  selecting_ = true;
  workspace_.selectionChanged();
  workspace_.showSelected();
  selecting_ = false;
  if (box)
    workspace_.show(*box);
}

void TallyPanel::selectionChanged() {
  if (!selecting_ && list_->GetSelectedItemCount() > 0)
    list_->SetItemState(-1, 0, wxLIST_STATE_SELECTED);
}

void TallyPanel::recompute() {
  tally_ = tallyOf(workspace_.layout());
  fill();
}

void TallyPanel::sortBy(TallyColumn column) {
  ascending_ = column != column_ || !ascending_;
  column_ = column;
  list_->ShowSortIndicator(static_cast<int>(placeOf(column)), ascending_);
  fill();
}

void TallyPanel::fill() {
  // By system is how the tally comes, within it in the catalogue's order.
  if (column_ != TallyColumn::System || !ascending_)
    sortTally(tally_.rows, column_, ascending_);
  list_->showRows();
  showSummary();
}

void TallyPanel::showSummary() {
  const std::int32_t units = workspace_.units();
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
  workspace_.clipboard().put(tallyAsTable(tally_.rows, translatedHeadings()));
}

void TallyPanel::saveAsCsv() {
  const auto file = askWhereToSave(this, {_("Save Tally"), "tally", _("Tally.csv"),
                                          _("Comma-separated values (*.csv)|*.csv"), ".csv"});
  if (file)
    saveCsv(*file);
}

void TallyPanel::saveCsv(const std::filesystem::path& file) {
  // Without the mark some spreadsheets read UTF-8 as something else.
  constexpr const char* kByteOrderMark = "\xEF\xBB\xBF";
  FileReport report;
  const std::string message =
      writeBytes(file, kByteOrderMark + tallyAsCsv(tally_.rows, translatedHeadings()), &report);
  if (!message.empty())
    showFailure(this, _("Save Failed"), fromUtf8(message), report.reason);
}

void TallyPanel::openPurchaseList() {
  PurchaseListDialog(this, tally_.rows).ShowModal();
}

} // namespace trassix
