#include "ui/dialogs/baseboard_shape_dialog.h"

#include "ui/dialogs/board_preview.h"
#include "ui/widgets/problem_text.h"
#include "ui/widgets/utf8.h"

#include <wx/button.h>
#include <wx/radiobut.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

namespace trassix {

namespace {

using Choice = BoardForm::Choice;

struct ChoiceText {
  const char* label;
  const char* name;
};

constexpr std::array<ChoiceText, 6> kChoices{{{wxTRANSLATE("&Rectangle"), "boardRectangle"},
                                              {wxTRANSLATE("&L shape"), "boardL"},
                                              {wxTRANSLATE("&U shape"), "boardU"},
                                              {wxTRANSLATE("&T shape"), "boardT"},
                                              {wxTRANSLATE("&Free outline"), "boardFree"},
                                              {wxTRANSLATE("&No baseboard"), "boardNone"}}};
constexpr std::array<const char*, BoardForm::kMeasures> kFieldNames{"boardWidth", "boardDepth",
                                                                    "boardArm", "boardFoot"};

} // namespace

BaseboardShapeDialog::BaseboardShapeDialog(wxWindow* parent, trassix::Layout& layout)
    : wxDialog(parent, wxID_ANY, _("Baseboard Shape"), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER, "baseboardShape"),
      layout_(layout), form_(layout) {
  const int gap = FromDIP(10);
  auto* page = new wxBoxSizer(wxVERTICAL);
  page->Add(makeChoices(), wxSizerFlags().Border(wxALL, gap));
  page->Add(makeTurns(), wxSizerFlags().Border(wxLEFT | wxRIGHT | wxBOTTOM, gap));
  auto* entries = new wxBoxSizer(wxVERTICAL);
  measures_ = makeMeasures();
  free_ = makeFree();
  entries->Add(measures_);
  entries->Add(free_);
  entries->SetMinSize(FromDIP(wxSize(290, -1)));
  preview_ = new BoardPreview(this, FromDIP(wxSize(380, 280)), form_);
  auto* columns = new wxBoxSizer(wxHORIZONTAL);
  columns->Add(entries);
  columns->Add(preview_, wxSizerFlags(1).Expand().Border(wxLEFT, gap));
  page->Add(columns, wxSizerFlags(1).Expand().Border(wxLEFT | wxRIGHT, gap));
  problem_ = new ProblemText(this, FromDIP(680));
  page->Add(problem_, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxTOP, gap));
  page->Add(new wxStaticText(this, wxID_ANY, _("Undo does not bring the present baseboard back.")),
            wxSizerFlags().Border(wxLEFT | wxRIGHT | wxTOP, gap));
  auto* buttons = new wxStdDialogButtonSizer;
  ok_ = new wxButton(this, wxID_OK);
  buttons->AddButton(ok_);
  buttons->AddButton(new wxButton(this, wxID_CANCEL));
  buttons->Realize();
  page->Add(buttons, wxSizerFlags().Right().Border(wxALL, gap));
  ok_->SetDefault();
  showChoice();
  SetSizerAndFit(page);
  CentreOnParent();
  choices_.at(static_cast<std::size_t>(form_.choice()))->SetFocus();
}

wxSizer* BaseboardShapeDialog::makeChoices() {
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  for (std::size_t i = 0; i < kChoices.size(); ++i) {
    auto* button = new wxRadioButton(this, wxID_ANY, wxGetTranslation(kChoices[i].label),
                                     wxDefaultPosition, wxDefaultSize, i == 0 ? wxRB_GROUP : 0);
    button->SetName(kChoices[i].name);
    button->Bind(wxEVT_RADIOBUTTON, [this, i](wxCommandEvent&) {
      form_.choose(static_cast<Choice>(i));
      showChoice();
    });
    row->Add(button, wxSizerFlags().Border(wxRIGHT, FromDIP(16)));
    choices_[i] = button;
  }
  return row;
}

