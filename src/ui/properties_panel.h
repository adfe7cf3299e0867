#pragma once

#include "panels/property_changes.h"

#include <wx/panel.h>

#include <string>

namespace trassix {

class LayoutHost;
class PropertyFields;
class TallyPanel;

/// What is selected, with its values to edit, and below it what the plan consists of.
class PropertiesPanel : public wxPanel {
 public:
  PropertiesPanel(wxWindow* parent, LayoutHost& host);

  /// The document changed.
  void recompute();
  void selectionChanged();
  /// What is being typed into a field counts from now on.
  void enterPending();

 private:
  std::string enter(PropertyId id, const PropertyValue& value);

  LayoutHost& host_;
  PropertyFields* fields_;
  TallyPanel* tally_;
};

} // namespace trassix
