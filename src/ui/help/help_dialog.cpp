#include "ui/help/help_dialog.h"

#include "app/services/app_prefs.h"
#include "ui/widgets/picture_panel.h"
#include "ui/widgets/railway_scene.h"
#include "ui/widgets/utf8.h"

#include <wx/button.h>
#include <wx/intl.h>
#include <wx/listbox.h>
#include <wx/sizer.h>
#include <wx/textctrl.h>

namespace trassix {

namespace {

constexpr int kGap = 12;
/// Where the meaning of a key begins, in tenths of a millimetre.
constexpr int kKeyColumn = 480;

wxTextAttr lineStyle(const wxFont& font) {
  wxTextAttr style;
  style.SetFont(font);
  wxArrayInt tabs;
  tabs.Add(kKeyColumn);
  style.SetTabs(tabs);
  return style;
}

} // namespace

HelpDialog::HelpDialog(wxWindow* parent)
    : wxDialog(parent, wxID_ANY, _("Trassix Help"), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER, "help"),
      picture_(new PicturePanel(this, FromDIP(wxSize(230, 115)), paintRailwayScene)),
      titles_(new wxListBox(this, wxID_ANY, wxDefaultPosition, FromDIP(wxSize(230, 260)), 0,
                            nullptr, wxLB_SINGLE, wxDefaultValidator, "pages")),
      text_(new wxTextCtrl(this, wxID_ANY, wxEmptyString, wxDefaultPosition,
                           FromDIP(wxSize(530, 380)),
                           wxTE_MULTILINE | wxTE_READONLY | wxTE_RICH2 | wxTE_BESTWRAP,
                           wxDefaultValidator, "page")) {
  text_->SetMargins(FromDIP(kGap), FromDIP(kGap));
  for (const HelpPage& page : helpPages())
    titles_->Append(wxGetTranslation(page.title));
  auto* pages = new wxBoxSizer(wxHORIZONTAL);
  auto* left = new wxBoxSizer(wxVERTICAL);
  left->Add(picture_, wxSizerFlags().Expand().Border(wxBOTTOM, FromDIP(kGap)));
  left->Add(titles_, wxSizerFlags(1).Expand());
  pages->Add(left, wxSizerFlags().Expand().Border(wxRIGHT, FromDIP(kGap)));
  pages->Add(text_, wxSizerFlags(1).Expand());
  auto* sizer = new wxBoxSizer(wxVERTICAL);
  sizer->Add(pages, wxSizerFlags(1).Expand().Border(wxALL, FromDIP(kGap)));
  sizer->Add(new wxButton(this, wxID_CLOSE, _("Close")),
             wxSizerFlags().Right().Border(wxLEFT | wxRIGHT | wxBOTTOM, FromDIP(kGap)));
  SetSizer(sizer);
  SetEscapeId(wxID_CLOSE);
  SetAffirmativeId(wxID_CLOSE);
  titles_->Bind(wxEVT_LISTBOX, [this](wxCommandEvent&) { fill(); });
}

void HelpDialog::showPage(HelpTopic topic) {
  picture_->Show(appPrefs().playful);
  if (!IsShown()) {
    GetSizer()->Fit(this);
    CentreOnParent();
  }
  int row = 0;
  for (const HelpPage& page : helpPages()) {
    if (page.topic == topic)
      titles_->SetSelection(row);
    ++row;
  }
  fill();
  Show();
  Raise();
  titles_->SetFocus();
}

void HelpDialog::fill() {
  const HelpPage& page = helpPages()[static_cast<std::size_t>(titles_->GetSelection())];
  const wxFont body = text_->GetFont();
  const wxTextAttr plain = lineStyle(body);
  const wxTextAttr bold = lineStyle(body.Bold());
  text_->Clear();
  const auto write = [this](const wxTextAttr& style, const wxString& words) {
    text_->SetDefaultStyle(style);
    text_->AppendText(words);
  };
  write(lineStyle(body.Scaled(1.5F).Bold()), wxGetTranslation(page.title) + "\n");
  bool inKeys = false;
  bool apart = true; // whether the line stands apart from the one before it
  for (const char* line : page.lines) {
    const wxString words = wxGetTranslation(fromUtf8(line));
    const bool heading = words.StartsWith("# ");
    const bool keys = words.Contains("|");
    if (apart || (!keys && !heading && inKeys) || heading)
      write(plain, "\n");
    if (heading) {
      write(bold, words.Mid(2) + "\n");
    } else if (keys) {
      write(bold, words.BeforeFirst('|') + "\t");
      write(plain, words.AfterFirst('|') + "\n");
    } else {
      write(plain, words + "\n");
    }
    inKeys = keys;
    apart = !heading && !keys;
  }
  text_->ShowPosition(0);
  text_->SetInsertionPoint(0);
}

} // namespace trassix
