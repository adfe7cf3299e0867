#include "ui/properties/property_fields.h"

#include "host/questions.h"
#include "ui/widgets/picture_panel.h"
#include "ui/widgets/problem_text.h"
#include "ui/widgets/utf8.h"

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/clrpicker.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <algorithm>
#include <memory>
#include <utility>

namespace trassix {

namespace {

constexpr int kGap = 6;
constexpr int kLeastWrap = 120;
constexpr std::size_t kMostPages = 8;

/// Of the editing control, for tests and for accessibility tools.
wxString controlName(const Property& property) {
  return "property." + fromUtf8(std::string(property.key));
}

/// Whether both sheets can be shown by the same controls.
bool sameShape(const PropertySheet& a, const PropertySheet& b) {
  return std::ranges::equal(a.rows, b.rows, [](const Property& one, const Property& other) {
    return one.key == other.key && one.name == other.name && one.choices == other.choices &&
           one.mayBeNone == other.mayBeNone && one.editor == other.editor;
  });
}

wxColour toColour(const Color& color) {
  return {color.r, color.g, color.b};
}

} // namespace

PropertyFields::PropertyFields(wxWindow* parent, Workspace& workspace)
    : wxScrolledWindow(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                       wxVSCROLL | wxTAB_TRAVERSAL, "properties"),
      workspace_(workspace) {
  SetScrollRate(0, FromDIP(12));
  Bind(wxEVT_SIZE, [this, width = 0](wxSizeEvent& event) mutable {
    event.Skip();
    if (std::exchange(width, event.GetSize().x) != event.GetSize().x && !pages_.empty())
      arrange(true);
  });
  SetSizer(new wxBoxSizer(wxVERTICAL));
}

void PropertyFields::show(const PropertySheet& sheet) {
  const bool turns = pages_.empty() || !sameShape(sheet, pages_.front()->shape);
  if (turns)
    turnTo(sheet);
  sheet_ = sheet;
  refresh();
  arrange(turns);
}

void PropertyFields::turnTo(const PropertySheet& sheet) {
  const bool hadFocus = IsDescendant(FindFocus());
  const auto kept = std::ranges::find_if(
      pages_, [&sheet](const auto& page) { return sameShape(sheet, page->shape); });
  Page* before = pages_.empty() ? nullptr : pages_.front().get();
  if (before)
    for (const auto& [window, name] : before->names)
      window->SetName({});
  if (kept == pages_.end())
    pages_.insert(pages_.begin(), makePage(sheet));
  else
    std::rotate(pages_.begin(), kept, kept + 1);
  // Hiding a field takes the focus from it, which must enter nothing into the new sheet.
  if (before)
    before->window->Hide();
  Page& page = *pages_.front();
  for (const auto& [window, name] : page.names)
    window->SetName(name);
  page.window->Show();
  // Without a focus anywhere no key would do anything.
  if (hadFocus)
    SetFocus();
  if (pages_.size() > kMostPages) {
    wxWindow* oldest = pages_.back()->window;
    pages_.pop_back();
    GetSizer()->Detach(oldest);
    // One of its fields may be at work on the very key that brought us here.
    oldest->CallAfter([oldest] { oldest->Destroy(); });
  }
}

std::unique_ptr<PropertyFields::Page> PropertyFields::makePage(const PropertySheet& sheet) {
  auto page = std::make_unique<Page>();
  page->shape = sheet;
  page->rows.resize(sheet.rows.size());
  page->window = new wxPanel(this);
  page->title = new wxStaticText(page->window, wxID_ANY, wxEmptyString);
  page->title->SetFont(GetFont().Bold());
  page->names.emplace_back(page->title, "properties.title");
  const int gap = FromDIP(kGap);
  auto* grid = new wxFlexGridSizer(2, FromDIP(3), gap);
  grid->AddGrowableCol(1);
  for (std::size_t i = 0; i < sheet.rows.size(); ++i) {
    const Property& property = sheet.rows[i];
    auto* name = new wxStaticText(page->window, wxID_ANY, fromUtf8(property.name));
    page->rows[i].editor = makeEditor(*page, property, i);
    page->names.emplace_back(page->rows[i].editor, controlName(property));
    wxSizer* value = makeValue(*page, property, page->rows[i]);
    // In the middle of the field, not of what may stand below it.
    const int lower = (value->GetItem(std::size_t{0})->CalcMin().y - name->GetBestSize().y) / 2;
    grid->Add(name, wxSizerFlags().Border(wxTOP, std::max(lower, 0)));
    grid->Add(value, wxSizerFlags().Expand());
  }
  auto* column = new wxBoxSizer(wxVERTICAL);
  column->Add(page->title, wxSizerFlags().Expand().Border(wxALL, gap));
  column->Add(grid, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, gap));
  page->window->SetSizer(column);
  GetSizer()->Add(page->window, wxSizerFlags().Expand());
  return page;
}

