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
    if (std::exchange(width, event.GetSize().x) != event.GetSize().x && title_ != nullptr)
      arrange();
  });
}

void PropertyFields::show(const PropertySheet& sheet) {
  const bool keeps = title_ != nullptr && sameShape(sheet, sheet_);
  sheet_ = sheet;
  if (!keeps)
    rebuild();
  refresh();
}

void PropertyFields::rebuild() {
  // Hiding a field takes the focus from it, which must enter nothing into the new sheet.
  rows_.clear();
  const bool hadFocus = IsDescendant(FindFocus());
  wxWindowList old = GetChildren();
  SetSizer(nullptr);
  for (wxWindow* child : old) {
    // One of them may be at work on the very key that brought us here.
    child->Hide();
    child->CallAfter([child] { child->Destroy(); });
  }
  rows_.assign(sheet_.rows.size(), {});
  title_ = new wxStaticText(this, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize, 0,
                            "properties.title");
  title_->SetFont(GetFont().Bold());
  const int gap = FromDIP(kGap);
  auto* grid = new wxFlexGridSizer(2, FromDIP(3), gap);
  grid->AddGrowableCol(1);
  for (std::size_t i = 0; i < sheet_.rows.size(); ++i) {
    const Property& property = sheet_.rows[i];
    auto* name = new wxStaticText(this, wxID_ANY, fromUtf8(property.name));
    rows_[i].editor = makeEditor(property, i);
    wxSizer* value = makeValue(property, rows_[i]);
    // In the middle of the field, not of what may stand below it.
    const int lower = (value->GetItem(std::size_t{0})->CalcMin().y - name->GetBestSize().y) / 2;
    grid->Add(name, wxSizerFlags().Border(wxTOP, std::max(lower, 0)));
    grid->Add(value, wxSizerFlags().Expand());
  }
  auto* column = new wxBoxSizer(wxVERTICAL);
  column->Add(title_, wxSizerFlags().Expand().Border(wxALL, gap));
  column->Add(grid, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, gap));
  SetSizer(column);
  // Without a focus anywhere no key would do anything.
  if (hadFocus)
    SetFocus();
}

