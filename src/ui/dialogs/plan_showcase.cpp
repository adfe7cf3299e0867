#include "ui/dialogs/plan_showcase.h"

#include "document/plan_file.h"
#include "ui/canvas/small_pictures.h"
#include "ui/widgets/accept_later.h"
#include "ui/widgets/picture_panel.h"
#include "ui/widgets/problem_text.h"
#include "ui/widgets/utf8.h"

#include <wx/dialog.h>
#include <wx/listctrl.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include <algorithm>
#include <numeric>

namespace trassix {

namespace {

constexpr int kPictureWidth = 380;
constexpr int kPictureHeight = 270;

} // namespace

PlanShowcase::PlanShowcase(wxWindow* parent, const std::vector<Column>& columns,
                           std::function<void()> selected)
    : wxPanel(parent), selected_(std::move(selected)) {
  const int gap = FromDIP(10);
  const int width = std::accumulate(columns.begin(), columns.end(), 24,
                                    [](int sum, const auto& c) { return sum + c.width; });
  list_ = new wxListCtrl(this, wxID_ANY, wxDefaultPosition, FromDIP(wxSize(width, kPictureHeight)),
                         wxLC_REPORT | wxLC_SINGLE_SEL, wxDefaultValidator, "storedPlans");
  for (const Column& column : columns)
    list_->AppendColumn(column.title,
                        &column == &columns.back() ? wxLIST_FORMAT_RIGHT : wxLIST_FORMAT_LEFT,
                        FromDIP(column.width));
  picture_ = new PicturePanel(this, FromDIP(wxSize(kPictureWidth, kPictureHeight)),
                              [this](wxGraphicsContext& context, const wxSize& size, bool) {
                                paintSmallPlan(context, size, plan_);
                              });
  picture_->SetName("planPicture");
  note_ = new wxStaticText(this, wxID_ANY, wxEmptyString);
  note_->SetMinSize({-1, 3 * GetCharHeight()});
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  row->Add(list_, wxSizerFlags().Expand());
  row->Add(picture_, wxSizerFlags(1).Expand().Border(wxLEFT, gap));
  auto* column = new wxBoxSizer(wxVERTICAL);
  column->Add(row, wxSizerFlags(1).Expand());
  column->Add(note_, wxSizerFlags().Expand().Border(wxTOP, gap));
  SetSizer(column);

  for (const auto& type : {wxEVT_LIST_ITEM_SELECTED, wxEVT_LIST_ITEM_DESELECTED})
    list_->Bind(type, [this](wxListEvent&) { showSelected(); });
  list_->Bind(wxEVT_LIST_ITEM_ACTIVATED, [this](wxListEvent&) {
    acceptLater(dynamic_cast<wxDialog&>(*wxGetTopLevelParent(this)));
  });
}

void PlanShowcase::show(std::vector<Row> rows) {
  rows_ = std::move(rows);
  list_->DeleteAllItems();
  for (std::size_t row = 0; row < rows_.size(); ++row)
    for (std::size_t cell = 0; cell < rows_[row].cells.size(); ++cell) {
      if (cell == 0)
        list_->InsertItem(static_cast<long>(row), rows_[row].cells[0]);
      else
        list_->SetItem(static_cast<long>(row), static_cast<int>(cell), rows_[row].cells[cell]);
    }
  if (rows_.empty())
    return showSelected();
  list_->SetItemState(0, wxLIST_STATE_SELECTED | wxLIST_STATE_FOCUSED,
                      wxLIST_STATE_SELECTED | wxLIST_STATE_FOCUSED);
}

std::optional<std::size_t> PlanShowcase::chosen() const {
  const long row = list_->GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED);
  if (row < 0 || static_cast<std::size_t>(row) >= rows_.size())
    return {};
  return static_cast<std::size_t>(row);
}

void PlanShowcase::focusList() {
  list_->SetFocus();
}

void PlanShowcase::showSelected() {
  wxString note;
  plan_.clear();
  if (const auto row = chosen()) {
    PlanFile plan = readPlanFile(rows_[*row].file);
    note = plan.result.failed() ? fromUtf8(plan.result.message) : rows_[*row].note;
    if (!plan.result.failed())
      plan_ = std::move(plan.layout);
    plan_.clearSelection();
  }
  showWrapped(*note_, note, std::max(GetClientSize().x, GetBestSize().x));
  Layout();
  picture_->Refresh();
  selected_();
}

} // namespace trassix
