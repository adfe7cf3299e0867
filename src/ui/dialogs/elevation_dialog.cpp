#include "ui/dialogs/elevation_dialog.h"

#include "document/layout.h"
#include "host/workspace.h"
#include "ui/dialogs/elevation_profile.h"
#include "ui/widgets/problem_text.h"
#include "ui/widgets/utf8.h"
#include "ui/widgets/whole_window.h"

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/sizer.h>
#include <wx/textctrl.h>

#include <array>

namespace trassix {

namespace {

using Task = ElevationForm::Task;
using Field = ElevationForm::Field;
using Switch = ElevationForm::Switch;

constexpr int kTextWidth = 440; // px

/// By the number of the task, the field and the switch.
constexpr std::array<const char*, ElevationForm::kTasks> kTasks{
    wxTRANSLATE("Climb to a target height"),
    wxTRANSLATE("Set a grade"),
    wxTRANSLATE("Raise or lower all that hangs together"),
    wxTRANSLATE("Level out the selected track"),
    wxTRANSLATE("Ease the changes of grade"),
    wxTRANSLATE("Height of one end")};

struct FieldRow {
  const char* label;
  const char* name;
};
constexpr std::array<FieldRow, ElevationForm::kFields> kFields{{
    {wxTRANSLATE("&Height:"), "elevationHeight"},
    {wxTRANSLATE("&Rise:"), "elevationRise"},
    {wxTRANSLATE("&Grade in %:"), "elevationPercent"},
    {wxTRANSLATE("Grade in &degrees:"), "elevationDegrees"},
    {wxTRANSLATE("&No steeper than %:"), "elevationLimit"},
    {wxTRANSLATE("Over a &length:"), "elevationLength"},
}};
constexpr std::array<FieldRow, ElevationForm::kSwitches> kSwitches{{
    {wxTRANSLATE("&Eased at both ends"), "elevationEased"},
    {wxTRANSLATE("&As steep as allowed, then level"), "elevationSteep"},
    {wxTRANSLATE("&Open: track joined later goes on climbing"), "elevationOpen"},
    {wxTRANSLATE("Only the &piece at \"From\""), "elevationAlone"},
    {wxTRANSLATE("T&ilt this piece alone"), "elevationTilt"},
    {wxTRANSLATE("&Spread the difference over the rest of the loop"), "elevationSpread"},
}};

} // namespace

ElevationDialog::ElevationDialog(wxWindow* parent, Workspace& workspace)
    : wxDialog(parent, wxID_ANY, _("Elevation"), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE, "elevation"),
      form_(workspace.layout()), preview_(workspace) {
  const int gap = FromDIP(10);
  auto* page = new wxBoxSizer(wxVERTICAL);
  page->Add(makeChoices(), wxSizerFlags().Expand().Border(wxALL, gap));
  page->Add(makeFields(), wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, gap));
  addSwitches(*page);
  profile_ = new ElevationProfile(this, FromDIP(wxSize(kTextWidth, 110)), form_, workspace.units());
  page->Add(profile_, wxSizerFlags().Expand().Border(wxALL, gap));
  problem_ = new ProblemText(this, FromDIP(kTextWidth), 3);
  summary_ = new wxStaticText(this, wxID_ANY, wxEmptyString, wxDefaultPosition, problem_->GetSize(),
                              wxST_NO_AUTORESIZE, "elevationSummary");
  page->Add(summary_, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT, gap));
  page->Add(problem_, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT, gap));
  turn_ = new wxButton(this, wxID_ANY, _("T&urn Round"));
  turn_->SetName("elevationTurn");
  turn_->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) {
    form_.turnRound();
    showEnds();
  });
  ok_ = new wxButton(this, wxID_OK, _("Set Heigh&ts"));
  auto* buttons = new wxStdDialogButtonSizer;
  buttons->AddButton(ok_);
  buttons->AddButton(new wxButton(this, wxID_CANCEL));
  buttons->Realize();
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  row->Add(turn_, wxSizerFlags().CenterVertical());
  row->AddStretchSpacer();
  row->Add(buttons);
  page->Add(row, wxSizerFlags().Expand().Border(wxALL, gap));
  ok_->SetDefault();
  showEnds();
  SetSizerAndFit(page);
  placeBeside(*this, *parent);
  wxTextCtrl* height = fields_[static_cast<std::size_t>(Field::Height)];
  height->SetFocus();
  height->SelectAll();
}

wxChoice* ElevationDialog::addChoice(wxFlexGridSizer& grid, const wxString& label, const char* name,
                                     const std::function<void(std::size_t)>& chosen) {
  auto* text = new wxStaticText(this, wxID_ANY, label);
  auto* choice = new wxChoice(this, wxID_ANY);
  choice->SetName(name);
  choice->Bind(wxEVT_CHOICE, [chosen](wxCommandEvent& event) {
    chosen(static_cast<std::size_t>(event.GetSelection()));
  });
  grid.Add(text, wxSizerFlags().CenterVertical());
  grid.Add(choice, wxSizerFlags().Expand());
  rows_.push_back({text, choice, [] { return true; }});
  return choice;
}

