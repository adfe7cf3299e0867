#include "ui/dialogs/splash_dialog.h"

#include "ui/widgets/picture_panel.h"
#include "ui/widgets/railway_scene.h"

#include <wx/button.h>
#include <wx/graphics.h>
#include <wx/intl.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

namespace trassix {

namespace {

/// Dark letters by day and light ones by night stand out from the upper sky.
void paintTitle(const wxWindow& window, wxGraphicsContext& gc, bool night) {
  const wxColour ink = night ? wxColour(244, 246, 252) : wxColour(18, 42, 66);
  const double left = window.FromDIP(28);
  double top = window.FromDIP(18);
  const auto line = [&](const wxString& text, int points, bool bold) {
    gc.SetFont(wxFontInfo(points).Family(wxFONTFAMILY_SWISS).Bold(bold), ink);
    gc.DrawText(text, left, top);
    double height = 0.0;
    gc.GetTextExtent(text, nullptr, &height);
    top += height;
  };
  line("Trassix", 38, true);
  line(_("Plan the railway you want to run"), 13, false);
  line(wxString::Format(_("Version %s"), TRASSIX_VERSION), 10, false);
}

} // namespace

SplashDialog::SplashDialog(wxWindow* parent)
    : wxDialog(parent, wxID_ANY, _("Welcome to Trassix"), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE, "splash") {
  auto* picture = new PicturePanel(this, FromDIP(wxSize(640, 320)),
                                   [this](wxGraphicsContext& gc, const wxSize& size, bool night) {
                                     paintRailwayScene(gc, size, night);
                                     paintTitle(*this, gc, night);
                                   });
  picture->Bind(wxEVT_LEFT_DOWN, [this](wxMouseEvent&) { EndModal(wxID_OK); });

  auto* start = new wxButton(this, wxID_OK, _("Start &Planning"));
  start->SetToolTip(_("Opens an empty plan (Enter or Esc)"));
  start->SetDefault();
  start->SetFocus();
  SetEscapeId(wxID_OK);

  auto* row = new wxBoxSizer(wxHORIZONTAL);
  auto* advice =
      new wxStaticText(this, wxID_ANY, _("You can switch this picture off under Help > Options."));
  row->Add(advice, wxSizerFlags(1).CenterVertical());
  row->Add(start, wxSizerFlags().Border(wxLEFT, FromDIP(16)));
  auto* column = new wxBoxSizer(wxVERTICAL);
  column->Add(picture);
  column->Add(row, wxSizerFlags().Expand().Border(wxALL, FromDIP(12)));
  SetSizerAndFit(column);
  CentreOnParent();
}

} // namespace trassix
