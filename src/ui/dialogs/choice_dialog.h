#pragma once

#include "host/questions.h"

#include <wx/dialog.h>

class wxStaticText;

namespace trassix {

class WrappedList;

/// One of several rows, the first one highlighted at the start; tells which row is highlighted so
/// that the plan can show it, and shows that row's note.
class ChoiceDialog : public wxDialog {
 public:
  ChoiceDialog(wxWindow* parent, const Choice& choice);

  /// Goes out of the way of a place on the screen that the user wants to see meanwhile.
  void leaveFree(wxPoint spot);

  std::size_t chosen() const;

 private:
  void highlight();

  Choice choice_;
  WrappedList* rows_;
  wxStaticText* note_;
};

} // namespace trassix
