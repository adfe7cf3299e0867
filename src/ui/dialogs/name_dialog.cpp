#include "ui/dialogs/name_dialog.h"

#include "ui/widgets/problem_text.h"
#include "ui/widgets/utf8.h"

#include <wx/sizer.h>

#include <utility>

namespace trassix {

NameAdvice adviseOnTyped(const wxString& name) {
  return adviseOnName(toUtf8(wxString(name).Trim(true).Trim(false)));
}

NameDialog::NameDialog(wxWindow* parent, const wxString& prompt, const wxString& title,
                       const wxString& value, Advise advise)
    : wxTextEntryDialog(parent, prompt, title, value, wxOK | wxCANCEL | wxCENTRE),
      advise_(std::move(advise)), line_(new ProblemText(this, FromDIP(360))) {
  constexpr std::size_t kBelowTheText = 2;
  GetSizer()->Insert(kBelowTheText, line_, wxSizerFlags().Expand().TripleBorder(wxLEFT | wxRIGHT));
  GetSizer()->SetSizeHints(this);
  Centre();
  m_textctrl->Bind(wxEVT_TEXT, [this](wxCommandEvent& event) {
    event.Skip();
    judge();
  });
  judge();
}

void NameDialog::judge() {
  const NameAdvice advice = advise_(m_textctrl->GetValue());
  line_->show(advice.line);
  FindWindow(wxID_OK)->Enable(!advice.leadsOut);
}

} // namespace trassix
