#include "ui/palette_panel.h"

#include "catalog/track_catalog.h"
#include "ui/piece_list.h"
#include "ui/utf8.h"

#include <wx/choice.h>
#include <wx/sizer.h>
#include <wx/srchctrl.h>

#include <algorithm>

namespace trassix {

PalettePanel::PalettePanel(wxWindow* parent, Actions actions)
    : wxPanel(parent), actions_(std::move(actions)),
      choice_(new wxChoice(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0, nullptr, 0,
                           wxDefaultValidator, "systems")),
      search_(new wxSearchCtrl(this, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize, 0,
                               wxDefaultValidator, "search")),
      list_(new PieceList(
          this, [this](const PieceDef& piece) { actions_.drag(piece.article); },
          [this](const PieceDef& piece) { actions_.activate(piece.article); })) {
  search_->SetDescriptiveText(_("Article, name or number"));
  search_->ShowCancelButton(true);
  choice_->SetToolTip(_("Track system"));
  auto* sizer = new wxBoxSizer(wxVERTICAL);
  sizer->Add(choice_, wxSizerFlags().Expand().Border(wxALL, FromDIP(4)));
  sizer->Add(search_, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, FromDIP(4)));
  sizer->Add(list_, wxSizerFlags(1).Expand());
  SetSizer(sizer);
  choice_->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { fill(); });
  search_->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { fill(); });
  search_->Bind(wxEVT_SEARCHCTRL_CANCEL_BTN, [this](wxCommandEvent&) { search_->Clear(); });
}

void PalettePanel::populate() {
  const TrackCatalog& catalog = TrackCatalog::instance();
  systems_.clear();
  choice_->Clear();
  for (std::int32_t i = 0; i < catalog.count(); ++i) {
    const TrackSystem system = catalog.at(i)->system;
    if (std::find(systems_.begin(), systems_.end(), system) == systems_.end()) {
      systems_.push_back(system);
      choice_->Append(fromUtf8(systemName(system)));
    }
  }
  choice_->SetSelection(0);
  fill();
}

TrackSystem PalettePanel::system() const {
  return systems_[static_cast<std::size_t>(std::max(0, choice_->GetSelection()))];
}

void PalettePanel::showSystem(TrackSystem system) {
  const auto found = std::find(systems_.begin(), systems_.end(), system);
  if (found == systems_.end())
    return;
  choice_->SetSelection(static_cast<int>(found - systems_.begin()));
  fill();
}

void PalettePanel::fill() {
  const TrackCatalog& catalog = TrackCatalog::instance();
  const wxString wanted = search_->GetValue().Lower();
  std::vector<const PieceDef*> pieces;
  for (std::int32_t i = 0; i < catalog.count(); ++i) {
    const PieceDef* piece = catalog.at(i);
    if (piece->system == system() &&
        (wanted.empty() || fromUtf8(piece->article + " " + piece->name).Lower().Contains(wanted)))
      pieces.push_back(piece);
  }
  list_->setPieces(std::move(pieces));
}

} // namespace trassix
