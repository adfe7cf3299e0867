#include "ui/dialogs/level_manager_dialog.h"

#include "measures/measure_format.h"
#include "ui/dialogs/choice_dialog.h"
#include "ui/widgets/accept_later.h"
#include "ui/widgets/problem_text.h"
#include "ui/widgets/utf8.h"

#include <wx/bmpbndl.h>
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/clrpicker.h>
#include <wx/dcmemory.h>
#include <wx/listctrl.h>
#include <wx/msgdlg.h>
#include <wx/sizer.h>
#include <wx/statline.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

namespace trassix {

namespace {

enum Column { kName, kHeight, kState, kItems };

wxColour toColour(const Color& color) {
  return {color.r, color.g, color.b};
}

wxBitmap swatch(const Color& color, int side) {
  wxBitmap bitmap(side, side);
  wxMemoryDC dc(bitmap);
  dc.SetBrush(toColour(color));
  dc.SetPen(wxPen(wxColour(110, 110, 110)));
  dc.DrawRectangle(0, 0, side, side);
  return bitmap;
}

} // namespace

LevelManagerDialog::LevelManagerDialog(wxWindow* parent, trassix::Layout& layout)
    : wxDialog(parent, wxID_ANY, _("Levels"), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER, "levels"),
      layout_(layout), levels_(layout) {
  const int gap = FromDIP(10);
  auto* columns = new wxBoxSizer(wxHORIZONTAL);
  makeList();
  columns->Add(list_, wxSizerFlags(1).Expand());
  columns->Add(makeFields(), wxSizerFlags().Expand().Border(wxLEFT, FromDIP(16)));
  problem_ = new ProblemText(this, FromDIP(660));
  auto* page = new wxBoxSizer(wxVERTICAL);
  page->Add(columns, wxSizerFlags(1).Expand().Border(wxALL, gap));
  page->Add(problem_, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT, gap));
  page->Add(new wxStaticText(this, wxID_ANY,
                             _("Undo brings back what stands on the levels, but not the levels "
                               "themselves.")),
            wxSizerFlags().Border(wxLEFT | wxRIGHT, gap));
  page->Add(makeButtons(), wxSizerFlags().Expand().Border(wxALL, gap));
  bindFields();
  fillList();
  select(levels_.active());
  SetSizerAndFit(page);
  CentreOnParent();
  list_->SetFocus();
}

void LevelManagerDialog::makeList() {
  list_ = new wxListView(this, wxID_ANY, wxDefaultPosition, FromDIP(wxSize(400, 240)),
                         wxLC_REPORT | wxLC_SINGLE_SEL);
  list_->SetName("levelList");
  list_->AppendColumn(_("Name"), wxLIST_FORMAT_LEFT, FromDIP(150));
  list_->AppendColumn(_("Height"), wxLIST_FORMAT_RIGHT, FromDIP(100));
  list_->AppendColumn(_("State"), wxLIST_FORMAT_LEFT, FromDIP(70));
  list_->AppendColumn(_("Items"), wxLIST_FORMAT_RIGHT, FromDIP(60));
  list_->Bind(wxEVT_LIST_ITEM_SELECTED, [this](wxListEvent& event) {
    showLevel(static_cast<std::size_t>(event.GetIndex()));
  });
  list_->Bind(wxEVT_LIST_ITEM_DESELECTED,
              [this](wxListEvent&) { CallAfter(&LevelManagerDialog::keepSelection); });
  list_->Bind(wxEVT_LIST_ITEM_ACTIVATED, [this](wxListEvent&) { makeActive(); });
  Bind(wxEVT_CHAR_HOOK, &LevelManagerDialog::onCharHook, this);
}

