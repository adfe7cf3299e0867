#pragma once

#include <wx/dialog.h>

namespace trassix {

/// "Choose Your Experience": two cards, one for each mode. Ends with the id of the pressed card or,
/// after Esc, the close box or its cancel button, with wxID_CANCEL.
class ExperienceDialog : public wxDialog {
 public:
  static constexpr int kPlayful = wxID_HIGHEST + 1;
  static constexpr int kBusiness = wxID_HIGHEST + 2;

  explicit ExperienceDialog(wxWindow* parent);
};

/// Puts the question, takes the answer into the preferences and writes them. A dismissed question
/// changes nothing, so that it is put again at the next start when it was never answered.
void askExperience(wxWindow* parent);

/// Puts the question over the application's top window as soon as its main event loop runs, that
/// is, after the welcome of the start is closed.
void askExperienceOnceRunning();

} // namespace trassix
