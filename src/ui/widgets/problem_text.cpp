#include "ui/widgets/problem_text.h"

#include "ui/widgets/picture_panel.h"
#include "ui/widgets/utf8.h"

#include <wx/translation.h>

namespace trassix {

void showWrapped(wxStaticText& label, const wxString& text, int width) {
  label.SetLabelText(text);
  label.Wrap(width);
}

ProblemText::ProblemText(wxWindow* parent, int width, int lines)
    : wxStaticText(parent, wxID_ANY, wxEmptyString, wxDefaultPosition,
                   {width, parent->GetCharHeight() * lines + parent->FromDIP(4)},
                   wxST_NO_AUTORESIZE, "problem"),
      width_(width) {
  SetForegroundColour(darkTheme() ? wxColour(255, 150, 140) : wxColour(176, 24, 16));
}

void ProblemText::show(const std::string& problem) {
  showWrapped(*this, fromUtf8(problem), width_);
}

} // namespace trassix
