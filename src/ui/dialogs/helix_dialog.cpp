#include "ui/dialogs/helix_dialog.h"

#include "document/layout.h"
#include "editing/canvas/helix_picture.h"
#include "editing/helix/helix_edits.h"
#include "host/workspace.h"
#include "ui/canvas/gc_surface.h"
#include "ui/widgets/picture_panel.h"
#include "ui/widgets/problem_text.h"
#include "ui/widgets/system_theme.h"
#include "ui/widgets/utf8.h"
#include "ui/widgets/whole_window.h"

#include <wx/button.h>
#include <wx/choice.h>
#include <wx/sizer.h>
#include <wx/textctrl.h>

#include <algorithm>

namespace trassix {

namespace {

constexpr int kPicture = 210;    // px
constexpr int kEntryWidth = 250; // px, of the column with the fields
constexpr int kRadiiWidth = 250; // px, room for the radii of two tracks
constexpr int kTextWidth = 250;  // px, of what is told of it

/// The helix with room for what stands at its ends.
void paintHelix(wxGraphicsContext& context, const wxSize& size, const HelixPlan& plan,
                std::int32_t units, std::optional<std::size_t> joining) {
  GcSurface surface(context);
  const auto width = static_cast<double>(size.x);
  const auto height = static_cast<double>(size.y);
  const Point sheet[]{{0, 0}, {width, 0}, {width, height}, {0, height}};
  surface.polygon(sheet, systemTheme().board, std::nullopt);
  HelixPlan shown = plan;
  shown.centre = {0, 0, 0};
  const double zoom = (std::min(width, height) - 20) / (2 * plan.kit->outerSize);
  const ViewTransform view = ViewTransform::ofScale(zoom, {width / 2, height / 2});
  PieceLook look;
  look.bed = opaque(systemTheme().bed);
  paintHelixTrack(surface, view, systemTheme(), shown, look);
  paintHelixMarks(surface, view, systemTheme(), shown, joining, units);
}

Rgba lightColor(HelixVerdict verdict) {
  switch (verdict) {
  case HelixVerdict::Good:
    return systemTheme().gradeColor(GradeBand::Comfortable);
  case HelixVerdict::Fair:
    return systemTheme().gradeColor(GradeBand::Caution);
  case HelixVerdict::Steep:
  case HelixVerdict::Refused:
    break;
  }
  return systemTheme().gradeColor(GradeBand::Steep);
}

} // namespace

HelixDialog::HelixDialog(wxWindow* parent, Workspace& workspace, const HelixWish& from,
                         std::int32_t helix)
    : wxDialog(parent, wxID_ANY, helix == -1 ? _("Helix") : _("Edit Helix"), wxDefaultPosition,
               wxDefaultSize, wxDEFAULT_DIALOG_STYLE, "helix"),
      workspace_(workspace), form_(from, workspace.units()), helix_(helix) {
  if (helix_ != -1)
    preview_.emplace(workspace);
  const int gap = FromDIP(12);
  auto* columns = new wxBoxSizer(wxHORIZONTAL);
  columns->Add(makeEntries());
  columns->AddSpacer(2 * gap);
  columns->Add(makeAnswers());
  ok_ = new wxButton(this, wxID_OK, helix_ == -1 ? _("Carr&y to the Plan") : _("&Change"));
  auto* buttons = new wxStdDialogButtonSizer;
  buttons->AddButton(ok_);
  buttons->AddButton(new wxButton(this, wxID_CANCEL));
  buttons->Realize();
  auto* page = new wxBoxSizer(wxVERTICAL);
  page->Add(columns, wxSizerFlags().Border(wxALL, gap));
  page->Add(buttons, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, gap));
  ok_->SetDefault();
  refresh();
  SetSizerAndFit(page);
  if (preview_)
    placeBeside(*this, *parent);
  else
    CentreOnParent();
  wxTextCtrl* climb = fields_.front();
  climb->SetFocus();
  climb->SelectAll();
}

wxChoice* HelixDialog::addChoice(wxFlexGridSizer& grid, const wxString& label, const char* name,
                                 const std::vector<std::string>& rows,
                                 std::function<void(std::size_t)> chosen) {
  auto* choice = new wxChoice(this, wxID_ANY);
  choice->SetName(name);
  for (const std::string& row : rows)
    choice->Append(fromUtf8(row));
  if (!rows.empty())
    choice->SetSelection(0);
  choice->Bind(wxEVT_CHOICE, [this, chosen = std::move(chosen)](wxCommandEvent& event) {
    chosen(static_cast<std::size_t>(event.GetSelection()));
    refresh();
  });
  grid.Add(new wxStaticText(this, wxID_ANY, label), wxSizerFlags().CenterVertical());
  grid.Add(choice, wxSizerFlags().Expand());
  return choice;
}

