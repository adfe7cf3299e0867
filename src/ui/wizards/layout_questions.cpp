#include "ui/wizards/layout_questions.h"

#include "measures/measure_format.h"
#include "texts/texts.h"
#include "ui/widgets/problem_text.h"
#include "ui/widgets/utf8.h"
#include "ui/wizards/table_picture.h"

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <algorithm>
#include <utility>

namespace trassix {

namespace {

using Table = LayoutForm::Table;

constexpr int kTextWidth = 960;  // px, of notes and problems
constexpr int kHeight = 570;     // px, with all that may be said
const wxSize kPicture(600, 200); // px

constexpr std::pair<Table, const char*> kShapes[]{
    {Table::Rectangle, wxTRANSLATE("Rectangle by measures")},
    {Table::L, wxTRANSLATE("L by measures")},
    {Table::T, wxTRANSLATE("T by measures")},
    {Table::U, wxTRANSLATE("U by measures")},
    {Table::Z, wxTRANSLATE("Z by measures")},
    {Table::Free, wxTRANSLATE("Free outline")}};

constexpr std::array<const char*, LayoutForm::kMeasures> kMeasureControls{
    "layoutMeasure1", "layoutMeasure2", "layoutMeasure3", "layoutMeasure4"};

void fill(wxChoice& choice, const std::vector<std::string>& rows, std::size_t chosen) {
  wxArrayString texts;
  for (const std::string& row : rows)
    texts.Add(fromUtf8(row));
  if (choice.GetStrings() != texts)
    choice.Set(texts);
  choice.SetSelection(rows.empty() ? wxNOT_FOUND : static_cast<int>(chosen));
}

void fill(wxTextCtrl& field, const std::string& text) {
  if (const wxString shown = fromUtf8(text); field.GetValue() != shown)
    field.ChangeValue(shown);
}

template <class Value>
std::size_t placeOf(const std::vector<Value>& values, const Value& value) {
  return static_cast<std::size_t>(std::ranges::find(values, value) - values.begin());
}

} // namespace

LayoutQuestions::LayoutQuestions(wxWindow* parent, LayoutForm& form,
                                 const std::string& stockProblem, std::function<void()> changed)
    : wxPanel(parent), form_(form), changed_(std::move(changed)) {
  const int gap = FromDIP(10);
  // In the order in which Tab goes through them.
  auto* page = new wxBoxSizer(wxVERTICAL);
  page->Add(makeTrack(), wxSizerFlags().Expand().Border(wxBOTTOM, gap));
  page->Add(makeTable(), wxSizerFlags().Expand().Border(wxBOTTOM, gap));
  page->Add(makeMeasures(), wxSizerFlags().Expand());
  page->Add(makeSideLength());
  auto* columns = new wxBoxSizer(wxHORIZONTAL);
  columns->Add(makeWishes(stockProblem), wxSizerFlags().Expand());
  columns->AddSpacer(2 * gap);
  picture_ = new TablePicture(this, FromDIP(kPicture), form_, [this] { change(); });
  columns->Add(picture_, wxSizerFlags(1).Expand());
  page->Add(columns, wxSizerFlags(1).Expand().Border(wxTOP | wxBOTTOM, gap));
  page->Add(new wxStaticText(this, wxID_ANY,
                             _("Drag a corner, or choose one with Page Up and Page Down and move "
                               "it with the arrow keys. Double-click an edge, or press Ins, for "
                               "two more corners.")));
  notes_ = new wxStaticText(this, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize,
                            wxST_NO_AUTORESIZE, "layoutNotes");
  page->Add(notes_, wxSizerFlags().Expand().Border(wxTOP, gap));
  problem_ = new ProblemText(this, FromDIP(kTextWidth), 2);
  page->Add(problem_, wxSizerFlags().Expand().Border(wxTOP, gap));
  page->Add(makeRemedies());
  page->SetMinSize(-1, FromDIP(kHeight));
  SetSizer(page);
  refresh();
}

wxChoice* LayoutQuestions::makeChoice(const char* name, std::function<void(std::size_t)> chosen) {
  auto* choice = new wxChoice(this, wxID_ANY);
  choice->SetName(name);
  choice->Bind(wxEVT_CHOICE, [this, chosen = std::move(chosen)](wxCommandEvent& event) {
    chosen(static_cast<std::size_t>(event.GetSelection()));
    change();
  });
  return choice;
}

wxChoice* LayoutQuestions::addChoice(wxSizer& row, const wxString& label, const char* name,
                                     std::function<void(std::size_t)> chosen) {
  row.Add(new wxStaticText(this, wxID_ANY, label), wxSizerFlags().CenterVertical());
  wxChoice* choice = makeChoice(name, std::move(chosen));
  row.Add(choice, wxSizerFlags().Expand());
  return choice;
}

wxTextCtrl* LayoutQuestions::addLength(wxSizer& row, const wxString& label, const char* name,
                                       std::function<void(const std::string&)> enter) {
  row.Add(new wxStaticText(this, wxID_ANY, label), wxSizerFlags().CenterVertical());
  auto* field = new wxTextCtrl(this, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize, 0,
                               wxDefaultValidator, name);
  field->Bind(wxEVT_TEXT, [this, field, enter = std::move(enter)](wxCommandEvent&) {
    enter(toUtf8(field->GetValue()));
    change();
  });
  row.Add(field, wxSizerFlags().Expand());
  return field;
}

wxCheckBox* LayoutQuestions::makeCheck(const wxString& label, const char* name,
                                       std::function<void(bool)> checked) {
  auto* box = new wxCheckBox(this, wxID_ANY, label);
  box->SetName(name);
  box->Bind(wxEVT_CHECKBOX, [this, checked = std::move(checked)](wxCommandEvent& event) {
    checked(event.IsChecked());
    change();
  });
  return box;
}

wxSizer* LayoutQuestions::makeRow(int columns) {
  auto* row = new wxFlexGridSizer(columns, FromDIP(6), FromDIP(10));
  for (int column = 1; column < columns; column += 2)
    row->AddGrowableCol(static_cast<std::size_t>(column));
  return row;
}

wxSizer* LayoutQuestions::makeTrack() {
  wxSizer* row = makeRow(8);
  system_ = addChoice(*row, _("Track s&ystem:"), "layoutSystem", [this](std::size_t chosen) {
    form_.setSystem(LayoutForm::systems().at(chosen));
  });
  tracks_ = addChoice(*row, _("T&racks:"), "layoutTracks", [this](std::size_t chosen) {
    form_.setTracks(static_cast<int>(chosen) + 1);
  });
  radius_ = addChoice(*row, _("Cor&ner radius:"), "layoutRadius",
                      [this](std::size_t chosen) { form_.setRadius(chosen); });
  outer_ = addChoice(*row, _("&Outer radius:"), "layoutOuterRadius",
                     [this](std::size_t chosen) { form_.setOuterRadius(chosen); });
  outer_->SetToolTip(_("The difference of both radii is the distance of the tracks all along"));
  return row;
}

wxSizer* LayoutQuestions::makeTable() {
  wxSizer* row = makeRow(6);
  if (form_.mayUseOwn())
    tables_.push_back({Table::Own, 0, toUtf8(_("Baseboard of the plan"))});
  table_ = addChoice(*row, _("&Table:"), "layoutTable", [this](std::size_t chosen) {
    const TableRow& table = tables_.at(chosen);
    if (table.table == Table::Usual)
      form_.setUsual(table.usual);
    else
      form_.setTable(table.table);
  });
  distance_ = addLength(*row, _("Free e&dge:"), "layoutDistance",
                        [this](const std::string& text) { form_.enterDistance(text); });
  distance_->SetToolTip(_("From the bed of the track to the table's edge, at least"));
  preference_ = addChoice(*row, _("&Prefer:"), "layoutPreference", [this](std::size_t chosen) {
    form_.setPreference(static_cast<LayoutPreference>(chosen));
  });
  preference_->SetToolTip(_("What the first of all layouts is best at"));
  return row;
}

wxSizer* LayoutQuestions::makeMeasures() {
  wxSizer* row = makeRow(2 * LayoutForm::kMeasures);
  for (std::size_t i = 0; i < LayoutForm::kMeasures; ++i) {
    Measure& measure = measures_.at(i);
    measure.field = addLength(*row, "-", kMeasureControls.at(i),
                              [this, i](const auto& text) { form_.enterMeasure(i, text); });
    measure.name = static_cast<wxStaticText*>(row->GetItem(2 * i)->GetWindow());
  }
  return row;
}

wxSizer* LayoutQuestions::makeSideLength() {
  sideLength_ = makeRow(4);
  measuredSide_ =
      addChoice(*sideLength_, _("Side of the outline, &with its length:"), "layoutMeasuredSide",
                [this](std::size_t side) { form_.setMeasuredSide(side); });
  sideLengthField_ = addLength(*sideLength_, wxEmptyString, "layoutSideLength",
                               [this](const std::string& text) { form_.enterSideLength(text); });
  return sideLength_;
}

wxSizer* LayoutQuestions::makeTurns() {
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  const auto add = [&](const wxString& label, const char* name, void (LayoutForm::*turn)()) {
    auto* button = new wxButton(this, wxID_ANY, label, wxDefaultPosition, wxDefaultSize, 0,
                                wxDefaultValidator, name);
    button->Bind(wxEVT_BUTTON, [this, turn](wxCommandEvent&) {
      (form_.*turn)();
      change();
    });
    row->Add(button, wxSizerFlags().Border(wxRIGHT, FromDIP(8)));
    return button;
  };
  add(_("&Mirror"), "layoutMirror", &LayoutForm::mirror)
      ->SetToolTip(_("Turns the table over, left to right"));
  add(_("&Quarter Turn"), "layoutTurn", &LayoutForm::turn)
      ->SetToolTip(_("Turns the table to the right"));
  return row;
}

wxSizer* LayoutQuestions::makeWishes(const std::string& stockProblem) {
  auto* grid = new wxFlexGridSizer(2, FromDIP(6), FromDIP(10));
  const auto addSide = [&](wxCheckBox* wish, const char* name, auto choose) {
    grid->Add(wish, wxSizerFlags().CenterVertical());
    wxChoice* side = makeChoice(name, choose);
    side->SetToolTip(_("The side of the table where it is"));
    grid->Add(side, wxSizerFlags().Expand());
    return side;
  };
  station_ = makeCheck(_("Stat&ion"), "layoutStation", [this](bool on) { form_.setStation(on); });
  stationSide_ = addSide(station_, "layoutStationSide",
                         [this](std::size_t side) { form_.setStationSide(side); });
  sidings_ = addChoice(*grid, _("Sidin&gs:"), "layoutSidings", [this](std::size_t chosen) {
    form_.setSidings(static_cast<int>(chosen) + 1);
  });
  usable_ = addLength(*grid, _("&Usable length:"), "layoutUsable",
                      [this](const std::string& text) { form_.enterUsableLength(text); });
  usable_->SetToolTip(_("Room for a train in each siding, between the points where it would touch "
                        "one on the next track"));
  bridge_ = makeCheck(_("&Bridge"), "layoutBridge", [this](bool on) { form_.setBridge(on); });
  bridgeSide_ =
      addSide(bridge_, "layoutBridgeSide", [this](std::size_t side) { form_.setBridgeSide(side); });
  bridgeForm_ = addChoice(*grid, _("&Form:"), "layoutBridgeForm", [this](std::size_t chosen) {
    form_.setBridgeForm(static_cast<BridgeForm>(chosen));
  });
  ownOnly_ = makeCheck(_("Only track that I &have at home"), "layoutOwnOnly",
                       [this](bool only) { form_.setOwnStockOnly(only); });
  ownOnly_->SetToolTip(stockProblem.empty()
                           ? _("What you have is entered in the purchase list, beside the tally")
                           : fromUtf8(stockProblem));
  ownOnly_->Enable(stockProblem.empty());
  auto* column = new wxBoxSizer(wxVERTICAL);
  column->Add(grid);
  column->Add(ownOnly_, wxSizerFlags().Border(wxTOP, FromDIP(10)));
  column->AddStretchSpacer();
  column->Add(makeTurns(), wxSizerFlags().Border(wxTOP, FromDIP(10)));
  return column;
}

wxButton* LayoutQuestions::addRemedy(wxSizer& row, const wxString& label, const char* name,
                                     std::function<void()> take) {
  auto* button = new wxButton(this, wxID_ANY, label, wxDefaultPosition, wxDefaultSize, 0,
                              wxDefaultValidator, name);
  button->Bind(wxEVT_BUTTON, [this, take = std::move(take)](wxCommandEvent&) {
    take();
    focusFirst(); // the button goes
    change();
  });
  row.Add(button, wxSizerFlags().Border(wxRIGHT, FromDIP(8)));
  return button;
}

wxSizer* LayoutQuestions::makeRemedies() {
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  useTable_ = addRemedy(*row, _("Use the Near&est Table"), "layoutUseTable",
                        [this] { form_.setOutline(refusal_.outline); });
  useRadius_ = addRemedy(*row, _("Use the R&adius That Fits"), "layoutUseRadius",
                         [this] { form_.setRadius(placeOf(form_.radii(), refusal_.radius)); });
  useLength_ = addRemedy(*row, _("Ta&ke This Length"), "layoutUseLength", [this] {
    form_.enterUsableLength(formatLength(refusal_.usableLength, kMillimetres));
  });
  return row;
}

void LayoutQuestions::refuse(const LayoutRefusal& refusal) {
  refusal_ = refusal;
  showNotes();
}

void LayoutQuestions::focusFirst() {
  table_->SetFocus();
}

void LayoutQuestions::change() {
  refusal_ = {};
  refresh();
  changed_();
}

void LayoutQuestions::refresh() {
  std::vector<std::string> systems;
  for (const TrackSystem system : LayoutForm::systems())
    systems.emplace_back(systemName(system));
  fill(*system_, systems, placeOf(LayoutForm::systems(), form_.task().system));
  showTable();
  showTracks();
  showWishes();
  showNotes();
  picture_->Refresh();
  Layout();
}

void LayoutQuestions::showTable() {
  std::erase_if(tables_, [](const TableRow& row) { return row.table != Table::Own; });
  const std::vector<std::string> usual = form_.usualNames();
  for (std::size_t i = 0; i < usual.size(); ++i)
    tables_.push_back({Table::Usual, i, usual[i]});
  for (const auto& [table, name] : kShapes)
    tables_.push_back({table, 0, toUtf8(wxGetTranslation(name))});
  std::vector<std::string> names;
  std::size_t chosen = 0;
  for (const TableRow& row : tables_) {
    if (row.table == form_.table() && (row.table != Table::Usual || row.usual == form_.usual()))
      chosen = names.size();
    names.push_back(row.name);
  }
  fill(*table_, names, chosen);
  fill(*distance_, form_.distance().text());
  for (std::size_t i = 0; i < LayoutForm::kMeasures; ++i) {
    const std::string name = form_.measureName(i);
    measures_.at(i).name->SetLabel(fromUtf8(name) + ":");
    measures_.at(i).name->Show(!name.empty());
    measures_.at(i).field->Show(!name.empty());
    fill(*measures_.at(i).field, form_.measure(i).text());
  }
  sideLength_->ShowItems(form_.table() == Table::Free);
  fill(*measuredSide_, form_.sideNames(), form_.measuredSide());
  fill(*sideLengthField_, form_.sideLength().text());
}

void LayoutQuestions::showTracks() {
  fill(*tracks_, {toUtf8(_("One")), toUtf8(_("Two"))},
       static_cast<std::size_t>(form_.tracks() - 1));
  tracks_->Enable(form_.mayHaveTwoTracks());
  fill(*radius_, form_.radiusNames(), form_.radius());
  fill(*outer_, form_.outerRadiusNames(), form_.tracks() == 2 ? form_.outerRadius() : 0);
  outer_->Enable(form_.tracks() == 2);
}

void LayoutQuestions::showWishes() {
  const std::vector<std::string> sides = form_.sideNames();
  station_->SetValue(form_.hasStation());
  station_->Enable(form_.mayHaveStation());
  fill(*stationSide_, sides, form_.stationSide());
  std::vector<std::string> counts;
  for (int count = 1; count <= kMostSidings; ++count)
    counts.push_back(std::to_string(count));
  fill(*sidings_, counts, static_cast<std::size_t>(form_.sidings() - 1));
  fill(*usable_, form_.usableLength().text());
  for (wxWindow* field : std::initializer_list<wxWindow*>{stationSide_, sidings_, usable_})
    field->Enable(form_.hasStation());
  bridge_->SetValue(form_.hasBridge());
  bridge_->Enable(form_.mayHaveBridge());
  fill(*bridgeSide_, sides, form_.bridgeSide());
  fill(*bridgeForm_, {bridgeFormName(BridgeForm::Arch), bridgeFormName(BridgeForm::Truss)},
       static_cast<std::size_t>(form_.bridgeForm()));
  for (wxWindow* field : std::initializer_list<wxWindow*>{bridgeSide_, bridgeForm_})
    field->Enable(form_.hasBridge());
  ownOnly_->SetValue(form_.task().ownStockOnly);
  std::vector<std::string> preferences;
  for (std::size_t i = 0; i < kLayoutPreferenceCount; ++i)
    preferences.push_back(layoutPreferenceName(static_cast<LayoutPreference>(i)));
  fill(*preference_, preferences, static_cast<std::size_t>(form_.task().preference));
}

void LayoutQuestions::showNotes() {
  const std::string notes = joinTexts({form_.greeting(), form_.ownProblem(), form_.tracksProblem(),
                                       form_.stationProblem(), form_.bridgeProblem()},
                                      " ");
  showWrapped(*notes_, fromUtf8(notes), FromDIP(kTextWidth));
  notes_->Show(!notes.empty());
  const std::string problem = form_.problem();
  problem_->show(problem.empty() ? refusal_.text() : problem);
  useTable_->Show(!refusal_.outline.empty());
  useRadius_->Show(std::ranges::count(form_.radii(), refusal_.radius) > 0);
  useLength_->Show(refusal_.usableLength > 0);
  Layout();
}

} // namespace trassix
