#include "ui/canvas/plan_picture.h"

#include "document/layout.h"
#include "editing/canvas/canvas_tool.h"
#include "editing/canvas/extent_surface.h"
#include "editing/canvas/plan_theme.h"

#include <wx/dcmemory.h>
#include <wx/graphics.h>
#include <wx/stopwatch.h>

#include <cmath>
#include <cstdlib>
#include <memory>
#include <optional>
#include <utility>

namespace trassix {

namespace {

/// Whole units of the toolkit between two origins; none when they are not.
std::optional<wxPoint> wholeUnits(Point from, Point to, double scale) {
  const double x = (to.x - from.x) * scale;
  const double y = (to.y - from.y) * scale;
  if (std::abs(x - std::round(x)) > 1e-6 || std::abs(y - std::round(y)) > 1e-6 ||
      std::abs(x) > 1e6 || std::abs(y) > 1e6)
    return std::nullopt;
  return wxPoint(static_cast<int>(std::round(x)), static_cast<int>(std::round(y)));
}

std::size_t pixelsOf(const wxBitmap& bitmap) {
  return bitmap.IsOk() ? static_cast<std::size_t>(bitmap.GetWidth()) *
                             static_cast<std::size_t>(bitmap.GetHeight())
                       : 0;
}

} // namespace

template <class Paint>
void PlanPicture::paintOn(wxDC& dc, const Box& part, Paint paint) const {
  auto& memory = static_cast<wxMemoryDC&>(dc);
  const std::unique_ptr<wxGraphicsContext> context(planRenderer().CreateContext(memory));
  context->Clip(part.minX, part.minY, part.maxX - part.minX, part.maxY - part.minY);
  context->Scale(window_.pixelScale, window_.pixelScale);
  GcSurface surface(*context, window_.pixelScale * window_.contentScale, &texts_);
  const double by = 1 / window_.pixelScale;
  paint(surface, Box{part.minX * by, part.minY * by, part.maxX * by, part.maxY * by});
}

bool PlanPicture::moveBy(Layer& layer, wxPoint by, const PaintPart& paint) {
  const wxSize size = window_.size;
  if (std::abs(by.x) >= size.x || std::abs(by.y) >= size.y)
    return false;
  if (!spare_.IsOk())
    spare_.CreateScaled(size.x, size.y, wxBITMAP_SCREEN_DEPTH, window_.contentScale);
  {
    wxMemoryDC memory(spare_);
    memory.DrawBitmap(layer.bitmap, by.x, by.y);
    const double width = size.x;
    const double height = size.y;
    if (by.x != 0)
      paint(memory, by.x > 0 ? Box{0, 0, static_cast<double>(by.x), height}
                             : Box{width + by.x, 0, width, height});
    if (by.y != 0)
      paint(memory, by.y > 0 ? Box{0, 0, width, static_cast<double>(by.y)}
                             : Box{0, height + by.y, width, height});
  }
  std::swap(layer.bitmap, spare_);
  return true;
}

void PlanPicture::renew(Layer& layer, std::uint64_t stamp, const PaintPart& paint) {
  const ViewTransform& view = canvas_.view();
  if (layer.shows(stamp) && layer.view == view)
    return;
  const bool moved = layer.shows(stamp) && layer.view.zoom() == view.zoom();
  const auto by =
      moved ? wholeUnits(layer.view.origin(), view.origin(), window_.pixelScale) : std::nullopt;
  if (!by || !moveBy(layer, *by, paint)) {
    const wxSize size = window_.size;
    if (!layer.bitmap.IsOk())
      layer.bitmap.CreateScaled(size.x, size.y, wxBITMAP_SCREEN_DEPTH, window_.contentScale);
    wxMemoryDC memory(layer.bitmap);
    paint(memory, {0, 0, static_cast<double>(size.x), static_cast<double>(size.y)});
  }
  layer.view = view;
  layer.stamp = stamp;
  layer.drawn = true;
}

void PlanPicture::renewPlan() {
  renew(plan_, canvas_.contentStamp(), [this](wxDC& dc, const Box& part) {
    paintOn(dc, part, [this](Surface& surface, const Box& px) { canvas_.paintPlan(surface, px); });
  });
}

void PlanPicture::renewShown() {
  renew(shown_, canvas_.selectionStamp(), [this](wxDC& dc, const Box& part) {
    const wxRect area(
        wxPoint(static_cast<int>(part.minX), static_cast<int>(part.minY)),
        wxSize(static_cast<int>(part.maxX - part.minX), static_cast<int>(part.maxY - part.minY)));
    {
      const wxDCClipper clipped(dc, area);
      dc.DrawBitmap(plan_.bitmap, 0, 0);
    }
    paintOn(dc, part,
            [this](Surface& surface, const Box& px) { canvas_.paintSelection(surface, px); });
  });
}

void PlanPicture::drawScaled(wxDC& dc, const Layer& layer) const {
  const bool onDesk = canvas_.site().layout().settings().baseboard.size() >= 3;
  const Rgba ground = onDesk ? canvas_.theme().desk : canvas_.theme().board;
  dc.SetBackground(wxBrush(wxColour(ground.r, ground.g, ground.b)));
  dc.Clear();
  const double factor = canvas_.view().zoom() / layer.view.zoom();
  const Point corner = canvas_.view().toScreen(layer.view.toWorld({0, 0}));
  const double unit = window_.pixelScale;
  wxMemoryDC from(const_cast<wxBitmap&>(layer.bitmap)); // read only
  dc.StretchBlit(static_cast<int>(std::floor(corner.x * unit)),
                 static_cast<int>(std::floor(corner.y * unit)),
                 static_cast<int>(std::ceil(window_.size.x * factor)),
                 static_cast<int>(std::ceil(window_.size.y * factor)), &from, 0, 0, window_.size.x,
                 window_.size.y);
}

void PlanPicture::forget() {
  plan_.drawn = shown_.drawn = false;
}

bool PlanPicture::draw(wxDC& dc, const Window& window, bool hurried) {
  if (window_ != window) {
    window_ = window;
    plan_ = shown_ = {};
    spare_ = wxNullBitmap;
    body_ = {};
  }
  // Without a selection the plan is enough.
  const bool selected = canvas_.anySelected();
  const Layer& top = selected ? shown_ : plan_;
  const double zoom = canvas_.view().zoom();
  if (hurried && drawingMs_ > quickMs_ && top.view.zoom() != zoom &&
      top.shows(selected ? canvas_.selectionStamp() : canvas_.contentStamp())) {
    drawScaled(dc, top);
    return true;
  }
  const wxStopWatch watch;
  const bool whole = !plan_.drawn || plan_.view.zoom() != zoom;
  renewPlan();
  if (selected)
    renewShown();
  if (whole)
    drawingMs_ = watch.Time();
  dc.DrawBitmap(top.bitmap, 0, 0);
  return false;
}

bool PlanPicture::drawBody(wxDC& dc) {
  const auto body = canvas_.body();
  if (!body || body_.stamp != body->stamp) {
    // What looks different each time, as when it turns, is better drawn where it is shown.
    body_ = {};
    body_.stamp = body ? body->stamp : 0;
    return false;
  }
  if (!body_.bitmap.IsOk() && body_.fits)
    renewBody(body->at);
  if (!body_.bitmap.IsOk())
    return false;
  const double unit = window_.pixelScale;
  dc.DrawBitmap(body_.bitmap,
                body_.corner.x + static_cast<int>(std::lround((body->at.x - body_.at.x) * unit)),
                body_.corner.y + static_cast<int>(std::lround((body->at.y - body_.at.y) * unit)),
                true);
  return true;
}

void PlanPicture::renewBody(Point at) {
  const std::unique_ptr<wxGraphicsContext> measuring(planRenderer().CreateMeasuringContext());
  GcSurface texts(*measuring, window_.pixelScale * window_.contentScale, &texts_);
  ExtentSurface room(texts);
  canvas_.paintBody(room);
  const Box px = room.extent().value_or(Box());
  const double unit = window_.pixelScale;
  const Box box{std::floor(px.minX * unit), std::floor(px.minY * unit), std::ceil(px.maxX * unit),
                std::ceil(px.maxY * unit)};
  const double width = box.maxX - box.minX;
  const double height = box.maxY - box.minY;
  body_.fits = width >= 1 && height >= 1 && width * height <= 1.0 * window_.size.x * window_.size.y;
  if (!body_.fits)
    return;
  body_.at = at;
  body_.corner = {static_cast<int>(box.minX), static_cast<int>(box.minY)};
  body_.bitmap.CreateScaled(static_cast<int>(width), static_cast<int>(height), 32,
                            window_.contentScale);
  wxMemoryDC memory(body_.bitmap);
  const std::unique_ptr<wxGraphicsContext> context(planRenderer().CreateContext(memory));
  context->SetCompositionMode(wxCOMPOSITION_SOURCE);
  context->SetBrush(wxBrush(wxColour(0, 0, 0, 0)));
  context->DrawRectangle(0, 0, width, height);
  context->SetCompositionMode(wxCOMPOSITION_OVER);
  context->Translate(-box.minX, -box.minY);
  context->Scale(unit, unit);
  GcSurface surface(*context, unit * window_.contentScale, &texts_);
  canvas_.paintBody(surface);
}

std::size_t PlanPicture::keptPixels() const {
  return pixelsOf(plan_.bitmap) + pixelsOf(shown_.bitmap) + pixelsOf(spare_) +
         pixelsOf(body_.bitmap);
}

} // namespace trassix
