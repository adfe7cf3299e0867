#include "ui/dialogs/rescue_dialog.h"

#include "app/services/local_time.h"
#include "ui/dialogs/plan_showcase.h"
#include "ui/widgets/utf8.h"

#include <wx/button.h>
#include <wx/msgdlg.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

namespace trassix {

RescueDialog::RescueDialog(wxWindow* parent, std::vector<RescuedPlan> plans)
    : wxDialog(parent, wxID_ANY, _("Rescued Plans"), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER, "rescue"),
      plans_(std::move(plans)) {
  const int gap = FromDIP(10);
  showcase_ =
      new PlanShowcase(this, {{_("Plan"), 150}, {_("Kept at"), 150}, {_("Pieces"), 70}}, [this] {
        for (const int id : {wxID_OK, wxID_DELETE})
          FindWindow(id)->Enable(showcase_->chosen().has_value());
      });
  auto* buttons = new wxBoxSizer(wxHORIZONTAL);
  buttons->Add(new wxButton(this, wxID_DELETE, _("&Throw Away...")));
  buttons->AddStretchSpacer();
  buttons->Add(new wxButton(this, wxID_OK, _("&Open")), wxSizerFlags().Border(wxRIGHT, gap));
  buttons->Add(new wxButton(this, wxID_CANCEL, _("&Keep for Later")));
  FindWindow(wxID_CANCEL)
      ->SetToolTip(_("Asks again at the next start, and when the plan is opened"));
  auto* column = new wxBoxSizer(wxVERTICAL);
  column->Add(
      new wxStaticText(this, wxID_ANY, _("The program ended before these changes were saved:")),
      wxSizerFlags().Border(wxLEFT | wxRIGHT | wxTOP, gap));
  column->Add(showcase_, wxSizerFlags(1).Expand().Border(wxALL, gap));
  column->Add(buttons, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, gap));
  Bind(
      wxEVT_BUTTON, [this](wxCommandEvent&) { throwAwaySelected(); }, wxID_DELETE);
  list();
  SetSizerAndFit(column);
  static_cast<wxButton*>(FindWindow(wxID_OK))->SetDefault();
  showcase_->focusList();
  CentreOnParent();
}

RescuedPlan& RescueDialog::chosen() {
  return plans_.at(showcase_->chosen().value_or(0));
}

void RescueDialog::list() {
  std::vector<PlanShowcase::Row> rows;
  for (const RescuedPlan& plan : plans_)
    rows.push_back({{plan.name.empty() ? _("Unnamed") : fromUtf8(plan.name),
                     localTimeText(plan.when), wxString::Format("%zu", plan.pieces)},
                    plan.copy,
                    fromUtf8(plan.note())});
  showcase_->show(std::move(rows));
}

void RescueDialog::throwAwaySelected() {
  const auto row = showcase_->chosen();
  if (!row)
    return;
  if (wxMessageBox(_("Throw these changes away?"), _("Throw Away"),
                   wxYES_NO | wxNO_DEFAULT | wxICON_WARNING, this) != wxYES)
    return;
  plans_[*row].throwAway();
  plans_.erase(plans_.begin() + static_cast<std::ptrdiff_t>(*row));
  if (plans_.empty())
    EndModal(wxID_CANCEL);
  else
    list();
}

} // namespace trassix
