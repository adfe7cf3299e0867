#include "ui/print/export_picture_dialog.h"

#include "ui/widgets/problem_text.h"
#include "ui/widgets/utf8.h"

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

namespace trassix {

namespace {

using Field = PictureForm::Field;

constexpr int kTextWidth = 400;

} // namespace

ExportPictureDialog::ExportPictureDialog(wxWindow* parent, PictureForm form)
    : wxDialog(parent, wxID_ANY, _("Export Picture"), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE, "exportPicture"),
      form_(std::move(form)) {
  const int gap = FromDIP(10);
  auto* grid = new wxFlexGridSizer(2, FromDIP(6), FromDIP(10));
  grid->AddGrowableCol(1);
  addChoice(*grid, _("&Format:"), "pictureFormat",
            {_("PNG, pixels"), _("SVG, lines to the millimetre"), _("PDF, true to scale")},
            [this](int row) { form_.setFormat(static_cast<PictureFormat>(row)); });
  const auto png = [this] { return form_.format() == PictureFormat::Png; };
  const auto pdf = [this] { return form_.format() == PictureFormat::Pdf; };
  addField(*grid, _("&Width in pixels:"), Field::Width, "pictureWidth");
  addField(*grid, _("or &dots to the inch:"), Field::Dpi, "pictureDpi");
  addField(*grid, _("Scale (1:&N):"), Field::Scale, "pictureScale");
  auto* pages = addChoice(*grid, _("&Pages:"), "picturePages",
                          {_("Tiles on the paper of Page Setup"), _("One sheet"),
                           _("Strips for a roll of 610 mm"), _("Strips for a roll of 914 mm")},
                          [this](int row) { form_.setPdfLayout(static_cast<PdfLayout>(row)); });
  rows_.push_back({pages, pdf});
  auto* page = new wxBoxSizer(wxVERTICAL);
  page->Add(grid, wxSizerFlags().Expand().Border(wxALL, gap));
  auto* boxes = new wxBoxSizer(wxVERTICAL);
  addBoxes(*boxes);
  addBox(
      *boxes, _("&Background"), "pictureBackground", form_.background(),
      [this](bool on) { form_.setBackground(on); }, png);
  addBox(
      *boxes, _("Li&st of the pieces"), "pictureParts", form_.options().has(print_what::kPartsList),
      [this](bool on) { form_.set(print_what::kPartsList, on); }, pdf);
  page->Add(boxes, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT, gap));
  problem_ = new ProblemText(this, FromDIP(kTextWidth), 2);
  summary_ = new wxStaticText(this, wxID_ANY, wxEmptyString, wxDefaultPosition, problem_->GetSize(),
                              wxST_NO_AUTORESIZE, "pictureSummary");
  page->Add(summary_, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxTOP, gap));
  page->Add(problem_, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxTOP, gap));
  ok_ = new wxButton(this, wxID_OK, _("&Export..."));
  auto* buttons = new wxStdDialogButtonSizer;
  buttons->AddButton(ok_);
  buttons->AddButton(new wxButton(this, wxID_CANCEL));
  buttons->Realize();
  page->Add(buttons, wxSizerFlags().Expand().Border(wxALL, gap));
  ok_->SetDefault();
  refresh();
  SetSizerAndFit(page);
  Centre();
}

wxChoice* ExportPictureDialog::addChoice(wxSizer& grid, const wxString& label, const char* name,
                                         const std::vector<wxString>& rows,
                                         const std::function<void(int)>& chosen) {
  // Its key leads to what is made next.
  grid.Add(new wxStaticText(this, wxID_ANY, label), wxSizerFlags().CenterVertical());
  auto* choice = new wxChoice(this, wxID_ANY);
  choice->SetName(name);
  for (const wxString& row : rows)
    choice->Append(row);
  choice->SetSelection(0);
  choice->Bind(wxEVT_CHOICE, [this, chosen](wxCommandEvent& event) {
    chosen(event.GetSelection());
    refresh();
  });
  grid.Add(choice, wxSizerFlags().Expand());
  return choice;
}

void ExportPictureDialog::addField(wxSizer& grid, const wxString& label, Field which,
                                   const char* name) {
  grid.Add(new wxStaticText(this, wxID_ANY, label), wxSizerFlags().CenterVertical());
  auto* field = new wxTextCtrl(this, wxID_ANY, fromUtf8(form_.text(which)), wxDefaultPosition,
                               wxDefaultSize, 0, wxDefaultValidator, name);
  field->Bind(wxEVT_TEXT, [this, which, field](wxCommandEvent&) {
    form_.enter(which, toUtf8(field->GetValue()));
    refresh();
  });
  grid.Add(field, wxSizerFlags().Expand());
  rows_.push_back({field, [this, which] { return form_.uses(which); }});
}

void ExportPictureDialog::addBox(wxSizer& column, const wxString& label, const char* name, bool on,
                                 const std::function<void(bool)>& chosen,
                                 const std::function<bool()>& used) {
  auto* box = new wxCheckBox(this, wxID_ANY, label);
  box->SetName(name);
  box->SetValue(on);
  box->Bind(wxEVT_CHECKBOX, [this, chosen](wxCommandEvent& event) {
    chosen(event.IsChecked());
    refresh();
  });
  column.Add(box, wxSizerFlags().Border(wxBOTTOM, FromDIP(4)));
  if (used)
    rows_.push_back({box, used});
}

void ExportPictureDialog::addBoxes(wxSizer& column) {
  const PrintOptions& options = form_.options();
  addBox(column, _("&Labels and articles"), "pictureLabels", options.labels,
         [this](bool on) { form_.setLabels(on); });
  addBox(column, _("Scener&y and shapes"), "pictureScenery", !options.has(print_what::kNoScenery),
         [this](bool on) { form_.set(print_what::kNoScenery, !on); });
  addBox(column, _("&Grid"), "pictureGrid", options.has(print_what::kGrid),
         [this](bool on) { form_.set(print_what::kGrid, on); });
  addBox(column, _("Only &outlines, to spare ink"), "pictureOutlines",
         options.has(print_what::kOutlines),
         [this](bool on) { form_.set(print_what::kOutlines, on); });
  addBox(column, _("Only the &active level"), "pictureActive",
         options.has(print_what::kActiveLevelOnly),
         [this](bool on) { form_.set(print_what::kActiveLevelOnly, on); });
  addBox(column, _("Only what is selec&ted"), "pictureSelection", options.selectionOnly,
         [this](bool on) { form_.setSelectionOnly(on); });
}

void ExportPictureDialog::refresh() {
  for (const Row& row : rows_)
    row.control->Enable(row.used());
  const std::string problem = form_.problem();
  showWrapped(*summary_, fromUtf8(form_.summary()), FromDIP(kTextWidth));
  problem_->show(problem);
  // They share their room.
  summary_->Show(problem.empty());
  problem_->Show(!problem.empty());
  ok_->Enable(problem.empty());
  Layout();
}

} // namespace trassix
