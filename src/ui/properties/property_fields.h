#pragma once

#include "host/workspace.h"
#include "panels/property_sheet.h"

#include <wx/scrolwin.h>

#include <map>
#include <memory>
#include <string>
#include <utility>
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

  /// The controls for sheets of one shape. They are kept for the next one, since making them takes
  /// longer than all else that follows a click.
  struct Page {
    wxWindow* window = nullptr;
    PropertySheet shape;
    std::vector<Row> rows;
    wxStaticText* title = nullptr;
    std::vector<std::pair<wxWindow*, wxString>> names; ///< which only the page in view has
    std::map<wxStaticText*, std::pair<std::string, int>> wrapped; ///< text and width
  };

  void turnTo(const PropertySheet& sheet);
  std::unique_ptr<Page> makePage(const PropertySheet& sheet);
  void refresh();
  wxSizer* makeValue(Page& page, const Property& property, Row& row);
  wxWindow* makeEditor(Page& page, const Property& property, std::size_t index);
  void enterText(std::size_t index);
  void enter(std::size_t index, const PropertyValue& value);
  /// Breaks the texts into lines as wide as there is room; false when they are already.
  bool wrapTexts();
  /// `anew`: other controls are in view, or there is other room for them.
  void arrange(bool anew);
  void showProblem(std::size_t index, const std::string& problem);

  Workspace& workspace_;
  PropertySheet sheet_;
  std::vector<std::unique_ptr<Page>> pages_; ///< the one in view first; never more than a few
  bool entering_ = false;
};

} // namespace trassix
