#include "ui/dialogs/older_versions_dialog.h"

#include "app/desktop/path_text.h"
#include "app/services/local_time.h"
#include "document/plan_origin.h"
#include "ui/dialogs/plan_showcase.h"

#include <wx/button.h>
#include <wx/choice.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

namespace trassix {

OlderVersionsDialog::OlderVersionsDialog(wxWindow* parent, std::vector<VersionStore::Plan> plans,
                                         const std::filesystem::path& open)
    : wxDialog(parent, wxID_ANY, _("Older Versions"), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER, "olderVersions"),
      plans_(std::move(plans)) {
  const int gap = FromDIP(10);
  auto* prompt = new wxStaticText(this, wxID_ANY, _("&Plan:"));
  plan_ = new wxChoice(this, wxID_ANY);
  plan_->SetName("plan");
  int shown = 0;
  for (const VersionStore::Plan& plan : plans_) {
    const wxString name = toText(plan.file.stem());
    const int row = plan_->Append(plan.gone ? wxString::Format(_("%s (deleted)"), name) : name);
    if (!open.empty() && sameFile(plan.file, open))
      shown = row;
  }
  plan_->SetSelection(shown);
  showcase_ = new PlanShowcase(this, {{_("Saved"), 160}, {_("Pieces"), 70}}, [this] {
    FindWindow(wxID_OK)->Enable(showcase_->chosen().has_value());
  });
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  row->Add(prompt, wxSizerFlags().CenterVertical().Border(wxRIGHT, gap));
  row->Add(plan_, wxSizerFlags(1));
  auto* buttons = new wxBoxSizer(wxHORIZONTAL);
  buttons->AddStretchSpacer();
  buttons->Add(new wxButton(this, wxID_OK, _("&Open")), wxSizerFlags().Border(wxRIGHT, gap));
  buttons->Add(new wxButton(this, wxID_CANCEL, _("Cancel")));
  auto* column = new wxBoxSizer(wxVERTICAL);
  column->Add(row, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxTOP, gap));
  column->Add(showcase_, wxSizerFlags(1).Expand().Border(wxALL, gap));
  column->Add(buttons, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, gap));
  plan_->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { list(); });
  list();
  SetSizerAndFit(column);
  static_cast<wxButton*>(FindWindow(wxID_OK))->SetDefault();
  showcase_->focusList();
  CentreOnParent();
}

std::filesystem::path OlderVersionsDialog::chosen() const {
  const VersionStore::Plan& plan = plans_.at(static_cast<std::size_t>(plan_->GetSelection()));
  return plan.copies.at(showcase_->chosen().value_or(0));
}

void OlderVersionsDialog::list() {
  const VersionStore::Plan& plan = plans_.at(static_cast<std::size_t>(plan_->GetSelection()));
  std::vector<PlanShowcase::Row> rows;
  for (const std::filesystem::path& copy : plan.copies) {
    const VersionStore::Version version = VersionStore::versionIn(copy);
    rows.push_back({{localTimeText(version.when), wxString::Format("%zu", version.pieces)},
                    copy,
                    toText(plan.file)});
  }
  showcase_->show(std::move(rows));
}

} // namespace trassix
