#pragma once

#include "panels/shape_form.h"

#include <wx/dialog.h>

class wxButton;

namespace trassix {

class ProblemText;

/// Edits what a shape looks like and where it belongs; `wanted` is to be used after wxID_OK.
class ShapeDialog : public wxDialog {
 public:
  /// Ends the dialog when the shape shall become the baseboard.
  static constexpr int kUseAsBaseboard = wxID_HIGHEST + 1;

  ShapeDialog(wxWindow* parent, const trassix::Layout& layout, const Shape& shape);

  const Shape& wanted() const { return form_.shape; }

 private:
  void refresh();

  ShapeForm form_;
  ProblemText* problem_ = nullptr;
  wxButton* ok_ = nullptr;
};

} // namespace trassix
