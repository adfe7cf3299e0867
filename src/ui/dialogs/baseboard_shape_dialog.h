#pragma once

#include "panels/board_form.h"

#include <wx/dialog.h>

#include <array>

class wxButton;
class wxRadioButton;
class wxSizer;
class wxStaticText;
class wxTextCtrl;

namespace trassix {

class BoardPreview;
class ProblemText;

/// Chooses the baseboard of a plan; the plan itself changes only by `apply`, after wxID_OK.
class BaseboardShapeDialog : public wxDialog {
 public:
  /// Ends the dialog when the user wants to draw the outline on the plan now.
  static constexpr int kDraw = wxID_HIGHEST + 1;

  BaseboardShapeDialog(wxWindow* parent, trassix::Layout& layout);

  bool apply() { return form_.apply(layout_); }

 private:
  wxSizer* makeChoices();
  wxSizer* makeTurns();
  wxSizer* makeMeasures();
  wxSizer* makeFree();
  void showChoice();
  void refresh(); ///< what depends on the entries

  trassix::Layout& layout_;
  BoardForm form_;
  std::array<wxRadioButton*, 6> choices_{};
  std::array<wxStaticText*, BoardForm::kMeasures> names_{};
  std::array<wxTextCtrl*, BoardForm::kMeasures> fields_{};
  wxSizer* measures_ = nullptr;
  wxSizer* free_ = nullptr;
  wxStaticText* corners_ = nullptr;
  BoardPreview* preview_ = nullptr;
  ProblemText* problem_ = nullptr;
  wxButton* mirror_ = nullptr;
  wxButton* turn_ = nullptr;
  wxButton* ok_ = nullptr;
};

} // namespace trassix
