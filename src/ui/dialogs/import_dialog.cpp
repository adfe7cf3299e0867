#include "ui/dialogs/import_dialog.h"

#include "app/desktop/path_text.h"
#include "ui/dialogs/folder_field.h"
#include "ui/dialogs/name_dialog.h"
#include "ui/dialogs/saved_layouts.h"
#include "ui/widgets/accept_later.h"
#include "ui/widgets/problem_text.h"
#include "ui/widgets/utf8.h"
#include "ui/widgets/whole_window.h"

#include <wx/button.h>
#include <wx/intl.h>
#include <wx/listbox.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

namespace trassix {

ImportDialog::ImportDialog(wxWindow* parent, const std::filesystem::path& folder)
    : wxDialog(parent, wxID_ANY, _("Import Layout"), wxDefaultPosition,
               parent->FromDIP(wxSize(440, 480)), wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER,
               "import") {
  auto* sizer = new wxBoxSizer(wxVERTICAL);
  const auto row = wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, 8);
  const auto label = [&](const wxString& text) {
    sizer->Add(new wxStaticText(this, wxID_ANY, text), wxSizerFlags().Border(wxALL, 8));
  };
  label(_("Source folder:"));
  folder_ = new FolderField(this, folder, _("Choose folder containing layout file"), "source");
  sizer->Add(folder_, row);
  label(_("Layout files in this folder:"));
  names_ = new wxListBox(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0, nullptr, wxLB_SINGLE,
                         wxDefaultValidator, "files");
  sizer->Add(names_, wxSizerFlags(row).Proportion(1));
  label(_("Import as:"));
  name_ = new wxTextCtrl(this, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize, 0,
                         wxDefaultValidator, "name");
  sizer->Add(name_, row);
  problem_ = new ProblemText(this, FromDIP(420));
  sizer->Add(problem_, row);
  auto* buttons = new wxBoxSizer(wxHORIZONTAL);
  buttons->AddStretchSpacer();
  auto* accept = new wxButton(this, wxID_OK, _("Import"));
  buttons->Add(accept, wxSizerFlags().Border(wxRIGHT, 8));
  buttons->Add(new wxButton(this, wxID_CANCEL, _("Cancel")));
  sizer->Add(buttons, wxSizerFlags().Expand().Border(wxALL, 8));
  SetSizer(sizer);
  accept->SetDefault();
  list();
  names_->SetFocus();
  showWhole(*this);
  Centre();

  folder_->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { list(); });
  names_->Bind(wxEVT_LISTBOX, [this](wxCommandEvent&) { offerName(); });
  names_->Bind(wxEVT_LISTBOX_DCLICK, [this](wxCommandEvent&) { acceptLater(*this); });
  name_->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { enableButtons(); });
}

void ImportDialog::list() {
  files_ = SavedLayouts(folder_->folder()).files();
  names_->Clear();
  for (const std::filesystem::path& file : files_)
    names_->Append(toText(file.filename()));
  enableButtons();
}

void ImportDialog::offerName() {
  // A name that the user typed stays.
  if (names_->GetSelection() != wxNOT_FOUND && (layoutName().empty() || layoutName() == offered_)) {
    offered_ = fromUtf8(withoutSeparators(toUtf8(toText(source().stem()))));
    name_->SetValue(offered_);
  }
  enableButtons();
}

void ImportDialog::enableButtons() {
  const NameAdvice advice = adviseOnTyped(layoutName());
  problem_->show(advice.line);
  FindWindow(wxID_OK)->Enable(names_->GetSelection() != wxNOT_FOUND && !layoutName().empty() &&
                              !advice.leadsOut);
}

const std::filesystem::path& ImportDialog::source() const {
  return files_.at(static_cast<std::size_t>(names_->GetSelection()));
}

wxString ImportDialog::layoutName() const {
  wxString typed = name_->GetValue();
  return typed.Trim(true).Trim(false);
}

} // namespace trassix
