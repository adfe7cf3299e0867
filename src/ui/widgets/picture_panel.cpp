#include "ui/widgets/picture_panel.h"

#include <wx/dcbuffer.h>
#include <wx/graphics.h>
#include <wx/settings.h>

#include <memory>
#include <utility>

namespace trassix {

PicturePanel::PicturePanel(wxWindow* parent, const wxSize& size, Painter painter)
    : wxPanel(parent, wxID_ANY, wxDefaultPosition, size), painter_(std::move(painter)) {
  SetBackgroundStyle(wxBG_STYLE_PAINT);
  SetMinSize(size);
  Bind(wxEVT_PAINT, [this](wxPaintEvent&) {
    wxAutoBufferedPaintDC dc(this);
    const std::unique_ptr<wxGraphicsContext> gc(wxGraphicsContext::Create(dc));
    if (gc) {
      painter_(*gc, GetClientSize(), darkTheme());
    }
  });
}

bool darkTheme() {
  return wxSystemSettings::GetAppearance().IsUsingDarkBackground();
}

wxColour problemColour() {
  return darkTheme() ? wxColour(255, 150, 140) : wxColour(176, 24, 16);
}

} // namespace trassix
