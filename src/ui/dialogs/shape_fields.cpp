#include "ui/dialogs/shape_fields.h"

#include "editing/supports/grounds.h"
#include "ui/widgets/utf8.h"

#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/clrpicker.h>
#include <wx/dialog.h>
#include <wx/sizer.h>
#include <wx/spinctrl.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

namespace trassix {

namespace {

void addName(wxDialog& dialog, wxFlexGridSizer& grid, const wxString& label) {
  grid.Add(new wxStaticText(&dialog, wxID_ANY, label), wxSizerFlags().CenterVertical());
}

} // namespace

void addTextField(wxDialog& dialog, wxFlexGridSizer& grid, const wxString& label,
                  const char* controlName, const std::string& text,
                  const std::function<void(const std::string&)>& enter) {
  addName(dialog, grid, label);
  auto* field = new wxTextCtrl(&dialog, wxID_ANY, fromUtf8(text), wxDefaultPosition,
                               dialog.FromDIP(wxSize(220, -1)), 0, wxDefaultValidator, controlName);
  field->Bind(wxEVT_TEXT, [field, enter](wxCommandEvent&) { enter(toUtf8(field->GetValue())); });
  grid.Add(field, wxSizerFlags().Expand());
}

void addShapeFields(wxDialog& dialog, wxFlexGridSizer& grid, ShapeForm& form,
                    const std::function<void()>& changed) {
  addTextField(dialog, grid, _("&Label:"), "shapeLabel", form.shape.label,
               [&form, changed](const std::string& text) {
                 form.shape.label = text;
                 changed();
               });

  const Color& shown = form.shape.color;
  addName(dialog, grid, _("&Colour:"));
  auto* color = new wxColourPickerCtrl(&dialog, wxID_ANY, wxColour(shown.r, shown.g, shown.b));
  color->SetName("shapeColor");
  auto* outline = new wxCheckBox(&dialog, wxID_ANY, _("outline &only"));
  outline->SetName("shapeOutline");
  outline->SetValue(form.shape.outline);
  auto* colors = new wxBoxSizer(wxHORIZONTAL);
  colors->Add(color, wxSizerFlags().CenterVertical().Border(wxRIGHT, dialog.FromDIP(8)));
  colors->Add(outline, wxSizerFlags().CenterVertical());
  grid.Add(colors);
  grid.AddStretchSpacer();
  auto* water = new wxStaticText(&dialog, wxID_ANY, wxEmptyString);
  water->SetName("shapeWater");
  const auto tellWater = [water, &form] {
    water->SetLabel(isWater(form.shape) ? _("Mainly blue: it is water in the 3D view.")
                                        : _("Filled mainly blue it is water in the 3D view."));
  };
  tellWater();
  grid.Add(water);

  addName(dialog, grid, _("O&pacity:"));
  auto* opacity = new wxSpinCtrl(&dialog, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize,
                                 wxSP_ARROW_KEYS, 0, 100, form.opacityPercent(), "shapeOpacity");
  opacity->Enable(!form.shape.outline);
  auto* percent = new wxBoxSizer(wxHORIZONTAL);
  percent->Add(opacity);
  percent->Add(new wxStaticText(&dialog, wxID_ANY, "%"),
               wxSizerFlags().CenterVertical().Border(wxLEFT, dialog.FromDIP(6)));
  grid.Add(percent);

  addTextField(dialog, grid, _("&Height:"), "shapeHeight", form.height().text(),
               [&form, changed](const std::string& text) {
                 form.enterHeight(text);
                 changed();
               });

  addName(dialog, grid, _("Le&vel:"));
  auto* level = new wxChoice(&dialog, wxID_ANY);
  level->SetName("shapeLevel");
  for (const std::string& name : form.levelNames())
    level->Append(fromUtf8(name));
  level->SetSelection(static_cast<int>(form.level()));
  grid.Add(level, wxSizerFlags().Expand());

  color->Bind(wxEVT_COLOURPICKER_CHANGED, [&form, changed, tellWater](wxColourPickerEvent& event) {
    const wxColour colour = event.GetColour();
    form.shape.color = {colour.Red(), colour.Green(), colour.Blue()};
    tellWater();
    changed();
  });
  outline->Bind(wxEVT_CHECKBOX, [&form, changed, tellWater, opacity](wxCommandEvent& event) {
    form.shape.outline = event.IsChecked();
    tellWater();
    opacity->Enable(!event.IsChecked()); // a mere outline is never translucent
    changed();
  });
  // The text is read as well: it may be typed without leaving the field before Enter.
  const auto setOpacity = [&form, changed](int value) {
    form.setOpacity(value);
    changed();
  };
  opacity->Bind(wxEVT_SPINCTRL,
                [setOpacity](wxSpinEvent& event) { setOpacity(event.GetPosition()); });
  opacity->Bind(wxEVT_TEXT,
                [setOpacity, opacity](wxCommandEvent&) { setOpacity(opacity->GetValue()); });
  level->Bind(wxEVT_CHOICE, [&form, changed](wxCommandEvent& event) {
    form.setLevel(static_cast<std::size_t>(event.GetSelection()));
    changed();
  });
}

} // namespace trassix