void HelixDialog::addField(wxFlexGridSizer& grid, const wxString& label, const char* name,
                           HelixForm::Field field) {
  auto* text = new wxTextCtrl(this, wxID_ANY, fromUtf8(form_.text(field)), wxDefaultPosition,
                              wxDefaultSize, 0, wxDefaultValidator, name);
  text->Bind(wxEVT_TEXT, [this, field, text](wxCommandEvent&) {
    form_.enter(field, toUtf8(text->GetValue()));
    refresh();
  });
  fields_.at(static_cast<std::size_t>(field)) = text;
  grid.Add(new wxStaticText(this, wxID_ANY, label), wxSizerFlags().CenterVertical());
  grid.Add(text, wxSizerFlags().Expand());
}

wxSizer* HelixDialog::makeEntries() {
  auto* grid = new wxFlexGridSizer(2, FromDIP(7), FromDIP(10));
  grid->AddGrowableCol(1);
  const HelixWish wish = form_.wish();
  systems_ = HelixForm::systems();
  std::vector<std::string> names;
  for (const TrackSystem system : systems_)
    names.emplace_back(systemName(system));
  wxChoice* system = addChoice(*grid, _("&System:"), "helixSystem", names,
                               [this](std::size_t row) { form_.setSystem(systems_[row]); });
  system->SetSelection(
      static_cast<int>(std::ranges::find(systems_, wish.plan.kit->system) - systems_.begin()));
  tracks_ = addChoice(*grid, _("&Tracks:"), "helixTracks", {toUtf8(_("One")), toUtf8(_("Two"))},
                      [this](std::size_t row) { form_.setTracks(row + 1); });
  size_ = addChoice(*grid, _("&Radius:"), "helixRadius", {},
                    [this](std::size_t row) { form_.setSize(row); });
  size_->SetMinSize(FromDIP(wxSize(kRadiiWidth, -1)));
  turns_ = addChoice(*grid, _("T&urns:"), "helixTurns", HelixForm::turnNames(),
                     [this](std::size_t row) { form_.setTurns(row); });
  addField(*grid, _("&Height to climb:"), "helixClimb", HelixForm::Field::Climb);
  addField(*grid, _("&Pitch, one turn:"), "helixPitch", HelixForm::Field::Pitch);
  wxChoice* hand =
      addChoice(*grid, _("Up&hill it turns:"), "helixHand",
                {toUtf8(_("Right, clockwise")), toUtf8(_("Left, anticlockwise"))},
                [this](std::size_t row) { form_.setHand(static_cast<HelixHand>(row)); });
  hand->SetSelection(static_cast<int>(wish.plan.hand));
  if (helix_ == -1) {
    wxChoice* way = addChoice(*grid, _("&From its entry it leads:"), "helixWay",
                              {toUtf8(_("Up")), toUtf8(_("Down"))},
                              [this](std::size_t row) { form_.setLeadsDown(row == 1); });
    way->SetSelection(wish.leadsDown ? 1 : 0);
  }
  auto* column = new wxBoxSizer(wxVERTICAL);
  column->Add(grid, wxSizerFlags().Expand());
  problem_ = new ProblemText(this, FromDIP(kEntryWidth), 2);
  column->Add(problem_, wxSizerFlags().Border(wxTOP, FromDIP(8)));
  advice_ = new wxStaticText(this, wxID_ANY, wxEmptyString, wxDefaultPosition,
                             {FromDIP(kEntryWidth), 3 * GetCharHeight()}, wxST_NO_AUTORESIZE,
                             "helixAdvice");
  column->Add(advice_, wxSizerFlags().Border(wxTOP, FromDIP(8)));
  column->SetMinSize(FromDIP(wxSize(kEntryWidth, -1)));
  return column;
}

