#include "ui/dialogs/export_dialog.h"

#include "ui/dialogs/folder_field.h"
#include "ui/dialogs/name_dialog.h"
#include "ui/widgets/accept_later.h"
#include "ui/widgets/problem_text.h"
#include "ui/widgets/utf8.h"
#include "ui/widgets/whole_window.h"

#include <wx/button.h>
#include <wx/filename.h>
#include <wx/intl.h>
#include <wx/listbox.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <utility>

namespace trassix {

ExportDialog::ExportDialog(wxWindow* parent, SavedLayouts saved,
                           const std::filesystem::path& destination)
    : wxDialog(parent, wxID_ANY, _("Export Layout"), wxDefaultPosition,
               parent->FromDIP(wxSize(440, 480)), wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER,
               "export"),
      saved_(std::move(saved)), fileNames_(saved_.names()) {
  auto* sizer = new wxBoxSizer(wxVERTICAL);
  const auto row = wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, 8);
  const auto label = [&](const wxString& text) {
    sizer->Add(new wxStaticText(this, wxID_ANY, text), wxSizerFlags().Border(wxALL, 8));
  };
  label(_("Choose a layout to export:"));
  names_ = new wxListBox(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0, nullptr, wxLB_SINGLE,
                         wxDefaultValidator, "layouts");
  for (const std::string& name : fileNames_)
    names_->Append(fromUtf8(name));
  sizer->Add(names_, wxSizerFlags(row).Proportion(1));
  label(_("Destination:"));
  folder_ = new FolderField(this, destination, _("Choose destination folder"), "destination");
  sizer->Add(folder_, row);
  label(_("Save as (no extension):"));
  name_ = new wxTextCtrl(this, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize, 0,
                         wxDefaultValidator, "name");
  sizer->Add(name_, row);
  problem_ = new ProblemText(this, FromDIP(420));
  sizer->Add(problem_, row);
  auto* buttons = new wxBoxSizer(wxHORIZONTAL);
  buttons->AddStretchSpacer();
  auto* accept = new wxButton(this, wxID_OK, _("Export"));
  buttons->Add(accept, wxSizerFlags().Border(wxRIGHT, 8));
  buttons->Add(new wxButton(this, wxID_CANCEL, _("Cancel")));
  sizer->Add(buttons, wxSizerFlags().Expand().Border(wxALL, 8));
  SetSizer(sizer);
  accept->SetDefault();
  enableButtons();
  names_->SetFocus();
  showWhole(*this);
  Centre();

  names_->Bind(wxEVT_LISTBOX, [this](wxCommandEvent&) { offerName(); });
  names_->Bind(wxEVT_LISTBOX_DCLICK, [this](wxCommandEvent&) { acceptLater(*this); });
  folder_->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { enableButtons(); });
  name_->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { enableButtons(); });
}

void ExportDialog::offerName() {
  // A name that the user typed stays.
  if (typedName().empty() || typedName() == offered_) {
    offered_ = fromUtf8(withoutSeparators(toUtf8(names_->GetStringSelection())));
    name_->SetValue(offered_);
  }
  enableButtons();
}

void ExportDialog::enableButtons() {
  const NameAdvice advice = adviseOnTyped(fileName());
  problem_->show(advice.line);
  FindWindow(wxID_OK)->Enable(names_->GetSelection() != wxNOT_FOUND && !folder_->folder().empty() &&
                              !typedName().empty() && !advice.leadsOut);
}

std::filesystem::path ExportDialog::source() const {
  return saved_.find(fileNames_.at(static_cast<std::size_t>(names_->GetSelection())))
      .value_or(std::filesystem::path());
}

std::filesystem::path ExportDialog::destination() const {
  return folder_->folder();
}

wxString ExportDialog::typedName() const {
  wxString typed = name_->GetValue();
  return typed.Trim(true).Trim(false);
}

wxString ExportDialog::fileName() const {
  // An offered name is no typed one: what follows a point in it belongs to it.
  if (typedName() == offered_)
    return offered_;
  const wxString name = wxFileName::StripExtension(typedName());
  return name.empty() ? typedName() : name;
}

} // namespace trassix