wxSizer* LevelManagerDialog::makeFields() {
  const int gap = FromDIP(8);
  const auto label = [this](const wxString& text) {
    return new wxStaticText(this, wxID_ANY, text);
  };
  auto* grid = new wxFlexGridSizer(2, gap, gap);
  grid->AddGrowableCol(1);
  const auto named = wxSizerFlags().CenterVertical();
  grid->Add(label(_("&Name:")), named);
  name_ = new wxTextCtrl(this, wxID_ANY, wxEmptyString, wxDefaultPosition, FromDIP(wxSize(230, -1)),
                         0, wxDefaultValidator, "levelName");
  grid->Add(name_, wxSizerFlags().Expand());
  grid->Add(label(_("&Height:")), named);
  height_ = new wxTextCtrl(this, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize, 0,
                           wxDefaultValidator, "levelHeight");
  height_->SetToolTip(_("Above the floor that all heights are counted from. The level's track is "
                        "lifted with it; where it is joined to track of other levels, it comes "
                        "apart."));
  grid->Add(height_, wxSizerFlags().Expand());
  grid->Add(label(_("&Colour:")), named);
  auto* colours = new wxBoxSizer(wxHORIZONTAL);
  color_ = new wxColourPickerCtrl(this, wxID_ANY);
  color_->SetName("levelColor");
  trackColor_ = new wxCheckBox(this, wxID_ANY, _("for its &track too"));
  trackColor_->SetName("levelTrackColor");
  trackColor_->SetToolTip(_("Without it only the level's outline has the colour"));
  colours->Add(color_, wxSizerFlags().CenterVertical().Border(wxRIGHT, gap));
  colours->Add(trackColor_, wxSizerFlags().CenterVertical());
  grid->Add(colours, wxSizerFlags().Expand());
  grid->AddSpacer(0);
  auto* state = new wxBoxSizer(wxHORIZONTAL);
  visible_ = new wxCheckBox(this, wxID_ANY, _("&Visible"));
  visible_->SetName("levelVisible");
  active_ = new wxButton(this, wxID_ANY, _("&Make Active"));
  active_->SetName("levelActive");
  active_->SetToolTip(
      _("The active level is drawn in full, the others faded; new shapes are put on it"));
  state->Add(visible_, wxSizerFlags(1).CenterVertical());
  state->Add(active_, wxSizerFlags().CenterVertical());
  grid->Add(state, wxSizerFlags().Expand());

  auto* column = new wxBoxSizer(wxVERTICAL);
  column->Add(grid, wxSizerFlags().Expand());
  column->Add(new wxStaticLine(this), wxSizerFlags().Expand().Border(wxTOP | wxBOTTOM, gap));
  column->Add(makeOutlineRow(), wxSizerFlags().Expand());
  return column;
}

wxSizer* LevelManagerDialog::makeOutlineRow() {
  const int gap = FromDIP(8);
  outline_ = new wxStaticText(this, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize, 0,
                              "levelOutline");
  const auto button = [this](const wxString& text, const char* name) {
    auto* made = new wxButton(this, wxID_ANY, text);
    made->SetName(name);
    return made;
  };
  fromBoard_ = button(_("From &Baseboard"), "outlineFromBoard");
  fromShape_ = button(_("From &Shape"), "outlineFromShape");
  draw_ = button(_("Dra&w on Plan"), "outlineDraw");
  noOutline_ = button(_("Non&e"), "outlineNone");
  draw_->SetToolTip(_("Takes the changes over and closes this window: then click the corners on "
                      "the plan"));
  auto* buttons = new wxGridSizer(2, gap, gap);
  for (wxButton* made : {fromBoard_, fromShape_, draw_, noOutline_})
    buttons->Add(made, wxSizerFlags().Expand());
  auto* column = new wxBoxSizer(wxVERTICAL);
  column->Add(outline_, wxSizerFlags().Border(wxBOTTOM, gap));
  column->Add(buttons, wxSizerFlags().Expand());
  return column;
}

wxSizer* LevelManagerDialog::makeButtons() {
  const int gap = FromDIP(8);
  auto* add = new wxButton(this, wxID_ADD, _("&Add"));
  remove_ = new wxButton(this, wxID_DELETE, _("&Delete..."));
  ok_ = new wxButton(this, wxID_OK);
  auto* buttons = new wxBoxSizer(wxHORIZONTAL);
  buttons->Add(add, wxSizerFlags().Border(wxRIGHT, gap));
  buttons->Add(remove_);
  buttons->AddStretchSpacer();
  auto* ends = new wxStdDialogButtonSizer;
  ends->AddButton(ok_);
  ends->AddButton(new wxButton(this, wxID_CANCEL));
  ends->Realize();
  buttons->Add(ends);
  add->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { this->add(); });
  remove_->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { remove(); });
  ok_->Bind(wxEVT_BUTTON, [this](wxCommandEvent& event) { event.Skip(mayOpenTrack()); });
  ok_->SetDefault();
  return buttons;
}

