#include "ui/print/print_options_dialog.h"

#include "ui/canvas/gc_surface.h"
#include "ui/widgets/picture_panel.h"
#include "ui/widgets/problem_text.h"
#include "ui/widgets/utf8.h"

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/checklst.h>
#include <wx/choice.h>
#include <wx/combobox.h>
#include <wx/graphics.h>
#include <wx/radiobox.h>
#include <wx/sizer.h>
#include <wx/statbox.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <array>

namespace trassix {

namespace {

using Field = PrintForm::Field;

constexpr int kPictureWidth = 520;
constexpr int kPictureHeight = 330;
constexpr int kListHeight = 96;
constexpr int kColumnWidth = 300;

struct WhatBox {
  std::int64_t bit;
  bool shownWhenClear; ///< the bit leaves something out
  const char* label;
  const char* name;
};
constexpr std::array<WhatBox, 9> kWhat{{
    {print_what::kNoScenery, true, wxTRANSLATE("Scener&y and shapes"), "printScenery"},
    {print_what::kNoDimensions, true, wxTRANSLATE("&Dimensions"), "printDimensions"},
    {print_what::kGrid, false, wxTRANSLATE("&Grid"), "printGrid"},
    {print_what::kHeights, false, wxTRANSLATE("&Heights and grades"), "printHeights"},
    {print_what::kSupports, false, wxTRANSLATE("S&upports"), "printSupports"},
    {print_what::kOutlines, false, wxTRANSLATE("Only outlines, to spare in&k"), "printOutlines"},
    {print_what::kActiveLevelOnly, false, wxTRANSLATE("Only the &active level"), "printActive"},
    {print_what::kDecksApart, false, wxTRANSLATE("Pages &for each level"), "printDecks"},
    {print_what::kPartsList, false, wxTRANSLATE("Li&st of the pieces"), "printParts"},
}};

} // namespace

PrintOptionsDialog::PrintOptionsDialog(wxWindow* parent, PrintForm form, const wxString& printer)
    : wxDialog(parent, wxID_ANY, _("Print Options"), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE, "printOptions"),
      form_(std::move(form)) {
  const int gap = FromDIP(10);
  auto* column = new wxBoxSizer(wxVERTICAL);
  column->Add(makeMode(), wxSizerFlags().Expand());
  column->Add(makeWhat(), wxSizerFlags().Expand().Border(wxTOP, gap));
  column->Add(makeRuler(printer), wxSizerFlags().Expand().Border(wxTOP, gap));
  picture_ = new PicturePanel(this, FromDIP(wxSize(kPictureWidth, kPictureHeight)),
                              [this](wxGraphicsContext& context, const wxSize& size, bool) {
                                GcSurface surface(context);
                                form_.paint(surface, {double(size.x), double(size.y)});
                              });
  picture_->SetName("printPicture");
  picture_->SetToolTip(_("Click a sheet to leave it out, or to print it again"));
  picture_->Bind(wxEVT_LEFT_DOWN, &PrintOptionsDialog::clickPicture, this);
  auto* sheets = new wxBoxSizer(wxVERTICAL);
  sheets->Add(picture_, wxSizerFlags(1).Expand());
  sheets->Add(makePages(), wxSizerFlags().Expand().Border(wxTOP, gap));
  auto* top = new wxBoxSizer(wxHORIZONTAL);
  top->Add(column);
  top->Add(sheets, wxSizerFlags(1).Expand().Border(wxLEFT, gap));
  auto* page = new wxBoxSizer(wxVERTICAL);
  page->Add(top, wxSizerFlags(1).Expand().Border(wxALL, gap));
  const int width = FromDIP(kPictureWidth + kColumnWidth);
  problem_ = new ProblemText(this, width, 1);
  summary_ = new wxStaticText(this, wxID_ANY, wxEmptyString, wxDefaultPosition, problem_->GetSize(),
                              wxST_NO_AUTORESIZE, "printSummary");
  page->Add(summary_, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT, gap));
  page->Add(problem_, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT, gap));
  ok_ = new wxButton(this, wxID_OK, _("&Print..."));
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