wxWindow* PropertyFields::makeEditor(Page& page, const Property& property, std::size_t index) {
  wxWindow* parent = page.window;
  switch (property.editor) {
  case PropertyEditor::None:
    return new wxStaticText(parent, wxID_ANY, wxEmptyString, wxDefaultPosition, {1, -1},
                            wxST_ELLIPSIZE_END | wxST_NO_AUTORESIZE);
  case PropertyEditor::Choice: {
    auto* choice = new wxChoice(parent, wxID_ANY);
    for (const std::string& text : property.choices)
      choice->Append(fromUtf8(text));
    // The wheel scrolls the panel and must not change the plan on the way.
    choice->Bind(wxEVT_MOUSEWHEEL, [this](wxMouseEvent& event) {
      wxMouseEvent scroll(event);
      scroll.SetEventObject(this);
      ProcessWindowEvent(scroll);
    });
    choice->SetMinSize({1, -1});
    choice->Bind(wxEVT_CHOICE, [this, index](wxCommandEvent& event) {
      enter(index, static_cast<std::size_t>(event.GetSelection()));
    });
    return choice;
  }
  case PropertyEditor::Color: {
    auto* picker =
        new wxColourPickerCtrl(parent, wxID_ANY, *wxBLACK, wxDefaultPosition, wxDefaultSize, 0);
    picker->Bind(wxEVT_COLOURPICKER_CHANGED, [this, index](wxColourPickerEvent& event) {
      const wxColour colour = event.GetColour();
      enter(index, OwnColor(Color{colour.Red(), colour.Green(), colour.Blue()}));
    });
    return picker;
  }
  case PropertyEditor::Check: {
    auto* box = new wxCheckBox(parent, wxID_ANY, wxEmptyString);
    box->Bind(wxEVT_CHECKBOX,
              [this, index](wxCommandEvent& event) { enter(index, event.IsChecked()); });
    return box;
  }
  case PropertyEditor::Text:
    break;
  }
  auto* text = new wxTextCtrl(parent, wxID_ANY, wxEmptyString, wxDefaultPosition, {1, -1},
                              wxTE_PROCESS_ENTER);
  text->Bind(wxEVT_TEXT_ENTER, [this, index](wxCommandEvent&) { enterText(index); });
  text->Bind(wxEVT_KILL_FOCUS, [this, index, text](wxFocusEvent& event) {
    event.Skip();
    const std::vector<Row>& rows = pages_.front()->rows;
    if (index < rows.size() && rows[index].editor == text)
      enterText(index);
  });
  text->Bind(wxEVT_CHAR_HOOK, [this, index, text](wxKeyEvent& event) {
    const wxString value = fromUtf8(sheet_.rows[index].value);
    if (event.GetKeyCode() != WXK_ESCAPE || text->GetValue() == value) {
      event.Skip();
      return;
    }
    text->ChangeValue(value);
    text->SelectAll();
    showProblem(index, {});
  });
  return text;
}

wxSizer* PropertyFields::makeValue(Page& page, const Property& property, Row& row) {
  auto* line = new wxBoxSizer(wxHORIZONTAL);
  line->Add(row.editor, wxSizerFlags(1).CenterVertical());
  if (property.mayBeNone) {
    auto* none = new wxButton(page.window, wxID_ANY, _("None"), wxDefaultPosition, wxDefaultSize,
                              wxBU_EXACTFIT);
    page.names.emplace_back(none, "property.color.none");
    const auto index = static_cast<std::size_t>(&row - page.rows.data());
    none->Bind(wxEVT_BUTTON, [this, index](wxCommandEvent&) { enter(index, OwnColor()); });
    none->SetMinSize(none->GetBestSize() + wxSize(FromDIP(14), 0));
    line->Add(none, wxSizerFlags().CenterVertical().Border(wxLEFT, FromDIP(4)));
    row.none = none;
  }
  auto* column = new wxBoxSizer(wxVERTICAL);
  column->Add(line, wxSizerFlags().Expand());
  const auto under = [&](const char* what) {
    auto* text = new wxStaticText(page.window, wxID_ANY, wxEmptyString);
    text->Hide();
    page.names.emplace_back(text, controlName(property) + what);
    column->Add(text, wxSizerFlags().Expand());
    return text;
  };
  row.note = under(".note");
  row.note->SetFont(GetFont().Smaller());
  row.problem = under(".problem");
  row.problem->SetForegroundColour(problemColour());
  return column;
}

