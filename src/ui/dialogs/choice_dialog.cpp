#include "ui/dialogs/choice_dialog.h"

#include "ui/widgets/accept_later.h"
#include "ui/widgets/utf8.h"
#include "ui/widgets/wrapped_list.h"

#include <wx/button.h>
#include <wx/display.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include <algorithm>

namespace trassix {

ChoiceDialog::ChoiceDialog(wxWindow* parent, const Choice& choice)
    : wxDialog(parent, wxID_ANY, fromUtf8(choice.title), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER),
      choice_(choice) {
  wxArrayString texts;
  for (const std::string& row : choice.rows)
    texts.Add(fromUtf8(row));
  rows_ = new WrappedList(this, texts, "rows");
  int widest = 0;
  for (const wxString& text : texts)
    widest = std::max(widest, rows_->GetTextExtent(text).x);
  // The plan, on which the rows are shown, is to be seen beside it.
  const wxSize least = FromDIP(wxSize(320, 180));
  const int most = wxDisplay(parent).GetClientArea().width * 3 / 5;
  rows_->SetMinSize({std::clamp(widest + FromDIP(30), least.x, std::max(least.x, most)), least.y});
  note_ = new wxStaticText(this, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize,
                           wxST_NO_AUTORESIZE);
  auto* buttons = new wxStdDialogButtonSizer;
  buttons->AddButton(
      new wxButton(this, wxID_OK, wxControl::EscapeMnemonics(fromUtf8(choice.accept))));
  buttons->AddButton(new wxButton(this, wxID_CANCEL));
  buttons->Realize();

  auto* sizer = new wxBoxSizer(wxVERTICAL);
  sizer->Add(new wxStaticText(this, wxID_ANY, wxControl::EscapeMnemonics(fromUtf8(choice.line))),
             wxSizerFlags().Border(wxALL, FromDIP(10)));
  sizer->Add(rows_, wxSizerFlags(1).Expand().Border(wxLEFT | wxRIGHT, FromDIP(10)));
  sizer->Add(note_, wxSizerFlags().Expand().Border(wxALL, FromDIP(10)));
  sizer->Add(buttons, wxSizerFlags().Right().Border(wxALL, FromDIP(10)));
  SetSizerAndFit(sizer);
  SetDefaultItem(FindWindow(wxID_OK));
  rows_->SetFocus();
  CentreOnParent();

  rows_->Bind(wxEVT_LISTBOX, [this](wxCommandEvent&) { highlight(); });
  rows_->Bind(wxEVT_LISTBOX_DCLICK, [this](wxCommandEvent&) { acceptLater(*this); });
  // This sort of list keeps Enter from the dialog.
  rows_->Bind(wxEVT_KEY_DOWN, [this](wxKeyEvent& event) {
    if (event.GetKeyCode() == WXK_RETURN || event.GetKeyCode() == WXK_NUMPAD_ENTER)
      acceptLater(*this);
    else
      event.Skip();
  });
  CallAfter([this] { highlight(); });
}

void ChoiceDialog::leaveFree(wxPoint spot) {
  const int margin = FromDIP(50);
  wxRect place = GetRect();
  if (!wxRect(place).Inflate(margin).Contains(spot))
    return;
  const wxRect room = wxDisplay(GetParent()).GetClientArea();
  place.y = spot.y + margin;
  if (place.GetBottom() > room.GetBottom())
    place.y = std::max(room.y, spot.y - margin - place.height);
  Move(place.GetPosition());
}

std::size_t ChoiceDialog::chosen() const {
  return static_cast<std::size_t>(std::max(0, rows_->GetSelection()));
}

void ChoiceDialog::highlight() {
  if (rows_->GetSelection() == wxNOT_FOUND)
    return;
  if (chosen() < choice_.notes.size())
    note_->SetLabel(wxControl::EscapeMnemonics(fromUtf8(choice_.notes[chosen()])));
  if (choice_.highlighted)
    choice_.highlighted(chosen());
}

} // namespace trassix
