#include "ui/palette/catalog_list.h"

#include "ui/canvas/gc_surface.h"
#include "ui/widgets/system_theme.h"
#include "ui/widgets/wrapped_text.h"

#include <wx/dcclient.h>
#include <wx/dcmemory.h>
#include <wx/graphics.h>
#include <wx/settings.h>

#include <algorithm>
#include <cstdlib>
#include <memory>

namespace trassix {

namespace {

constexpr int kEntry = 46;
constexpr int kHeading = 24;
constexpr int kPadding = 4;
constexpr int kDragThreshold = 4;

wxColour systemColour(wxSystemColour which) {
  return wxSystemSettings::GetColour(which);
}

} // namespace

CatalogList::CatalogList(wxWindow* parent, const wxString& name, Actions actions)
    : wxVListBox(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxBORDER_NONE),
      actions_(std::move(actions)) {
  SetName(name);
  // Without its own the list would make a native list box at every look at its font or colour.
  SetFont(parent->GetFont());
  SetForegroundColour(systemColour(wxSYS_COLOUR_LISTBOXTEXT));
  SetBackgroundColour(systemColour(wxSYS_COLOUR_LISTBOX));
  for (const auto& type : {wxEVT_LEFT_DOWN, wxEVT_LEFT_UP, wxEVT_LEFT_DCLICK, wxEVT_MOTION,
                           wxEVT_RIGHT_DOWN, wxEVT_RIGHT_UP})
    Bind(type, &CatalogList::onMouse, this);
  Bind(wxEVT_LISTBOX_DCLICK, [this](wxCommandEvent&) { activateSelected(); });
  Bind(wxEVT_KEY_DOWN, &CatalogList::onKey, this);
  Bind(wxEVT_CHAR, &CatalogList::onChar, this);
  Bind(wxEVT_PAINT, &CatalogList::paintEmptyText, this);
  if (!actions_.remove)
    return;
  // Ahead of the menu's Del, which is about the plan.
  wxAcceleratorEntry entries[] = {{wxACCEL_NORMAL, WXK_DELETE, wxID_DELETE},
                                  {wxACCEL_NORMAL, WXK_NUMPAD_DELETE, wxID_DELETE}};
  SetAcceleratorTable(wxAcceleratorTable(static_cast<int>(std::size(entries)), entries));
  Bind(
      wxEVT_MENU,
      [this](wxCommandEvent&) {
        if (GetSelection() != wxNOT_FOUND)
          actions_.remove(static_cast<std::size_t>(GetSelection()));
      },
      wxID_DELETE);
}

void CatalogList::setRows(std::vector<CatalogRow> rows, const wxString& whenEmpty) {
  rows_ = std::move(rows);
  laid_.clear();
  whenEmpty_ = whenEmpty;
  pressedRow_ = wxNOT_FOUND;
  tipRow_ = wxNOT_FOUND;
  UnsetToolTip();
  SetItemCount(rows_.size());
  const auto first =
      std::find_if(rows_.begin(), rows_.end(), [](const CatalogRow& row) { return !row.heading; });
  SetSelection(first == rows_.end() ? wxNOT_FOUND : static_cast<int>(first - rows_.begin()));
  if (!rows_.empty())
    ScrollToRow(0);
  RefreshAll();
}

int CatalogList::rowsAboveSelection() const {
  const int row = GetSelection();
  const bool inView = row != wxNOT_FOUND && IsRowVisible(static_cast<size_t>(row));
  return inView ? row - static_cast<int>(GetVisibleRowsBegin()) : 0;
}

void CatalogList::select(std::size_t row, int rowsAbove) {
  const int top = static_cast<int>(row) - rowsAbove;
  ScrollToRow(static_cast<size_t>(std::max(top, 0)));
  SetSelection(static_cast<int>(row));
}

bool CatalogList::isEntry(int row) const {
  return row >= 0 && row < static_cast<int>(rows_.size()) &&
         !rows_[static_cast<std::size_t>(row)].heading;
}

void CatalogList::moveSelection(int step) {
  const int direction = step < 0 ? -1 : 1;
  int reached = GetSelection();
  for (int row = reached + direction, left = std::abs(step);
       left > 0 && row >= 0 && row < static_cast<int>(rows_.size()); row += direction) {
    if (isEntry(row)) {
      reached = row;
      --left;
    }
  }
  if (!isEntry(reached))
    return;
  SetSelection(reached);
  // Its heading comes into view together with the first entry.
  if (direction < 0 && reached > 0 && !isEntry(reached - 1) &&
      !IsRowVisible(static_cast<size_t>(reached - 1)))
    ScrollToRow(static_cast<size_t>(reached - 1));
}

void CatalogList::activateSelected() {
  if (isEntry(GetSelection()) && actions_.activate)
    actions_.activate(static_cast<std::size_t>(GetSelection()));
}

int CatalogList::rowsOnPage() const {
  return std::max(1, GetClientSize().y / FromDIP(kEntry) - 1);
}

void CatalogList::onKey(wxKeyEvent& event) {
  constexpr int kAll = 1 << 20;
  switch (event.GetKeyCode()) {
  case WXK_UP:
  case WXK_NUMPAD_UP:
    return moveSelection(-1);
  case WXK_DOWN:
  case WXK_NUMPAD_DOWN:
    return moveSelection(1);
  case WXK_PAGEUP:
  case WXK_NUMPAD_PAGEUP:
    return moveSelection(-rowsOnPage());
  case WXK_PAGEDOWN:
  case WXK_NUMPAD_PAGEDOWN:
    return moveSelection(rowsOnPage());
  case WXK_HOME:
  case WXK_NUMPAD_HOME:
    return moveSelection(-kAll);
  case WXK_END:
  case WXK_NUMPAD_END:
    return moveSelection(kAll);
  case WXK_RETURN:
  case WXK_NUMPAD_ENTER:
    return activateSelected();
  default:
    event.Skip();
  }
}

void CatalogList::onChar(wxKeyEvent& event) {
  const wxChar typed = event.GetUnicodeKey();
  if (event.HasModifiers() || typed <= WXK_SPACE || typed == WXK_DELETE || !actions_.typed)
    event.Skip();
  else
    actions_.typed(wxString(typed));
}

void CatalogList::onMouse(wxMouseEvent& event) {
  const int row = VirtualHitTest(event.GetY());
  if (event.ButtonDown() || event.ButtonDClick()) {
    SetFocus();
    if (!isEntry(row))
      return;
  }
  event.Skip();
  if (event.LeftDown()) {
    pressedRow_ = row;
    pressedAt_ = event.GetPosition();
  } else if (event.LeftUp()) {
    pressedRow_ = wxNOT_FOUND;
  } else if (event.RightDown()) {
    SetSelection(row);
  } else if (event.RightUp() && isEntry(row) && actions_.menu) {
    actions_.menu(static_cast<std::size_t>(row));
  } else if (event.Dragging() && pressedRow_ != wxNOT_FOUND && actions_.drag) {
    const wxPoint moved = event.GetPosition() - pressedAt_;
    if (std::abs(moved.x) <= kDragThreshold && std::abs(moved.y) <= kDragThreshold)
      return;
    const auto dragged = static_cast<std::size_t>(std::exchange(pressedRow_, wxNOT_FOUND));
    if (HasCapture())
      ReleaseMouse();
    actions_.drag(dragged);
  } else if (event.Moving() && row != tipRow_) {
    tipRow_ = row;
    SetToolTip(isEntry(row) ? rows_[static_cast<std::size_t>(row)].tip : wxString());
  }
}

int CatalogList::pictureWidth() const {
  // The words come first where there is too little room for both.
  return std::min(FromDIP(kPictureWidth), GetClientSize().x * 2 / 5);
}

/// Measuring words takes longer than drawing them.
const CatalogList::Laid& CatalogList::laidOut(std::size_t index) const {
  const int width = GetClientSize().x;
  if (std::exchange(laidFor_, width) != width || laid_.size() != rows_.size())
    laid_.assign(rows_.size(), {});
  std::optional<Laid>& laid = laid_[index];
  if (laid)
    return *laid;
  const CatalogRow& row = rows_[index];
  wxClientDC dc(const_cast<CatalogList*>(this));
  dc.SetFont(GetFont());
  const int room = width - pictureWidth() - FromDIP(4 * kPadding);
  laid.emplace();
  laid->detail =
      wxControl::Ellipsize(row.detail, dc, wxELLIPSIZE_END, room, wxELLIPSIZE_FLAGS_NONE);
  if (row.bold)
    dc.SetFont(GetFont().Bold());
  laid->title = wrappedLines(dc, row.title, room);
  laid->lineHeight = dc.GetCharHeight();
  const int lines = static_cast<int>(laid->title.size()) + (row.detail.empty() ? 0 : 1);
  const double picture = row.pictureHeight * pictureWidth() / FromDIP(kPictureWidth);
  laid->height = std::max({FromDIP(kEntry), FromDIP(static_cast<int>(picture) + 2 * kPadding),
                           lines * laid->lineHeight + FromDIP(kPadding)});
  return *laid;
}

wxCoord CatalogList::OnMeasureItem(size_t row) const {
  return rows_[row].heading ? FromDIP(kHeading) : laidOut(row).height;
}

void CatalogList::OnDrawBackground(wxDC& dc, const wxRect& rect, size_t row) const {
  if (!rows_[row].heading) {
    wxVListBox::OnDrawBackground(dc, rect, row);
    return;
  }
  dc.SetPen(*wxTRANSPARENT_PEN);
  dc.SetBrush(systemColour(wxSYS_COLOUR_BTNFACE));
  dc.DrawRectangle(rect);
}

void CatalogList::OnDrawItem(wxDC& dc, const wxRect& rect, size_t row) const {
  const CatalogRow& shown = rows_[row];
  if (!shown.heading) {
    drawEntry(dc, rect, row);
    return;
  }
  dc.SetFont(GetFont().Bold());
  dc.SetTextForeground(systemColour(wxSYS_COLOUR_BTNTEXT));
  dc.DrawText(shown.title, rect.x + FromDIP(6),
              rect.y + (rect.height - dc.GetTextExtent(shown.title).y) / 2);
}

void CatalogList::drawEntry(wxDC& dc, const wxRect& rect, std::size_t index) const {
  const CatalogRow& row = rows_[index];
  const Laid& laid = laidOut(index);
  const int picture = pictureWidth();
  const int padding = FromDIP(kPadding);
  const wxRect frame(rect.x, rect.y, picture + 2 * padding, rect.height);
  if (row.picture) {
    dc.SetPen(*wxTRANSPARENT_PEN);
    const Rgba sheet = systemTheme().board;
    dc.SetBrush(wxColour(sheet.r, sheet.g, sheet.b));
    dc.DrawRectangle(wxRect(frame).Deflate(padding / 2));
    // The context that the rows are drawn through anyway, where there is one.
    wxGraphicsContext* context = dc.GetGraphicsContext();
    std::unique_ptr<wxGraphicsContext> own;
    if (context == nullptr) {
      own.reset(wxGraphicsContext::CreateFromUnknownDC(dc));
      context = own.get();
    }
    if (context != nullptr) {
      context->PushState();
      context->Clip(frame.x, frame.y, frame.width, frame.height);
      GcSurface surface(*context, GetContentScaleFactor());
      row.picture(surface,
                  {{frame.x + frame.width / 2.0, frame.y + frame.height / 2.0},
                   {static_cast<double>(picture), static_cast<double>(rect.height - 2 * padding)}});
      context->PopState();
    }
  }
  const int left = frame.GetRight() + padding;
  dc.SetTextForeground(
      systemColour(IsSelected(index) ? wxSYS_COLOUR_HIGHLIGHTTEXT : wxSYS_COLOUR_LISTBOXTEXT));
  const int lines = static_cast<int>(laid.title.size()) + (row.detail.empty() ? 0 : 1);
  int top = rect.y + (rect.height - lines * laid.lineHeight) / 2;
  dc.SetFont(row.bold ? GetFont().Bold() : GetFont());
  for (const wxString& text : laid.title) {
    dc.DrawText(text, left, top);
    top += laid.lineHeight;
  }
  dc.SetFont(GetFont());
  dc.DrawText(laid.detail, left, top);
}

void CatalogList::paintEmptyText(wxPaintEvent& event) {
  if (!rows_.empty()) {
    event.Skip();
    return;
  }
  wxPaintDC dc(this);
  dc.SetBackground(GetBackgroundColour());
  dc.Clear();
  dc.SetFont(GetFont());
  dc.SetTextForeground(systemColour(wxSYS_COLOUR_LISTBOXTEXT));
  dc.DrawLabel(whenEmpty_, GetClientRect().Deflate(FromDIP(12)), wxALIGN_CENTRE_HORIZONTAL);
}

} // namespace trassix
