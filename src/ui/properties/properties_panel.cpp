#include "ui/properties/properties_panel.h"

#include "ui/properties/property_fields.h"
#include "ui/properties/tally_panel.h"
#include "ui/widgets/sash_rule.h"

#include <wx/sizer.h>
#include <wx/splitter.h>

#include <algorithm>

namespace trassix {

namespace {

constexpr int kFieldsHeight = 440; ///< what the properties of a piece take
constexpr int kLeastHeight = 120;
constexpr int kTallyHeight = 330;     ///< with a few rows
constexpr double kFieldsShare = 0.45; ///< where there is too little room for both

} // namespace

PropertiesPanel::PropertiesPanel(wxWindow* parent, Workspace& workspace)
    : wxPanel(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxTAB_TRAVERSAL, "properties"),
      PlanObserver(workspace), workspace_(workspace) {
  Bind(wxEVT_PAINT, &PropertiesPanel::onFirstPaint, this);
}

void PropertiesPanel::onFirstPaint(wxPaintEvent& event) {
  event.Skip();
  Unbind(wxEVT_PAINT, &PropertiesPanel::onFirstPaint, this);
  CallAfter(&PropertiesPanel::build);
}

void PropertiesPanel::build() {
  auto* splitter =
      new wxSplitterWindow(this, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                           wxSP_NOBORDER | wxSP_3DSASH | wxSP_LIVE_UPDATE, "propertiesSplitter");
  fields_ = new PropertyFields(splitter, workspace_);
  tally_ = new TallyPanel(splitter, workspace_);
  splitter->SetMinimumPaneSize(FromDIP(kLeastHeight));
  splitter->SetSashGravity(0.5);
  splitter->SplitHorizontally(fields_, tally_);
  keepSash(*splitter, [most = FromDIP(kFieldsHeight), tally = FromDIP(kTallyHeight)](int height) {
    return std::min(most, std::max(height - tally, static_cast<int>(height * kFieldsShare)));
  });
  auto* sizer = new wxBoxSizer(wxVERTICAL);
  sizer->Add(splitter, wxSizerFlags(1).Expand());
  SetSizer(sizer);
  Layout();
  recompute();
}

void PropertiesPanel::recompute() {
  if (tally_)
    tally_->recompute();
  selectionChanged();
}

void PropertiesPanel::selectionChanged() {
  if (fields_)
    fields_->show(propertySheetOf(workspace_.layout()));
  if (tally_)
    tally_->selectionChanged();
}

void PropertiesPanel::enterPending() {
  if (fields_)
    fields_->enterPending();
}

} // namespace trassix
