#include "ui/dialogs/open_layout_dialog.h"

#include "app/desktop/path_text.h"
#include "ui/widgets/accept_later.h"
#include "ui/widgets/file_boxes.h"
#include "ui/widgets/utf8.h"
#include "ui/widgets/whole_window.h"

#include <wx/button.h>
#include <wx/listbox.h>
#include <wx/msgdlg.h>
#include <wx/sizer.h>

namespace trassix {

OpenLayoutDialog::OpenLayoutDialog(wxWindow* parent, SavedLayouts saved, Remove remove)
    : wxDialog(parent, wxID_ANY, _("Open Layout"), wxDefaultPosition,
               parent->FromDIP(wxSize(320, 420)), wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER),
      saved_(std::move(saved)), names_(saved_.names()), remove_(std::move(remove)) {
  rows_ = new wxListBox(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0, nullptr, wxLB_SINGLE,
                        wxDefaultValidator, "layouts");
  // Texts do not lead back to names in another encoding.
  for (std::string& name : names_)
    rows_->Append(fromUtf8(name), &name);
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  row->Add(new wxButton(this, wxID_DELETE, _("Delete...")));
  row->AddStretchSpacer();
  row->Add(new wxButton(this, wxID_OK, _("Open")), wxSizerFlags().Border(wxRIGHT, 8));
  row->Add(new wxButton(this, wxID_CANCEL, _("Cancel")));
  auto* sizer = new wxBoxSizer(wxVERTICAL);
  sizer->Add(rows_, wxSizerFlags(1).Expand().Border(wxALL, 8));
  sizer->Add(row, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, 8));
  SetSizer(sizer);
  FindWindow(wxID_OK)->SetName("open");
  static_cast<wxButton*>(FindWindow(wxID_OK))->SetDefault();
  enableButtons();
  rows_->SetFocus();
  showWhole(*this);
  Centre();

  rows_->Bind(wxEVT_LISTBOX, [this](wxCommandEvent&) { enableButtons(); });
  rows_->Bind(wxEVT_LISTBOX_DCLICK, [this](wxCommandEvent&) { acceptLater(*this); });
  Bind(
      wxEVT_BUTTON, [this](wxCommandEvent&) { deleteSelected(); }, wxID_DELETE);
}

void OpenLayoutDialog::enableButtons() {
  const bool selected = rows_->GetSelection() != wxNOT_FOUND;
  FindWindow(wxID_DELETE)->Enable(selected);
  FindWindow(wxID_OK)->Enable(selected);
}

std::optional<std::filesystem::path> OpenLayoutDialog::chosen() const {
  if (rows_->GetSelection() == wxNOT_FOUND)
    return {};
  const auto row = static_cast<unsigned>(rows_->GetSelection());
  return saved_.find(*static_cast<const std::string*>(rows_->GetClientData(row)));
}

void OpenLayoutDialog::deleteSelected() {
  const std::optional<std::filesystem::path> file = chosen();
  if (!file)
    return;
  const wxString question = wxString::Format(_("Delete layout \"%s\"?\n\nThis cannot be undone."),
                                             rows_->GetStringSelection());
  if (wxMessageBox(question, _("Delete Layout"), wxYES_NO | wxNO_DEFAULT | wxICON_WARNING, this) !=
      wxYES)
    return;
  if (const std::error_code error = remove_(*file)) {
    showFailure(this, _("Delete Failed"), _("Could not delete:\n") + toText(*file), error);
    return;
  }
  rows_->Delete(static_cast<unsigned>(rows_->GetSelection()));
  saved_.remove(*file);
  enableButtons();
}

} // namespace trassix
