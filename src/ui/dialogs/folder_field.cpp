#include "ui/dialogs/folder_field.h"

#include "app/desktop/path_text.h"

#include <wx/button.h>
#include <wx/dirdlg.h>
#include <wx/intl.h>
#include <wx/sizer.h>
#include <wx/textctrl.h>

#include <utility>

namespace trassix {

FolderField::FolderField(wxWindow* parent, const std::filesystem::path& folder, wxString question,
                         const wxString& name)
    : wxPanel(parent), question_(std::move(question)),
      text_(new wxTextCtrl(this, wxID_ANY, toText(folder), wxDefaultPosition, wxDefaultSize, 0,
                           wxDefaultValidator, name)) {
  auto* look = new wxButton(this, wxID_ANY, _("Browse..."));
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  row->Add(text_, wxSizerFlags(1).CenterVertical().Border(wxRIGHT, 8));
  row->Add(look, wxSizerFlags().CenterVertical());
  SetSizer(row);
  look->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { browse(); });
}

std::filesystem::path FolderField::folder() const {
  wxString typed = text_->GetValue();
  return toPath(typed.Trim(true).Trim(false));
}

void FolderField::browse() {
  wxDirDialog chooser(this, question_, toText(folder()), wxDD_DEFAULT_STYLE | wxDD_DIR_MUST_EXIST);
  if (chooser.ShowModal() == wxID_OK)
    text_->SetValue(chooser.GetPath());
}

} // namespace trassix
