#include "ui/wizards/table_picture.h"

#include "geometry/polygons.h"
#include "measures/measure_format.h"
#include "ui/canvas/gc_surface.h"
#include "ui/canvas/small_pictures.h"
#include "ui/widgets/system_theme.h"
#include "ui/widgets/utf8.h"

#include <wx/translation.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace trassix {

namespace {

constexpr double kMargin = 40;  // px: room for the measures
constexpr double kHandle = 4;   // px, half of a corner's mark
constexpr double kReach = 9;    // px from the pointer to what it takes hold of
constexpr double kWishGap = 13; // px from where beds end to the name of what is wished for there

/// Lengths come out round when a corner is dragged.
double stepOf(std::int32_t units) {
  return units == kInches ? millimetresPer(kInches) / 2 : 10;
}

/// The unit vector that leads off the table from its side.
Point outward(const Polygon& outline, std::size_t side) {
  const Point a = outline[side];
  const Point b = outline[(side + 1) % outline.size()];
  const double length = std::max(std::hypot(b.x - a.x, b.y - a.y), 1e-9);
  const double turn = signedArea(outline) > 0 ? 1 : -1;
  return {(b.y - a.y) / length * turn, (a.x - b.x) / length * turn};
}

/// Where beds end: the outline drawn in on all sides. Each corner lies on two of them.
Polygon drawnIn(const Polygon& outline, double distance) {
  Polygon inner = outline;
  for (std::size_t i = 0; i < outline.size(); ++i)
    for (const std::size_t side : {i, (i + outline.size() - 1) % outline.size()}) {
      const Point out = outward(outline, side);
      inner[i] = {inner[i].x - out.x * distance, inner[i].y - out.y * distance};
    }
  return inner;
}

double toStep(double value, double anchor, double step) {
  return anchor + std::round((value - anchor) / step) * step;
}

} // namespace

TablePicture::TablePicture(wxWindow* parent, const wxSize& size, LayoutForm& form,
                           std::function<void()> changed)
    : PicturePanel(parent, size,
                   [this](wxGraphicsContext& context, const wxSize& painted, bool) {
                     paint(context, painted);
                   }),
      form_(form), changed_(std::move(changed)) {
  SetName("layoutTablePicture");
  Bind(wxEVT_LEFT_DOWN, &TablePicture::onDown, this);
  Bind(wxEVT_MOTION, &TablePicture::onMotion, this);
  Bind(wxEVT_LEFT_UP, [this](wxMouseEvent&) { letGo(); });
  Bind(wxEVT_MOUSE_CAPTURE_LOST, [this](wxMouseCaptureLostEvent&) { held_.reset(); });
  Bind(wxEVT_LEFT_DCLICK, [this](wxMouseEvent& event) {
    letGo();
    const auto side =
        sideAt({static_cast<double>(event.GetX()), static_cast<double>(event.GetY())});
    if (side && form_.addCorners(*side))
      changed_();
  });
  // Before a dialog takes the arrow keys to go from field to field.
  Bind(wxEVT_CHAR_HOOK, &TablePicture::onKey, this);
  // Some toolkits pass the hook over while the mouse is captured.
  Bind(wxEVT_KEY_DOWN, [this](wxKeyEvent& event) { HasCapture() ? onKey(event) : event.Skip(); });
  for (const auto& type : {wxEVT_SET_FOCUS, wxEVT_KILL_FOCUS})
    Bind(type, [this](wxFocusEvent& event) {
      event.Skip();
      Refresh();
    });
}

ViewTransform TablePicture::view() const {
  return held_ ? *held_ : viewOfOutline(form_.outline(), GetClientSize(), kMargin);
}

std::optional<std::size_t> TablePicture::cornerAt(Point px) const {
  const std::vector<Point> corners = view().toScreen(form_.outline());
  for (std::size_t i = 0; i < corners.size(); ++i)
    if (std::hypot(corners[i].x - px.x, corners[i].y - px.y) <= kReach)
      return i;
  return {};
}

std::optional<std::size_t> TablePicture::sideAt(Point px) const {
  const std::vector<Point> corners = view().toScreen(form_.outline());
  for (std::size_t i = 0; i < corners.size(); ++i)
    if (distanceToEdge(px, corners[i], corners[(i + 1) % corners.size()]) <= kReach)
      return i;
  return {};
}

void TablePicture::moveCorner(Point to) {
  if (form_.dragCorner(corner_, to))
    changed_();
}

void TablePicture::onDown(wxMouseEvent& event) {
  SetFocus();
  const auto corner =
      cornerAt({static_cast<double>(event.GetX()), static_cast<double>(event.GetY())});
  if (!corner)
    return;
  corner_ = *corner;
  before_ = form_.outline();
  held_ = view(); // else the table would grow away from the pointer
  CaptureMouse();
  Refresh();
}

