#include "ui/dialogs/board_preview.h"

#include "ui/canvas/gc_surface.h"
#include "ui/canvas/small_pictures.h"
#include "ui/widgets/system_theme.h"
#include "ui/widgets/utf8.h"

#include <wx/translation.h>

namespace trassix {

namespace {

constexpr double kMargin = 40; // px: room for the dimensions

} // namespace

BoardPreview::BoardPreview(wxWindow* parent, const wxSize& size, const BoardForm& form)
    : PicturePanel(parent, size,
                   [this](wxGraphicsContext& context, const wxSize& painted, bool) {
                     paint(context, painted);
                   }),
      form_(form) {
  SetName("boardPreview");
  update();
}

void BoardPreview::update() {
  faded_ = !form_.problem().empty() && form_.choice() != BoardForm::Choice::Free;
  if (!faded_) {
    outline_ = form_.outline();
    dimensions_.clear();
    if (form_.shape()) {
      outline_ = form_.drawnOutline(); // the dimensions have their corner at the origin
      dimensions_ = form_.dimensions();
    }
  }
  Refresh();
}

void BoardPreview::paint(wxGraphicsContext& context, const wxSize& size) const {
  GcSurface surface(context);
  const auto width = static_cast<double>(size.x);
  const auto height = static_cast<double>(size.y);
  const Point sheet[]{{0, 0}, {width, 0}, {width, height}, {0, height}};
  surface.polygon(sheet, systemTheme().desk, std::nullopt);
  const Point middle{width / 2, height / 2};
  if (outline_.size() < 3) {
    surface.text(toUtf8(_("No baseboard")), middle, 0, {systemTheme().ruler, 13, false});
    return;
  }
  const ViewTransform view = viewOfOutline(outline_, size, kMargin);
  Rgba fill = systemTheme().board;
  Rgba edge = systemTheme().boardEdge;
  if (faded_)
    fill.a = edge.a = 90;
  surface.polygon(view.toScreen(outline_), fill, Stroke{edge, 1.5});
  if (!faded_)
    for (const BoardDimension& dimension : dimensions_)
      paintDimension(surface, dimension, view, size);
}

} // namespace trassix
