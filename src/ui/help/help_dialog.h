#pragma once

#include "ui/help/help_pages.h"

#include <wx/dialog.h>

class wxListBox;
class wxTextCtrl;

namespace trassix {

/// The help: its pages on the left, under a picture when the user likes it playful, and the chosen
/// one on the right. Stays open beside the work; closing only hides it.
class HelpDialog : public wxDialog {
 public:
  explicit HelpDialog(wxWindow* parent);

  /// Shows this page and comes to the front.
  void showPage(HelpTopic topic);

 private:
  void fill();

  wxWindow* picture_;
  wxListBox* titles_;
  wxTextCtrl* text_;
};

} // namespace trassix
