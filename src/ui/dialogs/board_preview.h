#pragma once

#include "panels/board_form.h"
#include "ui/widgets/picture_panel.h"

namespace trassix {

/// A drawing to scale of the baseboard in a form, with its measures named on it. Keeps the last
/// possible board, faded, while there is a problem.
class BoardPreview : public PicturePanel {
 public:
  /// The form must outlive the preview.
  BoardPreview(wxWindow* parent, const wxSize& size, const BoardForm& form);

  /// To be called after each change of the form.
  void update();

 private:
  void paint(wxGraphicsContext& context, const wxSize& size) const;

  const BoardForm& form_;
  std::vector<Point> outline_;
  std::vector<BoardDimension> dimensions_;
  bool faded_ = false;
};

} // namespace trassix
