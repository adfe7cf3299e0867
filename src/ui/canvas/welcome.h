#pragma once

#include "editing/canvas/surface.h"

#include <wx/panel.h>

namespace trassix {

/// What an empty plan shows: quiet words on the sheet itself, and below them this window, a click
/// on which opens a sample. It never takes the focus from the plan.
class Welcome : public wxPanel {
 public:
  explicit Welcome(wxWindow* canvas);

  /// The words, on a canvas of this size.
  static void paintWords(Surface& surface, SizePx size);

  bool AcceptsFocus() const override { return false; }
  bool AcceptsFocusFromKeyboard() const override { return false; }
  bool AcceptsFocusRecursively() const override { return false; }

 private:
  void onPaint(wxPaintEvent& event);
  void openSample();

  wxString label_;
};

} // namespace trassix