wxWindow* PropertyFields::makeEditor(const Property& property, std::size_t index) {
  const wxString name = controlName(property);
  switch (property.editor) {
  case PropertyEditor::None:
    return new wxStaticText(this, wxID_ANY, wxEmptyString, wxDefaultPosition, {1, -1},
                            wxST_ELLIPSIZE_END | wxST_NO_AUTORESIZE, name);
  case PropertyEditor::Choice: {
    auto* choice = new wxChoice(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0, nullptr, 0,
                                wxDefaultValidator, name);
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
    auto* picker = new wxColourPickerCtrl(this, wxID_ANY, *wxBLACK, wxDefaultPosition,
                                          wxDefaultSize, 0, wxDefaultValidator, name);
    picker->Bind(wxEVT_COLOURPICKER_CHANGED, [this, index](wxColourPickerEvent& event) {
      const wxColour colour = event.GetColour();
      enter(index, OwnColor(Color{colour.Red(), colour.Green(), colour.Blue()}));
    });
    return picker;
  }
  case PropertyEditor::Check: {
    auto* box = new wxCheckBox(this, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize, 0,
                               wxDefaultValidator, name);
    box->Bind(wxEVT_CHECKBOX,
              [this, index](wxCommandEvent& event) { enter(index, event.IsChecked()); });
    return box;
  }
  case PropertyEditor::Text:
    break;
  }
  auto* text = new wxTextCtrl(this, wxID_ANY, wxEmptyString, wxDefaultPosition, {1, -1},
                              wxTE_PROCESS_ENTER, wxDefaultValidator, name);
  text->Bind(wxEVT_TEXT_ENTER, [this, index](wxCommandEvent&) { enterText(index); });
  text->Bind(wxEVT_KILL_FOCUS, [this, index, text](wxFocusEvent& event) {
    event.Skip();
    if (index < rows_.size() && rows_[index].editor == text)
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

wxSizer* PropertyFields::makeValue(const Property& property, Row& row) {
  auto* line = new wxBoxSizer(wxHORIZONTAL);
  line->Add(row.editor, wxSizerFlags(1).CenterVertical());
  if (property.mayBeNone) {
    auto* none = new wxButton(this, wxID_ANY, _("None"), wxDefaultPosition, wxDefaultSize,
                              wxBU_EXACTFIT, wxDefaultValidator, "property.color.none");
    const auto index = static_cast<std::size_t>(&row - rows_.data());
    none->Bind(wxEVT_BUTTON, [this, index](wxCommandEvent&) { enter(index, OwnColor()); });
    none->SetMinSize(none->GetBestSize() + wxSize(FromDIP(14), 0));
    line->Add(none, wxSizerFlags().CenterVertical().Border(wxLEFT, FromDIP(4)));
    row.none = none;
  }
  auto* column = new wxBoxSizer(wxVERTICAL);
  column->Add(line, wxSizerFlags().Expand());
  row.note = new wxStaticText(this, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize, 0,
                              controlName(property) + ".note");
  row.note->SetFont(GetFont().Smaller());
  column->Add(row.note, wxSizerFlags().Expand());
  row.problem = new wxStaticText(this, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize, 0,
                                 controlName(property) + ".problem");
  row.problem->SetForegroundColour(problemColour());
  column->Add(row.problem, wxSizerFlags().Expand());
  return column;
}

void PropertyFields::refresh() {
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    const Property& property = sheet_.rows[i];
    wxWindow* editor = rows_[i].editor;
    const wxString value = fromUtf8(property.value);
    switch (property.editor) {
    case PropertyEditor::None:
      static_cast<wxStaticText*>(editor)->SetLabelText(value);
      editor->SetToolTip(value);
      break;
    case PropertyEditor::Choice:
      static_cast<wxChoice*>(editor)->SetSelection(
          property.chosen ? static_cast<int>(*property.chosen) : wxNOT_FOUND);
      break;
    case PropertyEditor::Color:
      static_cast<wxColourPickerCtrl*>(editor)->SetColour(property.color ? toColour(*property.color)
                                                                         : wxColour(203, 198, 187));
      if (rows_[i].none != nullptr)
        rows_[i].none->Enable(!property.isNone);
      break;
    case PropertyEditor::Check:
      static_cast<wxCheckBox*>(editor)->SetValue(property.checked);
      break;
    case PropertyEditor::Text:
      static_cast<wxTextCtrl*>(editor)->ChangeValue(value);
      break;
    }
    rows_[i].problemText.clear();
  }
  arrange();
}

void PropertyFields::arrange() {
  Layout(); // gives the fields their width
  wrapTexts();
  FitInside();
  Layout();
}

void PropertyFields::wrapTexts() {
  const auto wrap = [](wxStaticText& text, const std::string& label, int width) {
    showWrapped(text, fromUtf8(label), width);
    text.Show(!label.empty());
  };
  wrap(*title_, sheet_.title, GetClientSize().x - 2 * FromDIP(kGap));
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    const int width =
        std::max(rows_[i].problem->GetContainingSizer()->GetSize().x, FromDIP(kLeastWrap));
    wrap(*rows_[i].note, sheet_.rows[i].note, width);
    wrap(*rows_[i].problem, rows_[i].problemText, width);
  }
}

void PropertyFields::enterPending() {
  const wxWindow* focus = FindFocus();
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    if (rows_[i].editor == focus && sheet_.rows[i].editor == PropertyEditor::Text) {
      enterText(i);
      return;
    }
  }
}

void PropertyFields::enterText(std::size_t index) {
  const auto* text = static_cast<wxTextCtrl*>(rows_[index].editor);
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
  if (index >= rows_.size())
    return;
  if (answer.problem.empty())
    refresh();
  else
    showProblem(index, answer.problem);
}

void PropertyFields::showProblem(std::size_t index, const std::string& problem) {
  if (std::exchange(rows_[index].problemText, problem) != problem)
    arrange();
}

} // namespace trassix
