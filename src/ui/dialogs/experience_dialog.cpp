#include "ui/dialogs/experience_dialog.h"

#include "app/desktop/standard_folders.h"
#include "app/services/app_prefs.h"
#include "ui/widgets/once_running.h"
#include "ui/widgets/picture_panel.h"
#include "ui/widgets/railway_scene.h"

#include <wx/app.h>
#include <wx/button.h>
#include <wx/intl.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include <utility>

namespace trassix {

namespace {

/// Picture, button and explanation of one mode; the picture answers like the button.
wxSizer* makeCard(wxDialog* dialog, int id, PicturePanel::Painter painter, const wxString& label,
                  const wxString& explanation) {
  const wxSize pictureSize = dialog->FromDIP(wxSize(300, 150));
  auto* picture = new PicturePanel(dialog, pictureSize, std::move(painter));
  picture->SetCursor(wxCursor(wxCURSOR_HAND));
  picture->Bind(wxEVT_LEFT_DOWN, [dialog, id](wxMouseEvent&) { dialog->EndModal(id); });
  auto* button = new wxButton(dialog, id, label);
  button->Bind(wxEVT_BUTTON, [dialog, id](wxCommandEvent&) { dialog->EndModal(id); });
  auto* text = new wxStaticText(dialog, wxID_ANY, explanation);
  text->Wrap(pictureSize.x);

  auto* card = new wxBoxSizer(wxVERTICAL);
  card->Add(picture);
  card->Add(button, wxSizerFlags().Expand().Border(wxTOP | wxBOTTOM, dialog->FromDIP(8)));
  card->Add(text);
  return card;
}

} // namespace

ExperienceDialog::ExperienceDialog(wxWindow* parent)
    : wxDialog(parent, wxID_ANY, _("Choose Your Experience"), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE, "experience") {
  auto* cards = new wxBoxSizer(wxHORIZONTAL);
  cards->Add(makeCard(this, kPlayful, paintRailwayScene, _("Keep it Playful"),
                      _("A welcome at the start, and pictures in the help and the purchase "
                        "panel.")));
  cards->AddSpacer(FromDIP(20));
  cards->Add(makeCard(this, kBusiness, paintPlanScene, _("Down to Business"),
                      _("Straight to the empty plan, without decorative pictures. All tools are "
                        "the same.")));

  auto* row = new wxBoxSizer(wxHORIZONTAL);
  row->Add(new wxStaticText(this, wxID_ANY,
                            _("You can change your mind at any time under Help > Options.")),
           wxSizerFlags(1).CenterVertical());
  auto* later =
      new wxButton(this, wxID_CANCEL, appPrefs().asked ? _("Cancel") : _("Decide &Later"));
  later->SetToolTip(appPrefs().asked ? _("Keeps the present choice")
                                     : _("Asks again at the next start"));
  row->Add(later, wxSizerFlags().Border(wxLEFT, FromDIP(16)));

  auto* column = new wxBoxSizer(wxVERTICAL);
  column->Add(cards, wxSizerFlags().Expand());
  column->AddSpacer(FromDIP(16));
  column->Add(row, wxSizerFlags().Expand());
  auto* frame = new wxBoxSizer(wxVERTICAL);
  frame->Add(column, wxSizerFlags(1).Expand().Border(wxALL, FromDIP(16)));
  SetSizerAndFit(frame);
  CentreOnParent();

  auto* current = static_cast<wxButton*>(FindWindow(appPrefs().playful ? kPlayful : kBusiness));
  current->SetDefault();
  current->SetFocus();
}

void askExperience(wxWindow* parent) {
  ExperienceDialog dialog(parent);
  const int answer = dialog.ShowModal();
  if (answer == wxID_CANCEL) {
    return;
  }
  AppPrefs& prefs = appPrefs();
  prefs.playful = answer == ExperienceDialog::kPlayful;
  prefs.asked = true;
  writePrefs(prefs, StandardFolders::prefsFile());
}

void askExperienceOnceRunning() {
  onceRunning([] { askExperience(wxTheApp->GetTopWindow()); });
}

} // namespace trassix
