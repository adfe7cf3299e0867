#pragma once

#include <wx/panel.h>

#include <functional>

class wxGraphicsContext;

namespace trassix {

/// A piece of window that paints itself with vectors, at the screen's own resolution.
class PicturePanel : public wxPanel {
 public:
  /// Paints the whole of the given size; the last argument tells of a dark desktop theme.
  using Painter = std::function<void(wxGraphicsContext&, const wxSize&, bool)>;

  PicturePanel(wxWindow* parent, const wxSize& size, Painter painter);

  // There is nothing in a picture for the keyboard.
  bool AcceptsFocus() const override { return false; }
  bool AcceptsFocusFromKeyboard() const override { return false; }

 private:
  Painter painter_;
};

/// Whether the desktop shows light text on dark ground.
bool darkTheme();

/// For the text that says what is wrong.
wxColour problemColour();

} // namespace trassix
