#include "ui/properties_panel.h"

#include "catalog/track_catalog.h"
#include "editing/canvas/layout_host.h"
#include "editing/measure_format.h"
#include "editing/track_geometry.h"
#include "ui/utf8.h"

#include <wx/listctrl.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include <map>

namespace trassix {

PropertiesPanel::PropertiesPanel(wxWindow* parent, LayoutHost& host)
    : wxPanel(parent), host_(host), summary_(new wxStaticText(this, wxID_ANY, wxEmptyString)),
      tally_(new wxListCtrl(this, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                            wxLC_REPORT | wxLC_SINGLE_SEL, wxDefaultValidator, "tally")) {
  tally_->AppendColumn(_("Count"), wxLIST_FORMAT_RIGHT, FromDIP(56));
  tally_->AppendColumn(_("Article"), wxLIST_FORMAT_LEFT, FromDIP(70));
  tally_->AppendColumn(_("Name"), wxLIST_FORMAT_LEFT, FromDIP(220));
  auto* title = new wxStaticText(this, wxID_ANY, _("Pieces on the plan"));
  title->SetFont(title->GetFont().Bold());
  auto* sizer = new wxBoxSizer(wxVERTICAL);
  sizer->Add(title, wxSizerFlags().Border(wxALL, FromDIP(6)));
  sizer->Add(tally_, wxSizerFlags(1).Expand());
  sizer->Add(summary_, wxSizerFlags().Expand().Border(wxALL, FromDIP(6)));
  SetSizer(sizer);
}

void PropertiesPanel::recompute() {
  std::map<std::string, int> counts;
  double length = 0;
  int open = 0;
  for (const PlacedPiece& piece : host_.layout().pieces()) {
    ++counts[piece.cat];
    if (const PieceDef* definition = TrackCatalog::instance().find(piece.cat)) {
      length += trackGeometryOf(*definition).mainLength;
      for (std::size_t i = 0; i < definition->connectors.size(); ++i)
        open += piece.joint(i).open() ? 1 : 0;
    }
  }
  tally_->DeleteAllItems();
  long row = 0;
  for (const auto& [article, count] : counts) {
    const PieceDef* definition = TrackCatalog::instance().find(article);
    tally_->InsertItem(row, wxString::Format("%d", count));
    tally_->SetItem(row, 1, fromUtf8(article));
    tally_->SetItem(row++, 2, definition ? fromUtf8(definition->name) : _("unknown article"));
  }
  summary_->SetLabel(
      wxString::Format(_("Track length: %s\nOpen ends: %d"),
                       fromUtf8(formatLength(length, host_.layout().settings().units)), open));
  Layout();
}

void PropertiesPanel::selectionChanged() {}

} // namespace trassix
