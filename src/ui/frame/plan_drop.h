#pragma once

#include <wx/dnd.h>

class wxWindow;

namespace trassix {

class PlanFiles;

/// Opens a plan file that is dropped on the window.
class PlanDrop : public wxFileDropTarget {
 public:
  PlanDrop(wxWindow& window, PlanFiles& files) : window_(window), files_(files) {}

  bool OnDropFiles(wxCoord x, wxCoord y, const wxArrayString& names) override;

 private:
  wxWindow& window_;
  PlanFiles& files_;
};

} // namespace trassix
