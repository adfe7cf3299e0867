#pragma once

#include <wx/dialog.h>

namespace trassix {

/// The playful welcome at the start: a picture with name and version. Enter, Esc, a click on the
/// picture and its button all close it.
class SplashDialog : public wxDialog {
 public:
  explicit SplashDialog(wxWindow* parent);
};

} // namespace trassix
