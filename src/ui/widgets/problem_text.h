#pragma once

#include <wx/stattext.h>

#include <string>

namespace trassix {

/// Shows a text as it is, also what stands for a shortcut in a label, and goes on below where it
/// gets wider than this (in px).
void showWrapped(wxStaticText& label, const wxString& text, int width);

/// A line of a dialog that says why an entry is refused. It keeps its room while there is nothing
/// to say, so that nothing moves while the user types.
class ProblemText : public wxStaticText {
 public:
  /// `width` in px as wide as the texts may become before they go on below.
  ProblemText(wxWindow* parent, int width, int lines = 1);

  /// A sentence of the core, to be translated; empty for none.
  void show(const std::string& problem);

 private:
  int width_;
};

} // namespace trassix