namespace {

// A control that is given what it shows would be laid out and painted for nothing.

void showText(wxStaticText& shown, const wxString& text) {
  if (shown.GetLabelText() == text)
    return;
  shown.SetLabelText(text);
  shown.SetToolTip(text);
}

void showText(wxTextCtrl& shown, const wxString& text) {
  if (shown.GetValue() != text)
    shown.ChangeValue(text);
}

void showColour(wxColourPickerCtrl& shown, const wxColour& colour) {
  if (shown.GetColour() != colour)
    shown.SetColour(colour);
}

} // namespace

void PropertyFields::refresh() {
  std::vector<Row>& rows = pages_.front()->rows;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const Property& property = sheet_.rows[i];
    wxWindow* editor = rows[i].editor;
    const wxString value = fromUtf8(property.value);
    switch (property.editor) {
    case PropertyEditor::None:
      showText(static_cast<wxStaticText&>(*editor), value);
      break;
    case PropertyEditor::Choice:
      static_cast<wxChoice*>(editor)->SetSelection(
          property.chosen ? static_cast<int>(*property.chosen) : wxNOT_FOUND);
      break;
    case PropertyEditor::Color:
      showColour(static_cast<wxColourPickerCtrl&>(*editor),
                 property.color ? toColour(*property.color) : wxColour(203, 198, 187));
      if (rows[i].none != nullptr)
        rows[i].none->Enable(!property.isNone);
      break;
    case PropertyEditor::Check:
      static_cast<wxCheckBox*>(editor)->SetValue(property.checked);
      break;
    case PropertyEditor::Text:
      showText(static_cast<wxTextCtrl&>(*editor), value);
      break;
    }
    rows[i].problemText.clear();
  }
}

void PropertyFields::arrange(bool anew) {
  if (anew)
    Layout(); // gives the fields their width
  const bool rewrapped = wrapTexts();
  if (rewrapped || anew)
    FitInside();
  if (!rewrapped)
    return;
  Layout();
  pages_.front()->window->Layout(); // which may be as large as before
}

bool PropertyFields::wrapTexts() {
  Page& page = *pages_.front();
  bool changed = false;
  const auto wrap = [&](wxStaticText& text, const std::string& label, int width) {
    auto& now = page.wrapped[&text];
    if (now == std::pair(label, label.empty() ? 0 : width))
      return;
    now = {label, label.empty() ? 0 : width};
    showWrapped(text, fromUtf8(label), width);
    text.Show(!label.empty());
    changed = true;
  };
  wrap(*page.title, sheet_.title, GetClientSize().x - 2 * FromDIP(kGap));
  for (std::size_t i = 0; i < page.rows.size(); ++i) {
    Row& row = page.rows[i];
    const int width = std::max(row.problem->GetContainingSizer()->GetSize().x, FromDIP(kLeastWrap));
    wrap(*row.note, sheet_.rows[i].note, width);
    wrap(*row.problem, row.problemText, width);
  }
  return changed;
}

void PropertyFields::enterPending() {
  const wxWindow* focus = FindFocus();
  for (std::size_t i = 0; i < sheet_.rows.size(); ++i) {
    if (pages_.front()->rows[i].editor == focus && sheet_.rows[i].editor == PropertyEditor::Text) {
      enterText(i);
      return;
    }
  }
}

void PropertyFields::enterText(std::size_t index) {
  const auto* text = static_cast<wxTextCtrl*>(pages_.front()->rows[index].editor);
  if (text->GetValue() == fromUtf8(sheet_.rows[index].value))
    showProblem(index, {});
  else
    enter(index, toUtf8(text->GetValue()));
}

void PropertyFields::enter(std::size_t index, const PropertyValue& value) {
  // A question put meanwhile takes the focus away, which would enter the value once more.
  if (std::exchange(entering_, true))
    return;
  const PropertyAnswer answer = [&] {
    const std::shared_ptr<void> entered(nullptr, [this](void*) { entering_ = false; });
    Questions& questions = workspace_.questions();
    const PropertyEdit edit = sheet_.rows[index].edit; // the row goes when the change is shown
    PropertyAnswer given = edit(workspace_.layout(), value, [&questions](const Question& question) {
      return questions.confirm(question);
    });
    if (given.refusal)
      questions.show(*given.refusal);
    if (given.changed)
      workspace_.changed();
    return given;
  }();
  if (index >= sheet_.rows.size())
    return;
  if (answer.problem.empty()) {
    refresh();
    arrange(false);
  } else
    showProblem(index, answer.problem);
}

void PropertyFields::showProblem(std::size_t index, const std::string& problem) {
  if (std::exchange(pages_.front()->rows[index].problemText, problem) != problem)
    arrange(false);
}

} // namespace trassix