wxSizer* BaseboardShapeDialog::makeTurns() {
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  const auto add = [&](const wxString& label, const char* name, void (BoardForm::*change)()) {
    auto* button = new wxButton(this, wxID_ANY, label);
    button->SetName(name);
    button->Bind(wxEVT_BUTTON, [this, change](wxCommandEvent&) {
      (form_.*change)();
      for (std::size_t i = 0; i < fields_.size(); ++i) // a rectangle's change places
        fields_[i]->ChangeValue(fromUtf8(form_.measure(i).text()));
      refresh();
    });
    row->Add(button, wxSizerFlags().Border(wxRIGHT, FromDIP(8)));
    return button;
  };
  mirror_ = add(_("&Mirror"), "boardMirror", &BoardForm::mirror);
  turn_ = add(_("Turn Ri&ght"), "boardTurn", &BoardForm::turn);
  return row;
}

wxSizer* BaseboardShapeDialog::makeMeasures() {
  const int gap = FromDIP(8);
  auto* grid = new wxFlexGridSizer(2, gap, gap);
  for (std::size_t i = 0; i < fields_.size(); ++i) {
    names_[i] = new wxStaticText(this, wxID_ANY, wxEmptyString);
    fields_[i] =
        new wxTextCtrl(this, wxID_ANY, fromUtf8(form_.measure(i).text()), wxDefaultPosition,
                       FromDIP(wxSize(130, -1)), 0, wxDefaultValidator, kFieldNames[i]);
    fields_[i]->Bind(wxEVT_TEXT, [this, i](wxCommandEvent&) {
      form_.enter(i, toUtf8(fields_[i]->GetValue()));
      refresh();
    });
    grid->Add(names_[i], wxSizerFlags().CenterVertical());
    grid->Add(fields_[i]);
  }
  return grid;
}

wxSizer* BaseboardShapeDialog::makeFree() {
  corners_ = new wxStaticText(this, wxID_ANY, wxEmptyString);
  auto* take = new wxButton(this, wxID_ANY, _("Use &Selected Shape"));
  take->SetName("boardTake");
  take->Enable(form_.shapeThere());
  take->SetToolTip(form_.shapeThere() ? _("The selected shape becomes the baseboard")
                                      : _("Select one shape on the plan first, whose outline "
                                          "does not cross itself"));
  auto* draw = new wxButton(this, wxID_ANY, _("&Draw on Plan"));
  draw->SetName("boardDraw");
  draw->SetToolTip(_("Closes this window: then click the corners on the plan"));
  take->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) {
    form_.takeShape();
    showChoice();
  });
  draw->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { EndModal(kDraw); });
  auto* column = new wxBoxSizer(wxVERTICAL);
  column->Add(corners_, wxSizerFlags().Border(wxBOTTOM, FromDIP(8)));
  column->Add(take, wxSizerFlags().Expand().Border(wxBOTTOM, FromDIP(8)));
  column->Add(draw, wxSizerFlags().Expand());
  return column;
}

void BaseboardShapeDialog::showChoice() {
  choices_.at(static_cast<std::size_t>(form_.choice()))->SetValue(true);
  for (std::size_t i = 0; i < fields_.size(); ++i) {
    const std::string name = form_.measureName(i);
    names_[i]->SetLabel(fromUtf8(name) + ":");
    names_[i]->Show(!name.empty());
    fields_[i]->Show(!name.empty());
  }
  free_->ShowItems(form_.choice() == Choice::Free);
  refresh();
  Layout();
}

void BaseboardShapeDialog::refresh() {
  const std::size_t corners = form_.outline().size();
  corners_->SetLabel(corners == 0 ? _("No outline yet")
                                  : wxString::Format(_("Outline with %zu corners"), corners));
  const std::string problem = form_.problem();
  problem_->show(problem);
  ok_->Enable(problem.empty());
  turn_->Enable(form_.choice() != Choice::None && corners != 0);
  mirror_->Enable(turn_->IsEnabled() && form_.choice() != Choice::Rectangle);
  preview_->update();
}

} // namespace trassix
