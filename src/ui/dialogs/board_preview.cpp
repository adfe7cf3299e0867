#include "ui/dialogs/board_preview.h"

#include "editing/canvas/halo.h"
#include "editing/canvas/view_transform.h"
#include "ui/canvas/gc_surface.h"
#include "ui/widgets/system_theme.h"
#include "ui/widgets/utf8.h"

#include <wx/translation.h>

#include <algorithm>
#include <cmath>

namespace trassix {

namespace {

constexpr double kMargin = 40;  // px: room for the dimensions
constexpr double kOffset = 12;  // px from the board to a dimension line
constexpr double kTextGap = 10; // px from there to the middle of its text
constexpr double kTick = 4;     // px
TextStyle textStyle() {
  return {systemTheme().ruler, 12, false};
}

/// From the corners of the board to pixels.
struct Scale {
  Point origin; ///< px
  Point corner; ///< mm: top left
  double factor = 1;

  Point operator()(Point p) const {
    return {origin.x + (p.x - corner.x) * factor, origin.y + (p.y - corner.y) * factor};
  }
};

Scale scaleFor(const std::vector<Point>& outline, const wxSize& size) {
  Point low = outline.front();
  Point high = low;
  for (const Point& p : outline) {
    low = {std::min(low.x, p.x), std::min(low.y, p.y)};
    high = {std::max(high.x, p.x), std::max(high.y, p.y)};
  }
  const double width = std::max(high.x - low.x, 1.0);
  const double depth = std::max(high.y - low.y, 1.0);
  Scale scale;
  scale.corner = low;
  scale.factor = std::min((size.x - 2 * kMargin) / width, (size.y - 2 * kMargin) / depth);
  scale.origin = {(size.x - width * scale.factor) / 2, (size.y - depth * scale.factor) / 2};
  return scale;
}

void paintDimension(Surface& surface, const BoardDimension& dimension, const Scale& scale,
                    const wxSize& size) {
  const Point out = dimension.outward;
  const auto aside = [out](Point p, double px) {
    return Point{p.x + out.x * px, p.y + out.y * px};
  };
  const Point from = scale(dimension.from);
  const Point to = scale(dimension.to);
  const Stroke line{systemTheme().ruler, 1};
  const Point ends[]{aside(from, 3),       aside(from, kOffset + kTick),
                     aside(to, 3),         aside(to, kOffset + kTick),
                     aside(from, kOffset), aside(to, kOffset)};
  paintLinesWithHalo(surface, ends, line, systemTheme().paper);
  const Point middle = aside({(from.x + to.x) / 2, (from.y + to.y) / 2}, kOffset + kTextGap);
  // A long text of a short measure must not run out of the picture.
  const double half = surface.textSize(dimension.text, textStyle()).width / 2 + 4;
  const auto within = [half](double at, int length) {
    return half * 2 > length ? length / 2.0 : std::clamp(at, half, length - half);
  };
  if (out.x != 0)
    paintTextWithHalo(surface, dimension.text, {middle.x, within(middle.y, size.y)}, -90,
                      textStyle(), systemTheme().paper);
  else
    paintTextWithHalo(surface, dimension.text, {within(middle.x, size.x), middle.y}, 0, textStyle(),
                      systemTheme().paper);
}

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
  const Scale scale = scaleFor(outline_, size);
  std::vector<Point> px;
  for (const Point& p : outline_)
    px.push_back(scale(p));
  Rgba fill = systemTheme().board;
  Rgba edge = systemTheme().boardEdge;
  if (faded_)
    fill.a = edge.a = 90;
  surface.polygon(px, fill, Stroke{edge, 1.5});
  if (!faded_)
    for (const BoardDimension& dimension : dimensions_)
      paintDimension(surface, dimension, scale, size);
}

} // namespace trassix