void PrintOptionsDialog::addScale(wxSizer& row) {
  const std::array<wxString, 5> usual{"1:1", "1:2", "1:5", "1:10", "1:20"};
  row.Add(new wxStaticText(this, wxID_ANY, _("Scal&e (1:N):")), wxSizerFlags().CenterVertical());
  auto* scale = new wxComboBox(this, wxID_ANY, fromUtf8(form_.text(Field::Scale)),
                               wxDefaultPosition, wxDefaultSize, static_cast<int>(usual.size()),
                               usual.data(), 0, wxDefaultValidator, "printScale");
  scale->Bind(wxEVT_TEXT, [this, scale](wxCommandEvent&) {
    form_.enter(Field::Scale, toUtf8(scale->GetValue()));
    refresh();
  });
  row.Add(scale, wxSizerFlags().Expand());
  fields_.emplace_back(scale, Field::Scale);
}

void PrintOptionsDialog::addField(wxSizer& row, const wxString& label, Field which,
                                  const char* name) {
  auto* caption = new wxStaticText(this, wxID_ANY, label); // its key leads to what is made next
  auto* field = new wxTextCtrl(this, wxID_ANY, fromUtf8(form_.text(which)), wxDefaultPosition,
                               FromDIP(wxSize(80, -1)), 0, wxDefaultValidator, name);
  field->Bind(wxEVT_TEXT, [this, which, field](wxCommandEvent&) {
    form_.enter(which, toUtf8(field->GetValue()));
    refresh();
  });
  row.Add(caption, wxSizerFlags().CenterVertical());
  row.Add(field, wxSizerFlags().Expand());
  fields_.emplace_back(field, which);
}

wxSizer* PrintOptionsDialog::makeMode() {
  auto* column = new wxBoxSizer(wxVERTICAL);
  const std::array<wxString, 3> modes{_("O&ne page with all of the plan"), _("To a sca&le"),
                                      _("&True size, over several sheets")};
  auto* mode = new wxRadioBox(this, wxID_ANY, _("How"), wxDefaultPosition, wxDefaultSize,
                              static_cast<int>(modes.size()), modes.data(), 1, wxRA_SPECIFY_COLS,
                              wxDefaultValidator, "printMode");
  mode->SetSelection(form_.options().mode);
  mode->Bind(wxEVT_RADIOBOX, [this](wxCommandEvent& event) {
    form_.setMode(static_cast<PrintMode>(event.GetSelection()));
    refresh();
  });
  column->Add(mode, wxSizerFlags().Expand());
  auto* grid = new wxFlexGridSizer(2, FromDIP(6), FromDIP(10));
  grid->AddGrowableCol(1);
  addScale(*grid);
  addField(*grid, _("O&verlap in mm:"), Field::Overlap, "printOverlap");
  grid->Add(new wxStaticText(this, wxID_ANY, _("Pape&r:")), wxSizerFlags().CenterVertical());
  auto* orientation = new wxChoice(this, wxID_ANY);
  orientation->SetName("printOrientation");
  for (const wxString& name : {_("Whichever needs fewer sheets"), _("Upright"), _("Lying")})
    orientation->Append(name);
  orientation->SetSelection(form_.options().orientation);
  orientation->Bind(wxEVT_CHOICE, [this](wxCommandEvent& event) {
    form_.setOrientation(static_cast<PrintOrientation>(event.GetSelection()));
    refresh();
  });
  grid->Add(orientation, wxSizerFlags().Expand());
  column->Add(grid, wxSizerFlags().Expand().Border(wxTOP, FromDIP(8)));
  return column;
}

void PrintOptionsDialog::addBox(wxSizer& column, const wxString& label, const char* name, bool on,
                                const std::function<void(bool)>& chosen) {
  auto* box = new wxCheckBox(this, wxID_ANY, label);
  box->SetName(name);
  box->SetValue(on);
  box->Bind(wxEVT_CHECKBOX, [this, chosen](wxCommandEvent& event) {
    chosen(event.IsChecked());
    refresh();
  });
  column.Add(box, wxSizerFlags().Border(wxBOTTOM, FromDIP(4)));
}

wxSizer* PrintOptionsDialog::makeWhat() {
  auto* box = new wxStaticBoxSizer(wxVERTICAL, this, _("What to print"));
  auto* column = new wxFlexGridSizer(2, 0, FromDIP(10));
  const PrintOptions& options = form_.options();
  addBox(*column, _("La&bels and articles"), "printLabels", options.labels,
         [this](bool on) { form_.setLabels(on); });
  for (const WhatBox& what : kWhat)
    addBox(*column, wxGetTranslation(what.label), what.name,
           options.has(what.bit) != what.shownWhenClear,
           [this, &what](bool on) { form_.set(what.bit, on != what.shownWhenClear); });
  addBox(*column, _("Only what &is selected"), "printSelection", options.selectionOnly,
         [this](bool on) { form_.setSelectionOnly(on); });
  box->Add(column, wxSizerFlags().Expand().Border(wxALL, FromDIP(4)));
  return box;
}

