#include "ui/wizards/bridge_dialog.h"

#include "document/plan_content.h"
#include "ui/canvas/gc_surface.h"
#include "ui/widgets/accept_later.h"
#include "ui/widgets/picture_panel.h"
#include "ui/widgets/problem_text.h"
#include "ui/widgets/system_theme.h"
#include "ui/widgets/utf8.h"
#include "ui/widgets/whole_window.h"
#include "ui/wizards/bridge_plan_view.h"
#include "ui/wizards/bridge_side_view.h"

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/listbox.h>
#include <wx/sizer.h>
#include <wx/textctrl.h>

namespace trassix {

namespace {

using Field = BridgeForm::Field;

constexpr int kEntryWidth = 320;   // px, of the column with the entries
constexpr int kPictureWidth = 620; // px, of the column with the pictures
constexpr int kSideHeight = 144;   // px
constexpr int kPlanHeight = 150;   // px
constexpr int kNameWidth = 120;    // px, of the names of figures
constexpr std::size_t kMostFacts = 12;
constexpr int kPause = 250; // ms without an entry
constexpr int kNext = 10;   // ms in which the user may enter something

std::string joined(const std::vector<std::string>& texts) {
  std::string all;
  for (const std::string& text : texts)
    all += (all.empty() ? "" : "; ") + text;
  return all;
}

SizePx sizeOf(const wxSize& size) {
  return {static_cast<double>(size.x), static_cast<double>(size.y)};
}

} // namespace

BridgeDialog::BridgeDialog(wxWindow* parent, Workspace& workspace, const OwnedStock& owned)
    : wxDialog(parent, wxID_ANY, _("Bridge Wizard"), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE, "bridgeWizard"),
      workspace_(workspace), form_(workspace.layout(), &owned), preview_(workspace), pause_(this) {
  const int gap = FromDIP(10);
  auto* columns = new wxBoxSizer(wxHORIZONTAL);
  columns->Add(makeEntries(), wxSizerFlags().Expand());
  columns->AddSpacer(gap);
  auto* answers = new wxBoxSizer(wxVERTICAL);
  answers->Add(makePictures());
  answers->Add(makeAnswers(), wxSizerFlags().Expand().Border(wxTOP, gap));
  columns->Add(answers);
  ok_ = new wxButton(this, wxID_OK, _("&Build the Bridge"));
  auto* buttons = new wxStdDialogButtonSizer;
  buttons->AddButton(ok_);
  buttons->AddButton(new wxButton(this, wxID_CANCEL));
  buttons->Realize();
  auto* page = new wxBoxSizer(wxVERTICAL);
  page->Add(columns, wxSizerFlags().Border(wxALL, gap));
  page->Add(buttons, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, gap));
  ok_->SetDefault();
  Bind(
      wxEVT_TIMER, [this](wxTimerEvent&) { seekChoice(); }, pause_.GetId());
  entered();
  SetSizerAndFit(page);
  placeBeside(*this, *parent);
  wxTextCtrl* clearance = fields_.front();
  clearance->SetFocus();
  clearance->SelectAll();
}

wxChoice* BridgeDialog::makeChoice(const char* name, const wxString& tip,
                                   std::function<void(std::size_t)> chosen) {
  auto* choice = new wxChoice(this, wxID_ANY);
  choice->SetName(name);
  choice->SetToolTip(tip);
  choice->SetMinSize({FromDIP(100), -1}); // a long row does not widen the window
  choice->Bind(wxEVT_CHOICE, [this, chosen = std::move(chosen)](wxCommandEvent& event) {
    chosen(static_cast<std::size_t>(event.GetSelection()));
    entered();
  });
  return choice;
}

wxChoice* BridgeDialog::addChoice(wxFlexGridSizer& grid, const wxString& label, const char* name,
                                  const wxString& tip, std::function<void(std::size_t)> chosen) {
  grid.Add(new wxStaticText(this, wxID_ANY, label), wxSizerFlags().CenterVertical());
  wxChoice* choice = makeChoice(name, tip, std::move(chosen));
  grid.Add(choice, wxSizerFlags().Expand());
  return choice;
}

