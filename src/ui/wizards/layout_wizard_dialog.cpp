#include "ui/wizards/layout_wizard_dialog.h"

#include "document/layout.h"
#include "host/long_work.h"
#include "ui/widgets/accept_later.h"
#include "ui/widgets/remembered_size.h"
#include "ui/wizards/layout_proposals.h"
#include "ui/wizards/layout_questions.h"

#include <wx/button.h>
#include <wx/gauge.h>
#include <wx/simplebook.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include <cmath>
#include <utility>

namespace trassix {

namespace {

using namespace std::chrono_literals;

constexpr TimeSlice::Clock::duration kSlice = 20ms;
constexpr int kGaugeRange = 1000;

enum Page : std::size_t { kQuestions, kProposals };

} // namespace

LayoutWizardDialog::LayoutWizardDialog(wxWindow* parent, const trassix::Layout& plan,
                                       TrackSystem system, const PieceStock& stock,
                                       const std::string& stockProblem,
                                       const std::optional<RememberedLayout>& remembered)
    : wxDialog(parent, wxID_ANY, _("Layout Wizard"), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER, "layoutWizard"),
      plan_(plan), form_(plan, system, stock, remembered) {
  const int gap = FromDIP(10);
  pages_ = new wxSimplebook(this);
  questions_ = new LayoutQuestions(pages_, form_, stockProblem, [this] { stop(); });
  proposals_ = new LayoutProposals(
      pages_, plan, remembered ? LayoutPlacing::Replace : LayoutPlacing::Add,
      [this] { acceptLater(*this); },
      [this] {
        search_->searchOn();
        searching_ = true;
        follow();
      });
  pages_->AddPage(questions_, wxEmptyString);
  pages_->AddPage(proposals_, wxEmptyString);
  auto* column = new wxBoxSizer(wxVERTICAL);
  column->Add(pages_, wxSizerFlags(1).Expand().Border(wxALL, gap));
  column->Add(makeButtons(), wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, gap));
  SetSizerAndFit(column);
  showPage(kQuestions);
  rememberSize(*this);
  CentreOnParent();
  Bind(wxEVT_CHAR_HOOK, &LayoutWizardDialog::onKey, this);
  Bind(wxEVT_IDLE, &LayoutWizardDialog::onIdle, this);
}

wxSizer* LayoutWizardDialog::makeButtons() {
  busy_ = new wxStaticText(this, wxID_ANY, _("Searching"));
  gauge_ = new wxGauge(this, wxID_ANY, kGaugeRange, wxDefaultPosition, FromDIP(wxSize(220, -1)),
                       wxGA_HORIZONTAL | wxGA_SMOOTH, wxDefaultValidator, "layoutProgress");
  stop_ = new wxButton(this, wxID_STOP, _("&Stop"));
  stop_->SetToolTip(_("Leaves it at what was found so far"));
  back_ = new wxButton(this, wxID_BACKWARD, _("&Back"));
  back_->SetToolTip(_("To the questions, which are as they were answered"));
  find_ = new wxButton(this, wxID_FORWARD, _("Find &Layouts"));
  place_ = new wxButton(this, wxID_OK, _("P&lace on the Plan"));
  stop_->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { stop(); });
  back_->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) {
    stop();
    showPage(kQuestions);
  });
  find_->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { search(); });
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  for (wxWindow* item : std::initializer_list<wxWindow*>{busy_, gauge_, stop_})
    row->Add(item, wxSizerFlags().CenterVertical().Border(wxRIGHT, FromDIP(8)));
  row->AddStretchSpacer();
  for (wxButton* button : {back_, find_, place_, new wxButton(this, wxID_CANCEL)})
    row->Add(button, wxSizerFlags().Border(wxLEFT, FromDIP(8)));
  return row;
}

void LayoutWizardDialog::showPage(std::size_t page) {
  pages_->ChangeSelection(page);
  back_->Show(page == kProposals);
  place_->Show(page == kProposals);
  find_->Show(page == kQuestions);
  (page == kQuestions ? find_ : place_)->SetDefault();
  if (page == kQuestions)
    questions_->focusFirst();
  Layout();
  follow();
}

void LayoutWizardDialog::search() {
  search_.emplace(form_.task(), plan_.settings().units);
  shown_ = 0;
  searching_ = true;
  follow();
}

void LayoutWizardDialog::stop() {
  searching_ = false;
  if (shown_ > 0)
    proposals_->follow(searching_);
  follow();
}

void LayoutWizardDialog::follow() {
  find_->Enable(form_.ready() && !searching_);
  if (searching_)
    gauge_->SetValue(static_cast<int>(std::lround(search_->progress() * kGaugeRange)));
  if (gauge_->IsShown() == searching_)
    return;
  for (wxWindow* item : std::initializer_list<wxWindow*>{busy_, gauge_, stop_})
    item->Show(searching_);
  Layout();
}

void LayoutWizardDialog::onIdle(wxIdleEvent& event) {
  event.Skip();
  if (!searching_ || !IsModal())
    return;
  searching_ = false; // a step that fails is not taken again
  const TimeSlice slice(kSlice);
  do
    search_->step();
  while (!search_->done() && !slice.over());
  searching_ = !search_->done();
  const std::size_t before = std::exchange(shown_, search_->proposals().size());
  if (before == 0 && shown_ > 0) {
    showPage(kProposals);
    proposals_->show(*search_, searching_);
  } else if (shown_ > before || (shown_ > 0 && !searching_)) {
    proposals_->follow(searching_);
  }
  follow();
  if (!searching_ && search_->refusal())
    questions_->refuse(*search_->refusal());
  if (searching_)
    event.RequestMore();
}

void LayoutWizardDialog::onKey(wxKeyEvent& event) {
  // Lists and check boxes would keep Enter for themselves.
  const int key = event.GetKeyCode();
  wxButton* main = find_->IsShown() ? find_ : place_;
  if ((key != WXK_RETURN && key != WXK_NUMPAD_ENTER) || dynamic_cast<wxButton*>(FindFocus()))
    return event.Skip();
  if (!main->IsEnabled())
    return;
  wxCommandEvent press(wxEVT_BUTTON, main->GetId());
  press.SetEventObject(main);
  main->GetEventHandler()->AddPendingEvent(press);
}

const LayoutProposal* LayoutWizardDialog::chosen() const {
  return proposals_->anyChosen() ? &proposals_->chosen() : nullptr;
}

LayoutPlacing LayoutWizardDialog::placing() const {
  return proposals_->placing();
}

} // namespace trassix
