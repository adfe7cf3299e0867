#include "ui/piece_list.h"

#include "editing/canvas/piece_painter.h"
#include "editing/canvas/plan_colors.h"
#include "ui/gc_surface.h"
#include "ui/utf8.h"

#include <wx/dcclient.h>
#include <wx/dcmemory.h>
#include <wx/graphics.h>
#include <wx/settings.h>

#include <algorithm>
#include <cstdlib>

namespace trassix {

namespace {

constexpr int kPicture = 64; ///< width of the drawings, device independent
constexpr int kRow = 40;
constexpr int kDragThreshold = 4;

/// Pieces longer than this are drawn smaller instead of making all others tiny.
constexpr double kLongestToScale = 400;

wxColour systemColour(wxSystemColour which) {
  return wxSystemSettings::GetColour(which);
}

} // namespace

PieceList::PieceList(wxWindow* parent, std::function<void(const PieceDef&)> drag,
                     std::function<void(const PieceDef&)> activate)
    : wxVListBox(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxBORDER_THEME),
      drag_(std::move(drag)), activate_(std::move(activate)) {
  SetName("pieces");
  SetBackgroundColour(systemColour(wxSYS_COLOUR_LISTBOX));
  for (const auto& type : {wxEVT_LEFT_DOWN, wxEVT_LEFT_UP, wxEVT_MOTION})
    Bind(type, &PieceList::onMouse, this);
  Bind(wxEVT_LISTBOX_DCLICK, [this](wxCommandEvent&) {
    if (const PieceDef* piece = selected())
      activate_(*piece);
  });
  Bind(wxEVT_KEY_DOWN, [this](wxKeyEvent& event) {
    if (event.GetKeyCode() != WXK_RETURN && event.GetKeyCode() != WXK_NUMPAD_ENTER)
      event.Skip();
    else if (const PieceDef* piece = selected())
      activate_(*piece);
  });
}

void PieceList::setPieces(std::vector<const PieceDef*> pieces) {
  pieces_ = std::move(pieces);
  longest_ = 0;
  for (const PieceDef* piece : pieces_)
    longest_ = std::max(longest_, std::min(kLongestToScale * trackHalfWidth(piece->system) / 18.7,
                                           2 * trackGeometryOf(*piece).radius));
  SetItemCount(pieces_.size());
  SetSelection(pieces_.empty() ? wxNOT_FOUND : 0);
  RefreshAll();
}

const PieceDef* PieceList::selected() const {
  const int row = GetSelection();
  return row == wxNOT_FOUND ? nullptr : pieces_[static_cast<std::size_t>(row)];
}

double PieceList::scale() const {
  return (FromDIP(kPicture) - 4) / std::max(longest_, 1.0);
}

wxCoord PieceList::OnMeasureItem(size_t) const {
  return FromDIP(kRow);
}

void PieceList::OnDrawBackground(wxDC& dc, const wxRect& rect, size_t row) const {
  wxVListBox::OnDrawBackground(dc, rect, row);
}

void PieceList::OnDrawItem(wxDC& dc, const wxRect& rect, size_t row) const {
  const PieceDef& piece = *pieces_[row];
  const TrackGeometry& geometry = trackGeometryOf(piece);
  const int picture = FromDIP(kPicture);

  if (auto* context = wxGraphicsContext::CreateFromUnknownDC(dc)) {
    const std::unique_ptr<wxGraphicsContext> owned(context);
    GcSurface surface(*context);
    const double room = picture - 4;
    const double zoom = std::min(scale(), room / std::max(2 * geometry.radius, 1.0));
    const ViewTransform view = ViewTransform::ofScale(
        zoom, {rect.x + FromDIP(4) + picture / 2.0 - geometry.centre.x * zoom,
               rect.y + rect.height / 2.0 - geometry.centre.y * zoom});
    PieceLook look;
    look.bed = opaque(piece.ramp     ? plan_colors::kRampBed
                      : piece.bridge ? plan_colors::kBridgeBed
                                     : plan_colors::kBed);
    context->Clip(rect.x, rect.y, picture + FromDIP(8), rect.height);
    PiecePainter(surface, view).paint(geometry, {}, look);
    context->ResetClip();
  }

  const bool chosen = IsSelected(row);
  const wxColour ink = systemColour(chosen ? wxSYS_COLOUR_HIGHLIGHTTEXT : wxSYS_COLOUR_LISTBOXTEXT);
  const int left = rect.x + picture + FromDIP(12);
  dc.SetTextForeground(ink);
  dc.SetFont(GetFont().Bold());
  dc.DrawText(fromUtf8(piece.article), left, rect.y + FromDIP(4));
  dc.SetFont(GetFont().Smaller());
  // The article stands above: the name need not begin with it again.
  wxString name = fromUtf8(piece.name);
  const wxString prefix = fromUtf8(piece.article) + " ";
  if (name.StartsWith(prefix))
    name = name.Mid(prefix.length());
  if (name.StartsWith("- "))
    name = name.Mid(2);
  dc.DrawText(wxControl::Ellipsize(name, dc, wxELLIPSIZE_END, rect.GetRight() - left - 4), left,
              rect.y + FromDIP(21));
}

void PieceList::onMouse(wxMouseEvent& event) {
  event.Skip();
  if (event.LeftDown()) {
    pressedRow_ = VirtualHitTest(event.GetY());
    pressedAt_ = event.GetPosition();
  } else if (event.LeftUp()) {
    pressedRow_ = wxNOT_FOUND;
  } else if (event.Dragging() && pressedRow_ != wxNOT_FOUND) {
    const wxPoint moved = event.GetPosition() - pressedAt_;
    if (std::abs(moved.x) <= kDragThreshold && std::abs(moved.y) <= kDragThreshold)
      return;
    const PieceDef& piece = *pieces_[static_cast<std::size_t>(pressedRow_)];
    pressedRow_ = wxNOT_FOUND;
    if (HasCapture())
      ReleaseMouse();
    drag_(piece);
  }
}

} // namespace trassix
