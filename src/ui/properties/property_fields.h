#pragma once

#include "panels/property_changes.h"

#include <wx/scrolwin.h>

#include <functional>
#include <vector>

class wxStaticText;
class wxSizer;

namespace trassix {

/// Shows a property sheet and lets its values be edited. A value is handed over when the user
/// presses Enter, leaves the field or chooses; Esc brings the shown value back.
class PropertyFields : public wxScrolledWindow {
 public:
  /// Gives back why the value is refused; empty when it was taken.
  using Enter = std::function<std::string(PropertyId, const PropertyValue&)>;

  PropertyFields(wxWindow* parent, Enter enter);

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

  Enter enter_;
  PropertySheet sheet_;
  std::vector<Row> rows_;
  wxStaticText* title_ = nullptr;
  bool entering_ = false;
};

} // namespace trassix
