#pragma once

#include "panels/property_changes.h"

#include <wx/panel.h>

#include <string>

namespace trassix {

class LayoutHost;
class PropertyFields;
class TallyPanel;

/// What is selected, with its values to edit, and below it what the plan consists of. Its many
/// controls are made when it has been on the screen once, so that the start does not wait for them.
class PropertiesPanel : public wxPanel {
 public:
  PropertiesPanel(wxWindow* parent, LayoutHost& host);

  /// The document changed.
  void recompute();
  void selectionChanged();
  /// What is being typed into a field counts from now on.
  void enterPending();

 private:
  void onFirstPaint(wxPaintEvent& event);
  void build();
  std::string enter(PropertyId id, const PropertyValue& value);

  LayoutHost& host_;
  PropertyFields* fields_ = nullptr; ///< none before it was painted
  TallyPanel* tally_ = nullptr;      ///< none before it was painted
};

} // namespace trassix