wxFlexGridSizer* ElevationDialog::makeChoices() {
  auto* grid = new wxFlexGridSizer(2, FromDIP(6), FromDIP(10));
  grid->AddGrowableCol(1);
  wxChoice* task = addChoice(*grid, _("&What:"), "elevationTask", [this](std::size_t chosen) {
    form_.setTask(static_cast<Task>(chosen));
    showRows();
  });
  for (const char* name : kTasks)
    task->Append(wxGetTranslation(name));
  task->SetSelection(0);
  from_ = addChoice(*grid, _("&From:"), "elevationFrom", [this](std::size_t end) {
    form_.setFrom(end);
    showEnds();
  });
  to_ = addChoice(*grid, _("T&o:"), "elevationTo", [this](std::size_t end) {
    form_.setTo(end);
    showEnds();
  });
  rows_.back().used = [this] { return form_.usesTo(); };
  way_ = addChoice(*grid, _("Wa&y:"), "elevationWay", [this](std::size_t way) {
    form_.setWay(way);
    refresh();
  });
  rows_.back().used = [this] { return form_.usesTo() && way_->GetCount() > 1; };
  return grid;
}

wxFlexGridSizer* ElevationDialog::makeFields() {
  auto* grid = new wxFlexGridSizer(4, FromDIP(6), FromDIP(10));
  grid->AddGrowableCol(1);
  grid->AddGrowableCol(3);
  for (std::size_t i = 0; i < kFields.size(); ++i) {
    const auto which = static_cast<Field>(i);
    auto* label = new wxStaticText(this, wxID_ANY, wxGetTranslation(kFields[i].label));
    auto* field = new wxTextCtrl(this, wxID_ANY, fromUtf8(form_.text(which)), wxDefaultPosition,
                                 wxDefaultSize, 0, wxDefaultValidator, kFields[i].name);
    field->Bind(wxEVT_TEXT, [this, which, field](wxCommandEvent&) {
      form_.enter(which, toUtf8(field->GetValue()));
      refresh();
    });
    grid->Add(label, wxSizerFlags().CenterVertical());
    grid->Add(field, wxSizerFlags().Expand());
    fields_.push_back(field);
    rows_.push_back({label, field, [this, which] { return form_.uses(which); }});
  }
  return grid;
}

void ElevationDialog::addSwitches(wxSizer& page) {
  for (std::size_t i = 0; i < kSwitches.size(); ++i) {
    const auto which = static_cast<Switch>(i);
    auto* box = new wxCheckBox(this, wxID_ANY, wxGetTranslation(kSwitches[i].label));
    box->SetName(kSwitches[i].name);
    box->SetValue(form_.isOn(which));
    box->Bind(wxEVT_CHECKBOX, [this, which](wxCommandEvent& event) {
      form_.set(which, event.IsChecked());
      showRows();
    });
    page.Add(box, wxSizerFlags().Border(wxLEFT | wxRIGHT | wxBOTTOM, FromDIP(6)));
    switches_.push_back(box);
    // What a spread would help is only known later, and nothing is to move then.
    if (which != Switch::Spread)
      rows_.push_back({box, box, [this, which] { return form_.uses(which); }});
  }
}

void ElevationDialog::showEnds() {
  const auto fill = [](wxChoice& choice, const std::vector<std::string>& names, std::size_t at) {
    choice.Clear();
    for (const std::string& name : names)
      choice.Append(fromUtf8(name));
    if (at < names.size())
      choice.SetSelection(static_cast<int>(at));
    choice.Enable(names.size() > 1);
  };
  fill(*from_, form_.endNames(), form_.from());
  fill(*to_, form_.endNames(), form_.to());
  fill(*way_, form_.wayNames(), form_.way());
  showRows();
}

void ElevationDialog::showRows() {
  for (const Row& row : rows_) {
    row.label->Show(row.used());
    row.control->Show(row.used());
  }
  turn_->Show(form_.usesTo());
  refresh();
  Layout();
  if (GetSizer() != nullptr)
    GetSizer()->SetSizeHints(this);
}

void ElevationDialog::refresh() {
  for (std::size_t i = 0; i < fields_.size(); ++i)
    if (const wxString text = fromUtf8(form_.text(static_cast<Field>(i)));
        text != fields_[i]->GetValue())
      fields_[i]->ChangeValue(text);
  switches_[static_cast<std::size_t>(Switch::Spread)]->Enable(form_.uses(Switch::Spread));
  const std::string problem = form_.problem();
  showWrapped(*summary_, fromUtf8(form_.summary()), FromDIP(kTextWidth));
  problem_->show(problem);
  // They share their room.
  summary_->Show(problem.empty());
  problem_->Show(!problem.empty());
  Layout();
  ok_->Enable(form_.ready());
  profile_->Refresh();
  form_.showOn(preview_);
}

} // namespace trassix