wxCheckBox* BridgeDialog::addCheck(wxFlexGridSizer& grid, const wxString& label, const char* name,
                                   const wxString& tip, std::function<void(bool)> checked) {
  auto* check = new wxCheckBox(this, wxID_ANY, label);
  check->SetName(name);
  check->SetToolTip(tip);
  check->Bind(wxEVT_CHECKBOX, [this, checked = std::move(checked)](wxCommandEvent& event) {
    checked(event.IsChecked());
    entered();
  });
  grid.AddSpacer(0);
  grid.Add(check);
  return check;
}

void BridgeDialog::addField(wxFlexGridSizer& grid, const wxString& label, const char* name,
                            const wxString& tip, Field field) {
  grid.Add(new wxStaticText(this, wxID_ANY, label), wxSizerFlags().CenterVertical());
  auto* text = new wxTextCtrl(this, wxID_ANY, fromUtf8(form_.text(field)), wxDefaultPosition,
                              wxDefaultSize, 0, wxDefaultValidator, name);
  text->SetToolTip(tip);
  text->Bind(wxEVT_TEXT, [this, field, text](wxCommandEvent&) {
    form_.enter(field, toUtf8(text->GetValue()));
    entered();
  });
  fields_.at(static_cast<std::size_t>(field)) = text;
  grid.Add(text, wxSizerFlags().Expand());
}

wxSizer* BridgeDialog::makeEntries() {
  auto* column = new wxBoxSizer(wxVERTICAL);
  column->SetMinSize(FromDIP(wxSize(kEntryWidth, -1)));
  column->Add(new wxStaticText(this, wxID_ANY, _("&What becomes of the selected track:")));
  wxChoice* way =
      makeChoice("bridgeWay", _("Over what it crosses, from an open end, or as it lies"),
                 [this](std::size_t row) { form_.setWay(row); });
  for (const std::string& name : form_.wayNames())
    way->Append(fromUtf8(name));
  way->SetSelection(static_cast<int>(form_.way()));
  column->Add(way, wxSizerFlags().Expand().Border(wxTOP | wxBOTTOM, FromDIP(4)));
  auto* grid = new wxFlexGridSizer(2, FromDIP(6), FromDIP(10));
  grid->AddGrowableCol(1);
  addField(*grid, _("C&learance:"), "bridgeClearance",
           _("From the rails below, or the ground, to the underside of the bridge"),
           Field::Clearance);
  wire_ = addCheck(*grid, _("With &overhead wire below"), "bridgeWire",
                   _("Proposes the clearance that trains below need with wire, or without"),
                   [this](bool on) { form_.setWire(on); });
  addField(*grid, _("&Deck height:"), "bridgeDeck",
           _("Of the track on the bridge, above the baseboard"), Field::DeckHeight);
  addField(*grid, _("&Grade limit in %:"), "bridgeLimit",
           _("No ramp gets steeper, curves not counted: 4.0 by default, 5.0 at most"),
           Field::Limit);
  addField(*grid, _("&Ramp length:"), "bridgeRamp",
           _("Of each ramp, up to the next joint: the grade follows from it"), Field::RampLength);
  rampPieces_ =
      addCheck(*grid, _("Ra&mp pieces"), "bridgeRampPieces",
               _("Pieces of the system that are made for ramps, in place of the ramps' own track"),
               [this](bool on) { form_.setRampPieces(on); });
  span_ =
      addChoice(*grid, _("&Spans:"), "bridgeSpan", _("What carries the track over what is crossed"),
                [this](std::size_t row) { form_.setSpan(row); });
  piers_ =
      addChoice(*grid, _("&Piers:"), "bridgePiers", _("Piers of the system's series need no shims"),
                [this](std::size_t row) { form_.setPiers(row); });
  for (const std::string& name : BridgeForm::pierNames())
    piers_->Append(fromUtf8(name));
  column->Add(grid, wxSizerFlags().Expand());
  const wxString alternatives = _("&Alternatives:");
  column->Add(new wxStaticText(this, wxID_ANY, alternatives),
              wxSizerFlags().Border(wxTOP, FromDIP(10)));
  const wxUniChar letter = wxToupper(alternatives.AfterFirst('&')[0]);
  Bind(wxEVT_CHAR_HOOK, [this, letter](wxKeyEvent& event) {
    // GTK would give the focus to the frame around the list, where no key does anything.
    if (event.GetModifiers() == wxMOD_ALT && wxUniChar(event.GetUnicodeKey()) == letter)
      choices_->SetFocus();
    else
      event.Skip();
  });
  choices_ = new wxListBox(this, wxID_ANY, wxDefaultPosition, FromDIP(wxSize(kEntryWidth, 136)), 0,
                           nullptr, wxLB_SINGLE, wxDefaultValidator, "bridgeChoices");
  choices_->SetToolTip(_("Other bridges for the same place"));
  choices_->Bind(wxEVT_LISTBOX, [this](wxCommandEvent& event) {
    if (event.GetSelection() < 0)
      return;
    form_.take(static_cast<std::size_t>(event.GetSelection()));
    refresh();
  });
  choices_->Bind(wxEVT_LISTBOX_DCLICK, [this](wxCommandEvent&) { acceptLater(*this); });
  column->Add(choices_, wxSizerFlags().Expand().Border(wxTOP, FromDIP(4)));
  problem_ = new ProblemText(this, FromDIP(kEntryWidth), 5);
  column->Add(problem_, wxSizerFlags().Expand().Border(wxTOP, FromDIP(8)));
  return column;
}