void LevelManagerDialog::bindFields() {
  const auto edit = [this](auto change) {
    return [this, change](const wxEvent&) {
      change(shown_);
      refresh();
    };
  };
  name_->Bind(wxEVT_TEXT, edit([this](std::size_t place) {
                levels_.enterName(place, toUtf8(name_->GetValue()));
              }));
  height_->Bind(wxEVT_TEXT, edit([this](std::size_t place) {
                  levels_.enterHeight(place, toUtf8(height_->GetValue()));
                }));
  const auto setColor = edit([this](std::size_t place) {
    const wxColour colour = color_->GetColour();
    levels_.setTrackColor(place, trackColor_->GetValue(),
                          {colour.Red(), colour.Green(), colour.Blue()});
  });
  color_->Bind(wxEVT_COLOURPICKER_CHANGED, setColor);
  trackColor_->Bind(wxEVT_CHECKBOX, setColor);
  visible_->Bind(wxEVT_CHECKBOX, edit([this](std::size_t place) {
                   levels_.setVisible(place, visible_->GetValue());
                 }));
  active_->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { makeActive(); });
  fromBoard_->Bind(wxEVT_BUTTON,
                   edit([this](std::size_t place) { levels_.outlineFromBaseboard(place); }));
  fromShape_->Bind(wxEVT_BUTTON,
                   edit([this](std::size_t place) { levels_.outlineFromShape(place); }));
  noOutline_->Bind(wxEVT_BUTTON,
                   edit([this](std::size_t place) { levels_.setOutline(place, {}); }));
  draw_->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { draw(); });
}

void LevelManagerDialog::fillList() {
  list_->DeleteAllItems();
  for (std::size_t place = 0; place < levels_.size(); ++place)
    list_->InsertItem(static_cast<long>(place), wxEmptyString);
  swatches_.clear();
}

void LevelManagerDialog::showRow(std::size_t place) {
  const auto item = static_cast<long>(place);
  const LevelList::Row& row = levels_.row(place);
  const auto set = [this, item](Column column, const wxString& text) {
    if (list_->GetItemText(item, column) != text)
      list_->SetItem(item, column, text);
  };
  set(kName, fromUtf8(row.name));
  set(kHeight, fromUtf8(formatLength(row.height.mm(), levels_.units())));
  set(kState, place == levels_.active() ? _("active")
              : row.level.visible       ? wxString()
                                        : _("hidden"));
  set(kItems, wxString::Format("%zu", levels_.contentCount(place)));
}

void LevelManagerDialog::select(std::size_t place) {
  list_->Select(static_cast<long>(place));
  list_->Focus(static_cast<long>(place));
  showLevel(place);
}

void LevelManagerDialog::keepSelection() {
  // A click below the rows takes the selection away, but the fields still show a level.
  if (list_->GetFirstSelected() == -1)
    select(shown_);
}

void LevelManagerDialog::showLevel(std::size_t place) {
  shown_ = place;
  const LevelList::Row& row = levels_.row(place);
  const auto setText = [](wxTextCtrl& field, const std::string& text) {
    if (field.GetValue() != fromUtf8(text))
      field.ChangeValue(fromUtf8(text));
  };
  setText(*name_, row.name);
  setText(*height_, row.height.text());
  refresh();
}

void LevelManagerDialog::showSwatches() {
  std::vector<Color> colors;
  for (std::size_t place = 0; place < levels_.size(); ++place)
    colors.push_back(levels_.row(place).level.color);
  if (colors == swatches_)
    return;
  swatches_ = std::move(colors);
  const int side = FromDIP(14);
  wxVector<wxBitmapBundle> images;
  for (const Color& color : swatches_)
    images.push_back(wxBitmapBundle::FromBitmaps(swatch(color, side), swatch(color, 2 * side)));
  list_->SetSmallImages(images);
  for (int row = 0; row < list_->GetItemCount(); ++row)
    list_->SetItemImage(row, row);
}

