#pragma once

#include "panels/shape_form.h"

#include <wx/dialog.h>

class wxButton;

namespace trassix {

class ProblemText;

/// Asks for the size and the look of a rectangle; `place` is to be called after wxID_OK.
class RectangleDialog : public wxDialog {
 public:
  /// `centre` on the plan in mm.
  RectangleDialog(wxWindow* parent, trassix::Layout& layout, Point centre);

  bool place() { return form_.place(layout_); }

 private:
  void refresh();

  trassix::Layout& layout_;
  RectangleForm form_;
  ProblemText* problem_ = nullptr;
  wxButton* ok_ = nullptr;
};

} // namespace trassix