wxSizer* HelixDialog::makeAnswers() {
  const int gap = FromDIP(8);
  auto* column = new wxBoxSizer(wxVERTICAL);
  picture_ = new PicturePanel(this, FromDIP(wxSize(kPicture * 3 / 2, kPicture)),
                              [this](wxGraphicsContext& context, const wxSize& size, bool) {
                                const HelixWish& wish = form_.wish();
                                std::optional<std::size_t> entry;
                                if (helix_ == -1)
                                  entry = wish.leadsDown ? form_.tracks() : 0;
                                paintHelix(context, size, wish.plan, workspace_.units(), entry);
                              });
  picture_->SetName("helixPicture");
  column->Add(picture_, wxSizerFlags().Expand());
  light_ = new PicturePanel(this, FromDIP(wxSize(14, 14)),
                            [this](wxGraphicsContext& context, const wxSize& size, bool) {
                              context.SetBrush(wxBrush(GetBackgroundColour()));
                              context.DrawRectangle(0, 0, size.x, size.y);
                              const double middle = size.x / 2.0;
                              GcSurface(context).circle({middle, middle}, middle - 1,
                                                        lightColor(form_.figures().verdict), {});
                            });
  verdict_ = new wxStaticText(this, wxID_ANY, wxEmptyString, wxDefaultPosition,
                              {FromDIP(kPicture * 3 / 2 - 22), 2 * GetCharHeight() + FromDIP(4)},
                              wxST_NO_AUTORESIZE, "helixVerdict");
  verdict_->SetFont(GetFont().Bold());
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  row->Add(light_, wxSizerFlags().Border(wxTOP, FromDIP(2)));
  row->AddSpacer(gap);
  row->Add(verdict_);
  column->Add(row, wxSizerFlags().Border(wxTOP, gap));
  auto* grid = new wxFlexGridSizer(2, FromDIP(4), FromDIP(10));
  for (std::size_t i = 0; i < kMostHelixFacts; ++i) {
    facts_.push_back({new wxStaticText(this, wxID_ANY, wxEmptyString),
                      new wxStaticText(this, wxID_ANY, wxEmptyString, wxDefaultPosition,
                                       {FromDIP(kTextWidth), -1}, wxST_NO_AUTORESIZE)});
    grid->Add(facts_.back().name, wxSizerFlags().ReserveSpaceEvenIfHidden());
    grid->Add(facts_.back().text, wxSizerFlags().ReserveSpaceEvenIfHidden());
  }
  column->Add(grid, wxSizerFlags().Border(wxTOP, gap));
  return column;
}

void HelixDialog::refresh() {
  const std::vector<std::string> sizes = form_.sizeNames();
  if (sizes != shownSizes_) {
    size_->Clear();
    for (const std::string& name : sizes)
      size_->Append(fromUtf8(name));
    shownSizes_ = sizes;
  }
  size_->SetSelection(static_cast<int>(form_.size()));
  tracks_->SetSelection(static_cast<int>(form_.tracks()) - 1);
  tracks_->Enable(form_.mayHaveTwoTracks());
  turns_->SetSelection(static_cast<int>(form_.turns()));
  for (std::size_t i = 0; i < fields_.size(); ++i)
    if (const wxString text = fromUtf8(form_.text(static_cast<HelixForm::Field>(i)));
        text != fields_.at(i)->GetValue())
      fields_.at(i)->ChangeValue(text);
  problem_->show(form_.problem());
  ok_->Enable(form_.ready());
  showVerdict();
  if (preview_)
    preview_->showEdit([this](trassix::Layout& layout) {
      if (form_.ready())
        changeHelix(layout, helix_, form_.wish().plan);
    });
}

void HelixDialog::showVerdict() {
  const HelixFigures figures = form_.figures();
  showWrapped(*verdict_, fromUtf8(verdictText(figures)), verdict_->GetSize().x);
  const TrackSystem system = form_.wish().plan.kit->system;
  showWrapped(*advice_,
              figures.verdict == HelixVerdict::Good
                  ? wxString()
                  : fromUtf8(radiusAdvice(system, workspace_.units())),
              FromDIP(kEntryWidth));
  const std::vector<HelixFact> facts = form_.facts();
  for (std::size_t i = 0; i < facts_.size(); ++i) {
    facts_[i].name->Show(i < facts.size());
    facts_[i].text->Show(i < facts.size());
    if (i >= facts.size())
      continue;
    facts_[i].name->SetLabelText(fromUtf8(facts[i].name));
    facts_[i].text->SetLabelText(fromUtf8(facts[i].text));
  }
  picture_->Refresh();
  light_->Refresh();
  Layout();
}

} // namespace trassix
