#include "ui/problem_text.h"

#include "ui/picture_panel.h"
#include "ui/utf8.h"

#include <wx/translation.h>

namespace trassix {

ProblemText::ProblemText(wxWindow* parent, int width, int lines)
    : wxStaticText(parent, wxID_ANY, wxEmptyString, wxDefaultPosition,
                   {width, parent->GetCharHeight() * lines + parent->FromDIP(4)},
                   wxST_NO_AUTORESIZE, "problem"),
      width_(width) {
  SetForegroundColour(darkTheme() ? wxColour(255, 150, 140) : wxColour(176, 24, 16));
}

void ProblemText::show(const std::string& problem) {
  SetLabel(EscapeMnemonics(wxGetTranslation(fromUtf8(problem))));
  Wrap(width_);
}

} // namespace trassix