wxSizer* PrintOptionsDialog::makeRuler(const wxString& printer) {
  auto* box = new wxStaticBoxSizer(wxVERTICAL, this, _("Measured length of the 100 mm ruler"));
  auto* grid = new wxFlexGridSizer(2, FromDIP(6), FromDIP(10));
  grid->AddGrowableCol(1);
  addField(*grid, _("Acr&oss:"), Field::MeasuredX, "printMeasuredX");
  addField(*grid, _("Up&wards:"), Field::MeasuredY, "printMeasuredY");
  box->Add(grid, wxSizerFlags().Expand().Border(wxALL, FromDIP(4)));
  auto* whose = new wxStaticText(this, wxID_ANY, wxEmptyString);
  showWrapped(*whose,
              printer.empty()
                  ? _("Kept for the system's printer, and made good when it prints.")
                  : wxString::Format(_("Kept for %s, and made good when it prints."), printer),
              FromDIP(kColumnWidth - 30));
  box->Add(whose, wxSizerFlags().Border(wxALL, FromDIP(4)));
  return box;
}

wxSizer* PrintOptionsDialog::makePages() {
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  auto* label = new wxStaticText(this, wxID_ANY, _("Sheets to be printed:"));
  pages_ = new wxCheckListBox(this, wxID_ANY, wxDefaultPosition, FromDIP(wxSize(-1, kListHeight)));
  pages_->SetName("printPages");
  pages_->Bind(wxEVT_CHECKLISTBOX, [this](wxCommandEvent& event) {
    form_.toggle(static_cast<std::size_t>(event.GetInt()));
    refresh();
  });
  pages_->Bind(wxEVT_LISTBOX, [this](wxCommandEvent& event) {
    form_.show(static_cast<std::size_t>(event.GetInt()));
    picture_->Refresh();
  });
  none_ = new wxButton(this, wxID_ANY, _("None of the&m"));
  none_->SetName("printNone");
  none_->SetMinSize(none_->GetBestSize()); // its other text is shorter
  none_->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) {
    form_.leaveAllOut(!form_.anyLeftOut());
    refresh();
  });
  row->Add(label);
  row->Add(pages_, wxSizerFlags(1).Border(wxLEFT | wxRIGHT, FromDIP(10)));
  row->Add(none_);
  return row;
}

void PrintOptionsDialog::showPages() {
  wxArrayString names;
  for (std::size_t page = 0; page < form_.pages().pages.size(); ++page)
    names.Add(fromUtf8(form_.pages().nameOf(page)));
  if (names != pages_->GetStrings()) {
    pages_->Set(names);
    if (!names.empty()) // keys begin there
      pages_->SetSelection(0);
  }
  for (std::size_t page = 0; page < names.size(); ++page)
    if (const auto row = static_cast<unsigned>(page);
        pages_->IsChecked(row) == form_.isLeftOut(page))
      pages_->Check(row, !form_.isLeftOut(page));
  none_->SetLabel(form_.anyLeftOut() ? _("All of the&m") : _("None of the&m"));
}

void PrintOptionsDialog::clickPicture(wxMouseEvent& event) {
  const wxSize size = picture_->GetClientSize();
  const auto page =
      form_.pageAt({double(event.GetX()), double(event.GetY())}, {double(size.x), double(size.y)});
  if (!page)
    return;
  form_.toggle(*page);
  refresh();
}

void PrintOptionsDialog::refresh() {
  for (const auto& [field, which] : fields_)
    field->Enable(form_.uses(which));
  const std::string problem = form_.problem();
  summary_->SetLabelText(fromUtf8(problem.empty() ? form_.summary() : ""));
  problem_->show(problem);
  // They share their room.
  summary_->Show(problem.empty());
  problem_->Show(!problem.empty());
  ok_->Enable(problem.empty());
  showPages();
  picture_->Refresh();
  Layout();
}

} // namespace trassix
