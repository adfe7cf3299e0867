#pragma once

#include "document/layout.h"
#include "ui/help/help_pages.h"

#include <wx/dialog.h>

#include <vector>

class wxListBox;
class wxSizer;
class wxStaticText;
class wxTextCtrl;

namespace trassix {

/// The help: its pages on the left, under a picture when the user likes it playful, and the chosen
/// one on the right, under plans when it has any. Stays open beside the work; closing only hides
/// it.
class HelpDialog : public wxDialog {
 public:
  explicit HelpDialog(wxWindow* parent);

  /// Shows this page and comes to the front.
  void showPage(HelpTopic topic);

 private:
  struct Figure {
    trassix::Layout plan;
    wxWindow* picture;
    wxStaticText* caption;
  };

  wxSizer* makeFigures();
  void fill();

  wxWindow* picture_;
  wxListBox* titles_;
  std::vector<Figure> figures_;
  wxTextCtrl* text_;
};

} // namespace trassix
