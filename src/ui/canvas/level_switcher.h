#pragma once

#include "host/workspace.h"
#include "panels/level_list.h"

#include <wx/panel.h>

#include <vector>

namespace trassix {

/// The plan's levels in a corner of the canvas, the highest one on top: a click shows or hides one,
/// makes it the active one, or asks for its colour. It never takes the focus from the plan.
class LevelSwitcher : public wxPanel, private PlanObserver {
 public:
  LevelSwitcher(wxWindow* canvas, Workspace& workspace);

  bool AcceptsFocus() const override { return false; }
  bool AcceptsFocusFromKeyboard() const override { return false; }
  bool AcceptsFocusRecursively() const override { return false; }

 private:
  enum class Part { Eye, Color, Name };
  struct Spot {
    std::size_t place; ///< in the list of levels
    Part part;
  };

  void planChanged() override { refresh(); }
  void planReplaced() override { refresh(); }

  void refresh();
  void moveToCorner();
  const Spot* spotAt(wxPoint at);
  void onPaint(wxPaintEvent& event);
  void onMotion(wxMouseEvent& event);
  void onClick(wxMouseEvent& event);
  void change(const Spot& spot);

  Workspace& workspace_;
  std::vector<Level> shown_; ///< as they were drawn last
  std::int32_t active_ = -1;
  std::vector<std::size_t> places_; ///< from the top down
  Spot spot_{};
  std::size_t first_ = 0; ///< row at the top, where there are too many
};

} // namespace trassix
