#pragma once

#include "editing/canvas/view_transform.h"
#include "panels/layout_form.h"
#include "ui/widgets/picture_panel.h"

#include <functional>
#include <optional>

namespace trassix {

class Surface;

/// The table of a form drawn to scale, with its measures and what is wished for on its sides. Its
/// corners are dragged with the mouse, which Esc takes back, or moved with the keys once the
/// picture has the focus.
class TablePicture : public PicturePanel {
 public:
  /// The form must outlive the picture; `changed` is called after each change of it.
  TablePicture(wxWindow* parent, const wxSize& size, LayoutForm& form,
               std::function<void()> changed);

  bool AcceptsFocus() const override { return true; }
  bool AcceptsFocusFromKeyboard() const override { return true; }

 private:
  void paint(wxGraphicsContext& context, const wxSize& size) const;
  void paintWish(Surface& surface, const ViewTransform& view, std::size_t side,
                 const wxString& name) const;
  ViewTransform view() const;
  std::optional<std::size_t> cornerAt(Point px) const;
  std::optional<std::size_t> sideAt(Point px) const;
  void moveCorner(Point to);
  void onKey(wxKeyEvent& event);
  void onDown(wxMouseEvent& event);
  void onMotion(wxMouseEvent& event);
  void letGo();

  LayoutForm& form_;
  std::function<void()> changed_;
  std::size_t corner_ = 0;            ///< which the keys move
  std::optional<ViewTransform> held_; ///< the view as it was when a drag began
  Polygon before_;                    ///< the outline then
};

} // namespace trassix
