#pragma once

#include "host/workspace.h"
#include "panels/property_sheet.h"

#include <wx/scrolwin.h>

#include <vector>

class wxStaticText;
class wxSizer;

namespace trassix {

/// Shows a property sheet and lets its values be edited. A value is handed over when the user
/// presses Enter, leaves the field or chooses; Esc brings the shown value back.
class PropertyFields : public wxScrolledWindow {
 public:
  PropertyFields(wxWindow* parent, Workspace& workspace);

  void show(const PropertySheet& sheet);

  /// Hands over what has been typed so far, as leaving the field would.
  void enterPending();

 private:
  struct Row {
    wxWindow* editor = nullptr;
    wxWindow* none = nullptr; ///< takes the colour away
    wxStaticText* note = nullptr;
    wxStaticText* problem = nullptr;
    std::string problemText;
  };

  void rebuild();
  void refresh();
  wxSizer* makeValue(const Property& property, Row& row);
  wxWindow* makeEditor(const Property& property, std::size_t index);
  void enterText(std::size_t index);
  void enter(std::size_t index, const PropertyValue& value);
  /// Breaks the texts into lines as wide as there is room.
  void wrapTexts();
  void arrange();
  void showProblem(std::size_t index, const std::string& problem);

  Workspace& workspace_;
  PropertySheet sheet_;
  std::vector<Row> rows_;
  wxStaticText* title_ = nullptr;
  bool entering_ = false;
};

} // namespace trassix