PicturePanel*
BridgeDialog::addPicture(wxSizer& row, const wxSize& size, const char* name, const wxString& tip,
                         std::function<void(wxGraphicsContext&, const wxSize&)> painter) {
  auto* picture = new PicturePanel(
      this, FromDIP(size),
      [painter = std::move(painter)](wxGraphicsContext& context, const wxSize& painted, bool) {
        painter(context, painted);
      });
  picture->SetName(name);
  picture->SetToolTip(tip);
  row.Add(picture);
  pictures_.push_back(picture);
  return picture;
}

wxSizer* BridgeDialog::makePictures() {
  const int gap = FromDIP(6);
  const auto side = [this](BridgePart part) {
    return [this, part](wxGraphicsContext& context, const wxSize& size) {
      GcSurface surface(context);
      paintBridgeSide(surface, sizeOf(size), form_.plan(), part, systemTheme(), workspace_.units());
    };
  };
  auto* pictures = new wxBoxSizer(wxVERTICAL);
  addPicture(*pictures, {kPictureWidth, kSideHeight}, "bridgeSide",
             _("From the side, with the heights of the piers; shims are orange"),
             side(BridgePart::Whole));
  pictures->AddSpacer(gap);
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  const int half = (kPictureWidth - 6) / 2;
  addPicture(*row, {half, kPlanHeight}, "bridgeCrossing",
             _("Where it has the least room to spare, true to scale"), side(BridgePart::Crossing));
  row->AddSpacer(gap);
  addPicture(*row, {half, kPlanHeight}, "bridgePlan", _("From above, with the piers"),
             [this](wxGraphicsContext& context, const wxSize& size) {
               GcSurface surface(context);
               paintBridgePlan(surface, sizeOf(size), built_, form_.plan(), systemTheme());
             });
  pictures->Add(row);
  return pictures;
}

