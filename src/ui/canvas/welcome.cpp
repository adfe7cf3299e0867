#include "ui/canvas/welcome.h"

#include "host/command_ids.h"
#include "ui/widgets/system_theme.h"
#include "ui/widgets/utf8.h"

#include <wx/dcbuffer.h>
#include <wx/settings.h>

#include <array>

namespace trassix {

namespace {

constexpr double kLinePx = 24;
constexpr double kWordsPx = 14;
constexpr double kAbovePx = 40; ///< the words' middle above that of the canvas

} // namespace

Welcome::Welcome(wxWindow* canvas) : label_(_("Open a sample plan...")) {
  // Not by the base's constructor: the canvas would take it for something that takes the focus.
  Create(canvas, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxBORDER_NONE, "welcome");
  SetBackgroundStyle(wxBG_STYLE_PAINT);
  SetCursor(wxCURSOR_HAND);
  SetToolTip(_("Opens a copy that belongs to no file yet"));
  SetSize(GetTextExtent(label_) + FromDIP(wxSize(32, 14)));
  Bind(wxEVT_PAINT, &Welcome::onPaint, this);
  Bind(wxEVT_LEFT_UP, [this](wxMouseEvent&) { openSample(); });
  canvas->Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
    event.Skip();
    const wxSize room = GetParent()->GetClientSize();
    Move((room.x - GetSize().x) / 2, room.y / 2 + FromDIP(16));
  });
}

void Welcome::paintWords(Surface& surface, SizePx size) {
  const std::array<wxString, 3> lines{_("Drag a piece from the palette onto the plan,"),
                                      _("or type its number and press Enter."),
                                      _("Each Enter then goes on by another one.")};
  double y = size.height / 2 - kAbovePx - kLinePx;
  for (const wxString& line : lines) {
    surface.text(toUtf8(line), {size.width / 2, y}, 0, {systemTheme().ruler, kWordsPx});
    y += kLinePx;
  }
}

void Welcome::onPaint(wxPaintEvent&) {
  wxAutoBufferedPaintDC dc(this);
  dc.SetPen(wxSystemSettings::GetColour(wxSYS_COLOUR_BTNSHADOW));
  dc.SetBrush(wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOW));
  dc.DrawRectangle(GetClientRect());
  dc.SetFont(GetFont());
  dc.SetTextForeground(wxSystemSettings::GetColour(wxSYS_COLOUR_HOTLIGHT));
  dc.DrawLabel(label_, GetClientRect(), wxALIGN_CENTRE);
}

void Welcome::openSample() {
  GetEventHandler()->AddPendingEvent(wxCommandEvent(wxEVT_MENU, kOpenSample));
}

} // namespace trassix
