#include "ui/properties_panel.h"

#include "ui/property_fields.h"
#include "ui/tally_panel.h"

#include <wx/sizer.h>
#include <wx/splitter.h>

namespace trassix {

namespace {

constexpr int kFieldsHeight = 400;
constexpr int kLeastHeight = 120;

} // namespace

PropertiesPanel::PropertiesPanel(wxWindow* parent, LayoutHost& host)
    : wxPanel(parent), host_(host) {
  auto* splitter =
      new wxSplitterWindow(this, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                           wxSP_NOBORDER | wxSP_3DSASH | wxSP_LIVE_UPDATE, "propertiesSplitter");
  fields_ = new PropertyFields(
      splitter, [this](PropertyId id, const PropertyValue& value) { return enter(id, value); });
  tally_ = new TallyPanel(splitter, host);
  splitter->SetMinimumPaneSize(FromDIP(kLeastHeight));
  splitter->SetSashGravity(0.5);
  splitter->SplitHorizontally(fields_, tally_, FromDIP(kFieldsHeight));
  auto* sizer = new wxBoxSizer(wxVERTICAL);
  sizer->Add(splitter, wxSizerFlags(1).Expand());
  SetSizer(sizer);
}

void PropertiesPanel::recompute() {
  tally_->recompute();
  selectionChanged();
}

void PropertiesPanel::selectionChanged() {
  fields_->show(propertySheetOf(host_.layout()));
}

std::string PropertiesPanel::enter(PropertyId id, const PropertyValue& value) {
  const PropertyAnswer answer =
      setProperty(host_.layout(), id, value,
                  [this](const Question& question) { return host_.confirm(question); });
  if (answer.refusal)
    host_.show(*answer.refusal);
  if (answer.changed)
    host_.changed();
  return answer.problem;
}

} // namespace trassix
