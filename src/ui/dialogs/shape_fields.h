#pragma once

#include "panels/shape_form.h"

#include <wx/string.h>

#include <functional>

class wxDialog;
class wxFlexGridSizer;

namespace trassix {

/// Adds the fields of a shape, with their names, to the two columns of a dialog. Each change goes
/// to the form, which must outlive the dialog's controls; `changed` is called then.
void addShapeFields(wxDialog& dialog, wxFlexGridSizer& grid, ShapeForm& form,
                    const std::function<void()>& changed);

/// One named text field of such a grid; `enter` takes what is typed.
void addTextField(wxDialog& dialog, wxFlexGridSizer& grid, const wxString& label,
                  const char* controlName, const std::string& text,
                  const std::function<void(const std::string&)>& enter);

} // namespace trassix