void TablePicture::onMotion(wxMouseEvent& event) {
  const Point px{static_cast<double>(event.GetX()), static_cast<double>(event.GetY())};
  if (!held_) {
    SetCursor(cornerAt(px) ? wxCursor(wxCURSOR_SIZING) : wxNullCursor);
    return;
  }
  // Round lengths are those up to the corner that stays where it is.
  const Polygon& outline = form_.outline();
  const Point anchor = outline[(corner_ + 2) % outline.size()];
  const Point at = held_->toWorld(px);
  const double step = event.ShiftDown() ? 1 : stepOf(form_.units());
  moveCorner({toStep(at.x, anchor.x, step), toStep(at.y, anchor.y, step)});
}

void TablePicture::letGo() {
  if (!std::exchange(held_, std::nullopt))
    return;
  if (HasCapture())
    ReleaseMouse();
  Refresh();
}

void TablePicture::onKey(wxKeyEvent& event) {
  const std::size_t corners = form_.outline().size();
  corner_ = std::min(corner_, corners - 1);
  const double step = event.ShiftDown() ? 1 : stepOf(form_.units());
  const Point at = form_.outline()[corner_];
  switch (event.GetKeyCode()) {
  case WXK_LEFT:
    return moveCorner({at.x - step, at.y});
  case WXK_RIGHT:
    return moveCorner({at.x + step, at.y});
  case WXK_UP:
    return moveCorner({at.x, at.y - step});
  case WXK_DOWN:
    return moveCorner({at.x, at.y + step});
  case WXK_PAGEDOWN:
    corner_ = (corner_ + 1) % corners;
    return Refresh();
  case WXK_PAGEUP:
    corner_ = (corner_ + corners - 1) % corners;
    return Refresh();
  case WXK_INSERT:
    if (form_.addCorners(corner_))
      changed_();
    return;
  case WXK_ESCAPE:
    if (!held_)
      return event.Skip();
    letGo();
    form_.setOutline(before_);
    return changed_();
  default:
    event.Skip();
  }
}

void TablePicture::paintWish(Surface& surface, const ViewTransform& view, std::size_t side,
                             const wxString& name) const {
  const Polygon& outline = form_.outline();
  const Point a = view.toScreen(outline[side]);
  const Point b = view.toScreen(outline[(side + 1) % outline.size()]);
  const Point out = outward(outline, side);
  const Point ends[]{a, b};
  surface.polyline(ends, {systemTheme().measure, 4});
  surface.text(toUtf8(name),
               {(a.x + b.x) / 2 - out.x * kWishGap, (a.y + b.y) / 2 - out.y * kWishGap},
               out.x != 0 ? -90 : 0, {systemTheme().measure, 13, true});
}

void TablePicture::paint(wxGraphicsContext& context, const wxSize& size) const {
  GcSurface surface(context);
  const PlanTheme& theme = systemTheme();
  const auto width = static_cast<double>(size.x);
  const auto height = static_cast<double>(size.y);
  const Point sheet[]{{0, 0}, {width, 0}, {width, height}, {0, height}};
  surface.polygon(sheet, theme.desk, std::nullopt);
  const Polygon& outline = form_.outline();
  if (outline.size() < 3)
    return;
  const ViewTransform view = this->view();
  surface.polygon(view.toScreen(outline), theme.board, Stroke{theme.boardEdge, 1.5});
  surface.polygon(view.toScreen(drawnIn(outline, form_.distance().mm())), {},
                  Stroke{theme.ruler, 1, Stroke::Style::Dashed});
  if (form_.hasStation())
    paintWish(surface, view, form_.stationSide(), _("Station"));
  if (form_.hasBridge())
    paintWish(surface, view, form_.bridgeSide(), _("Bridge"));
  for (std::size_t i = 0; i < outline.size(); ++i) {
    const Point a = outline[i];
    const Point b = outline[(i + 1) % outline.size()];
    const double length = std::hypot(b.x - a.x, b.y - a.y);
    paintDimension(surface, {a, b, outward(outline, i), formatBriefLength(length, form_.units())},
                   view, size);
  }
  for (std::size_t i = 0; i < outline.size(); ++i) {
    const Point at = view.toScreen(outline[i]);
    const Point mark[]{{at.x - kHandle, at.y - kHandle},
                       {at.x + kHandle, at.y - kHandle},
                       {at.x + kHandle, at.y + kHandle},
                       {at.x - kHandle, at.y + kHandle}};
    const bool chosen = i == corner_ && HasFocus();
    surface.polygon(mark, chosen ? theme.selected : theme.paper,
                    Stroke{chosen ? theme.selected : theme.boardEdge, 1.5});
  }
}

} // namespace trassix