wxSizer* BridgeDialog::makeAnswers() {
  auto* column = new wxBoxSizer(wxVERTICAL);
  crossed_ = new wxStaticText(this, wxID_ANY, wxEmptyString, wxDefaultPosition,
                              {FromDIP(kPictureWidth), -1}, wxST_NO_AUTORESIZE | wxST_ELLIPSIZE_END,
                              "bridgeCrossed");
  column->Add(crossed_);
  auto* grid = new wxFlexGridSizer(2, FromDIP(3), FromDIP(10));
  for (std::size_t i = 0; i < kMostFacts; ++i) {
    const auto text = [this](int width) {
      return new wxStaticText(this, wxID_ANY, wxEmptyString, wxDefaultPosition,
                              {FromDIP(width), -1}, wxST_NO_AUTORESIZE | wxST_ELLIPSIZE_END);
    };
    facts_.push_back({text(kNameWidth), text(kPictureWidth - kNameWidth - 10)});
    grid->Add(facts_.back().name, wxSizerFlags().ReserveSpaceEvenIfHidden());
    grid->Add(facts_.back().text, wxSizerFlags().ReserveSpaceEvenIfHidden());
  }
  column->Add(grid, wxSizerFlags().Border(wxTOP, FromDIP(4)));
  return column;
}

void BridgeDialog::entered() {
  choices_->Clear();
  pause_.StartOnce(kPause);
  refresh();
  showChoices();
}

void BridgeDialog::seekChoice() {
  if (form_.seekChoice())
    pause_.StartOnce(kNext);
  showChoices();
}

void BridgeDialog::showChoices() {
  const std::vector<std::string> names = form_.choiceNames();
  for (std::size_t i = choices_->GetCount(); i < names.size(); ++i)
    choices_->Append(fromUtf8(names[i]));
  choices_->SetSelection(static_cast<int>(form_.choice()));
}

void BridgeDialog::refresh() {
  showEntries();
  showFacts();
  problem_->show(form_.problem());
  ok_->Enable(form_.ready());
  built_ = form_.built();
  PlanContent shown;
  if (form_.ready())
    for (const std::int32_t id : form_.plan().pieces)
      shown.pieces.push_back(*built_.findPiece(id));
  preview_.show(std::move(shown));
  for (PicturePanel* picture : pictures_)
    picture->Refresh();
}

void BridgeDialog::showEntries() {
  if (const std::vector<std::string> spans = form_.spanNames(); spans != shownSpans_) {
    span_->Clear();
    for (const std::string& name : spans)
      span_->Append(fromUtf8(name));
    shownSpans_ = spans;
  }
  span_->SetSelection(static_cast<int>(form_.span()));
  piers_->SetSelection(static_cast<int>(form_.piers()));
  wire_->SetValue(form_.wire());
  rampPieces_->SetValue(form_.rampPieces());
  rampPieces_->Enable(form_.uses(Field::RampLength));
  for (std::size_t i = 0; i < fields_.size(); ++i) {
    const auto field = static_cast<Field>(i);
    fields_.at(i)->Enable(form_.uses(field));
    if (const wxString text = fromUtf8(form_.text(field)); text != fields_.at(i)->GetValue())
      fields_.at(i)->ChangeValue(text);
  }
}

void BridgeDialog::showFacts() {
  const std::vector<std::string> crossed = form_.crossedNames();
  const wxString over = crossed.empty()
                            ? _("It crosses nothing.")
                            : wxString::Format(_("It crosses %s."), fromUtf8(joined(crossed)));
  crossed_->SetLabelText(over);
  crossed_->SetToolTip(over);
  std::vector<BridgeFact> facts = form_.facts();
  // Those of what is crossed come first, and the pictures have them as well.
  if (facts.size() > facts_.size())
    facts.erase(facts.begin(), facts.end() - static_cast<std::ptrdiff_t>(facts_.size()));
  for (std::size_t i = 0; i < facts_.size(); ++i) {
    const bool used = i < facts.size();
    facts_[i].name->Show(used);
    facts_[i].text->Show(used);
    if (!used)
      continue;
    facts_[i].name->SetLabelText(fromUtf8(facts[i].name));
    facts_[i].text->SetLabelText(fromUtf8(facts[i].text));
    facts_[i].text->SetToolTip(fromUtf8(facts[i].text));
  }
  Layout();
}

} // namespace trassix
