#include "ui/widgets/wrapped_list.h"

#include "ui/widgets/wrapped_text.h"

#include <wx/dcclient.h>
#include <wx/settings.h>

namespace trassix {

namespace {

constexpr int kMargin = 6;

} // namespace

WrappedList::WrappedList(wxWindow* parent, const wxArrayString& rows, const wxString& name)
    : wxVListBox(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxBORDER_THEME) {
  SetName(name);
  SetFont(parent->GetFont());
  SetBackgroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_LISTBOX));
  setRows(rows);
  Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
    event.Skip();
    const int chosen = GetSelection();
    SetItemCount(rows_.size()); // the rows are as high as the width lets them be
    SetSelection(chosen);
  });
}

void WrappedList::setRows(const wxArrayString& rows) {
  rows_ = rows;
  SetItemCount(rows_.size());
  SetSelection(rows_.empty() ? wxNOT_FOUND : 0);
  RefreshAll();
}

wxArrayString WrappedList::linesOf(const wxDC& dc, size_t row) const {
  return wrappedLines(dc, rows_[row], GetClientSize().x - 2 * FromDIP(kMargin));
}

wxCoord WrappedList::OnMeasureItem(size_t row) const {
  wxClientDC dc(const_cast<WrappedList*>(this));
  dc.SetFont(GetFont());
  return static_cast<int>(linesOf(dc, row).size()) * dc.GetCharHeight() + FromDIP(kMargin);
}

void WrappedList::OnDrawItem(wxDC& dc, const wxRect& rect, size_t row) const {
  dc.SetFont(GetFont());
  dc.SetTextForeground(wxSystemSettings::GetColour(IsSelected(row) ? wxSYS_COLOUR_HIGHLIGHTTEXT
                                                                   : wxSYS_COLOUR_LISTBOXTEXT));
  int top = rect.y + FromDIP(kMargin) / 2;
  for (const wxString& line : linesOf(dc, row)) {
    dc.DrawText(line, rect.x + FromDIP(kMargin), top);
    top += dc.GetCharHeight();
  }
}

} // namespace trassix
