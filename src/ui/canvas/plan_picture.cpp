#include "ui/canvas/plan_picture.h"

#include "editing/canvas/plan_colors.h"

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

/// A picture that takes no longer is drawn anew even in a hurry.
constexpr long kQuickMs = 12;

/// Whole units of the toolkit between two origins; none when they are not.
std::optional<wxPoint> wholeUnits(Point from, Point to, double scale) {
  const double x = (to.x - from.x) * scale;
  const double y = (to.y - from.y) * scale;
  if (std::abs(x - std::round(x)) > 1e-6 || std::abs(y - std::round(y)) > 1e-6 ||
      std::abs(x) > 1e6 || std::abs(y) > 1e6)
    return std::nullopt;
  return wxPoint(static_cast<int>(std::round(x)), static_cast<int>(std::round(y)));
}

} // namespace

template <class Paint>
void PlanPicture::paintOn(wxDC& dc, const Box& part, Paint paint) const {
  auto& memory = static_cast<wxMemoryDC&>(dc);
  const std::unique_ptr<wxGraphicsContext> context(wxGraphicsContext::Create(memory));
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
  const Point origin = canvas_.view().origin();
  if (layer.drawn && layer.stamp == stamp && layer.origin == origin)
    return;
  const bool same = layer.drawn && layer.stamp == stamp;
  const auto by = same && canvas_.partsFit() ? wholeUnits(layer.origin, origin, window_.pixelScale)
                                             : std::nullopt;
  if (!by || !moveBy(layer, *by, paint)) {
    const wxSize size = window_.size;
    if (!layer.bitmap.IsOk())
      layer.bitmap.CreateScaled(size.x, size.y, wxBITMAP_SCREEN_DEPTH, window_.contentScale);
    wxMemoryDC memory(layer.bitmap);
    paint(memory, {0, 0, static_cast<double>(size.x), static_cast<double>(size.y)});
  }
  layer.origin = origin;
  layer.stamp = stamp;
  layer.drawn = true;
}

void PlanPicture::renewPlan() {
  renew(plan_, canvas_.planStamp(), [this](wxDC& dc, const Box& part) {
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

void PlanPicture::drawScaled(wxDC& dc) const {
  const Rgba ground = plan_colors::kBoard;
  dc.SetBackground(wxBrush(wxColour(ground.r, ground.g, ground.b)));
  dc.Clear();
  const double factor = canvas_.view().zoom() / drawnAs_.zoom();
  const Point corner = canvas_.view().toScreen(drawnAs_.toWorld({0, 0}));
  const double unit = window_.pixelScale;
  wxMemoryDC from(const_cast<wxBitmap&>(top().bitmap)); // read only
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
  }
  const std::uint64_t content = canvas_.contentStamp();
  if (hurried && top().drawn && drawingMs_ > kQuickMs && drawnStamp_ == content &&
      drawnAs_.zoom() != canvas_.view().zoom()) {
    drawScaled(dc);
    return true;
  }
  const wxStopWatch watch;
  const bool whole = !plan_.drawn || drawnAs_.zoom() != canvas_.view().zoom();
  renewPlan();
  if (canvas_.anySelected())
    renewShown();
  if (whole)
    drawingMs_ = watch.Time();
  drawnAs_ = canvas_.view();
  drawnStamp_ = content;
  dc.DrawBitmap(top().bitmap, 0, 0);
  return false;
}

} // namespace trassix
