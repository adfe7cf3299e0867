#include "ui/help/help_dialog.h"

#include "app/services/app_prefs.h"
#include "document/layout_reader.h"
#include "embedded/helpPlans.h"
#include "ui/canvas/small_pictures.h"
#include "ui/widgets/picture_panel.h"
#include "ui/widgets/railway_scene.h"
#include "ui/widgets/utf8.h"

#include <wx/button.h>
#include <wx/intl.h>
#include <wx/listbox.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

namespace trassix {

namespace {

constexpr int kGap = 12;
const wxSize kFigure(160, 110);
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
  auto* right = new wxBoxSizer(wxVERTICAL);
  right->Add(makeFigures(), wxSizerFlags().Expand());
  right->Add(text_, wxSizerFlags(1).Expand());
  pages->Add(right, wxSizerFlags(1).Expand());
  auto* sizer = new wxBoxSizer(wxVERTICAL);
  sizer->Add(pages, wxSizerFlags(1).Expand().Border(wxALL, FromDIP(kGap)));
  sizer->Add(new wxButton(this, wxID_CLOSE, _("Close")),
             wxSizerFlags().Right().Border(wxLEFT | wxRIGHT | wxBOTTOM, FromDIP(kGap)));
  SetSizer(sizer);
  SetEscapeId(wxID_CLOSE);
  SetAffirmativeId(wxID_CLOSE);
  titles_->Bind(wxEVT_LISTBOX, [this](wxCommandEvent&) { fill(); });
}

wxSizer* HelpDialog::makeFigures() {
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  figures_.reserve(helpPlans().size()); // the pictures paint what is in it
  for (const auto bytes : helpPlans()) {
    Figure& figure = figures_.emplace_back();
    std::string name;
    readLayout({reinterpret_cast<const char*>(bytes.data()), bytes.size()}, figure.plan, name);
    figure.picture = new PicturePanel(
        this, FromDIP(kFigure), [&figure](wxGraphicsContext& context, const wxSize& size, bool) {
          paintSmallPlan(context, size, figure.plan);
        });
    figure.caption = new wxStaticText(this, wxID_ANY, wxEmptyString);
    auto* column = new wxBoxSizer(wxVERTICAL);
    column->Add(figure.picture, wxSizerFlags(1).Expand());
    column->Add(figure.caption, wxSizerFlags().Border(wxTOP | wxBOTTOM, FromDIP(4)));
    row->Add(column, wxSizerFlags(1).Expand().Border(wxRIGHT, FromDIP(kGap)));
  }
  return row;
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
  for (std::size_t i = 0; i < figures_.size(); ++i) {
    const bool there = i < page.captions.size();
    figures_[i].picture->Show(there);
    figures_[i].caption->Show(there);
    if (there)
      figures_[i].caption->SetLabel(wxGetTranslation(page.captions[i]));
  }
  Layout();
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
