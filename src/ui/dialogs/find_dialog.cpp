#include "ui/dialogs/find_dialog.h"

#include "host/workspace.h"
#include "ui/widgets/utf8.h"
#include "ui/widgets/wrapped_list.h"

#include <wx/button.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <algorithm>
#include <span>

namespace trassix {

FindDialog::FindDialog(wxWindow* parent, Workspace& workspace)
    : wxDialog(parent, wxID_ANY, _("Find"), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER, "find"),
      workspace_(workspace),
      text_(new wxTextCtrl(this, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize,
                           wxTE_PROCESS_ENTER, wxDefaultValidator, "findText")),
      rows_(new WrappedList(this, {}, "findRows")),
      count_(new wxStaticText(this, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize,
                              wxST_NO_AUTORESIZE)) {
  text_->SetHint(_("Article, name or label"));
  rows_->SetMinSize(FromDIP(wxSize(320, 90)));
  auto* sizer = new wxBoxSizer(wxVERTICAL);
  const auto row = wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxTOP, FromDIP(8));
  sizer->Add(text_, row);
  sizer->Add(rows_, wxSizerFlags(row).Proportion(1));
  sizer->Add(count_, row);
  sizer->Add(new wxButton(this, wxID_CANCEL, _("&Close")),
             wxSizerFlags().Right().Border(wxALL, FromDIP(8)));
  SetSizerAndFit(sizer);
  // At the top, so that what is found and shown in the middle is to be seen.
  CentreOnParent();
  Move(GetPosition().x, parent->GetScreenPosition().y);
  text_->SetFocus();
  find();

  text_->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { find(); });
  text_->Bind(wxEVT_TEXT_ENTER, [this](wxCommandEvent&) { EndModal(wxID_OK); });
  text_->Bind(wxEVT_KEY_DOWN, &FindDialog::onKey, this);
  rows_->Bind(wxEVT_LISTBOX, [this](wxCommandEvent&) { showOnPlan(); });
}

void FindDialog::find() {
  const wxString wanted = text_->GetValue();
  found_ = findOnPlan(workspace_.layout(), toUtf8(wanted));
  wxArrayString texts;
  for (const Found& found : found_)
    texts.Add(fromUtf8(found.text));
  rows_->setRows(texts);
  count_->SetLabel(!found_.empty()    ? wxString::Format(_("Found: %zu"), found_.size())
                   : wanted.IsEmpty() ? wxString()
                                      : _("Nothing like it on a visible level"));
  showOnPlan();
}

void FindDialog::showOnPlan() {
  if (rows_->GetSelection() == wxNOT_FOUND)
    return;
  const Pick chosen = found_.at(static_cast<std::size_t>(rows_->GetSelection())).record;
  const auto box = selectThese(workspace_.layout(), std::span(&chosen, 1));
  workspace_.selectionChanged();
  workspace_.showSelected();
  if (box)
    workspace_.show(*box, true);
}

void FindDialog::onKey(wxKeyEvent& event) {
  const int step = event.GetKeyCode() == WXK_DOWN ? 1 : event.GetKeyCode() == WXK_UP ? -1 : 0;
  if (step == 0 || found_.empty())
    return event.Skip();
  rows_->SetSelection(
      std::clamp(rows_->GetSelection() + step, 0, static_cast<int>(found_.size()) - 1));
  showOnPlan();
}

} // namespace trassix
