#pragma once

#include <wx/panel.h>

class wxListCtrl;
class wxStaticText;

namespace trassix {

class LayoutHost;

/// What the plan and the selection consist of.
class PropertiesPanel : public wxPanel {
 public:
  PropertiesPanel(wxWindow* parent, LayoutHost& host);

  /// The document changed.
  void recompute();
  void selectionChanged();

 private:
  LayoutHost& host_;
  wxStaticText* summary_;
  wxListCtrl* tally_;
};

} // namespace trassix