void LevelManagerDialog::refresh() {
  showSwatches();
  for (std::size_t place = 0; place < levels_.size(); ++place)
    showRow(place);
  const std::size_t place = shown_;
  const Level& level = levels_.row(place).level;
  color_->SetColour(toColour(level.color));
  trackColor_->SetValue(level.trackcolor);
  visible_->SetValue(level.visible);
  active_->Enable(place != levels_.active());
  LevelList trial = levels_;
  const std::string stays = level.visible ? trial.setVisible(place, false) : std::string();
  visible_->Enable(stays.empty());
  visible_->SetToolTip(stays.empty() ? _("A hidden level is neither drawn nor changed by mistake")
                                     : fromUtf8(stays));
  remove_->Enable(levels_.canRemove());
  remove_->SetToolTip(levels_.canRemove() ? _("Asks what becomes of the things on the level")
                                          : _("A plan has at least one level"));
  const std::size_t corners = level.outline.size();
  outline_->SetLabel(corners == 0 ? _("Outline: none")
                                  : wxString::Format(_("Outline: %zu corners"), corners));
  fromBoard_->Enable(levels_.baseboardThere());
  fromBoard_->SetToolTip(levels_.baseboardThere() ? _("As large as the baseboard")
                                                  : _("The plan has no baseboard yet"));
  fromShape_->Enable(levels_.shapeThere());
  fromShape_->SetToolTip(levels_.shapeThere()
                             ? _("The selected shape becomes the outline of the level")
                             : _("Select one shape on the plan first, whose outline does not "
                                 "cross itself"));
  noOutline_->Enable(corners != 0);

  const std::optional<std::size_t> bad =
      levels_.problem(place).empty() ? levels_.firstProblem() : std::optional(place);
  std::string problem = bad ? levels_.problem(*bad) : std::string();
  if (bad && *bad != place)
    problem = levels_.row(*bad).name + ": " + problem;
  problem_->show(problem);
  ok_->Enable(!bad);
  draw_->Enable(!bad);
}

void LevelManagerDialog::add() {
  const std::size_t place = levels_.add();
  fillList();
  select(place);
  name_->SetFocus();
  name_->SelectAll();
}

void LevelManagerDialog::remove() {
  const std::size_t place = shown_;
  if (!levels_.canRemove())
    return;
  std::optional<std::size_t> heir;
  if (const std::size_t count = levels_.contentCount(place); count != 0) {
    std::vector<std::size_t> heirs;
    const auto name = [this](std::size_t at) { return levels_.row(at).name; };
    Choice choice;
    choice.title = _("Delete Level").utf8_string();
    choice.line = toUtf8(wxString::Format(
        wxPLURAL("%zu item stands on \"%s\". What becomes of it?",
                 "%zu items stand on \"%s\". What becomes of them?", static_cast<unsigned>(count)),
        count, fromUtf8(name(place))));
    for (std::size_t other = 0; other < levels_.size(); ++other) {
      if (other == place)
        continue;
      heirs.push_back(other);
      choice.rows.push_back(toUtf8(wxString::Format(_("Move to \"%s\""), fromUtf8(name(other)))));
    }
    const std::string lock = levels_.contentLock(place);
    if (lock.empty())
      choice.rows.push_back(toUtf8(_("Delete")));
    else
      choice.line.append("\n").append(lock).append(" ").append(toUtf8(_("It can be moved only.")));
    choice.accept = toUtf8(_("Delete Level"));
    ChoiceDialog question(this, choice);
    if (question.ShowModal() != wxID_OK)
      return;
    if (question.chosen() < heirs.size())
      heir = heirs[question.chosen()];
  }
  levels_.remove(place, heir);
  fillList();
  select(std::min(place, levels_.size() - 1));
  list_->SetFocus();
}

void LevelManagerDialog::makeActive() {
  levels_.setActive(shown_);
  refresh();
}

bool LevelManagerDialog::mayOpenTrack() {
  const std::string question = levels_.openingQuestion();
  return question.empty() || wxMessageBox(fromUtf8(question), _("Levels"),
                                          wxYES_NO | wxNO_DEFAULT | wxICON_WARNING, this) == wxYES;
}

void LevelManagerDialog::draw() {
  if (!mayOpenTrack())
    return;
  levelToDraw_ = levels_.row(shown_).level.id;
  EndModal(wxID_OK);
}

void LevelManagerDialog::onCharHook(wxKeyEvent& event) {
  const int key = event.GetKeyCode();
  const bool inList = list_->IsDescendant(FindFocus());
  if (inList && (key == WXK_RETURN || key == WXK_NUMPAD_ENTER))
    acceptLater(*this); // the list would take the key for a double-click
  else if (inList && (key == WXK_DELETE || key == WXK_NUMPAD_DELETE))
    remove();
  else
    event.Skip();
}

ChangeResult LevelManagerDialog::apply() {
  return levels_.apply(layout_);
}

} // namespace trassix
