#include "ui/print/dc_surface.h"

#include "geometry/pose.h"
#include "ui/widgets/utf8.h"

#include <wx/font.h>

#include <algorithm>
#include <cmath>

namespace trassix {

namespace {

wxColour onPaper(Rgba c) {
  const auto mixed = [a = c.a](std::uint8_t channel) {
    return static_cast<unsigned char>((channel * a + 255 * (255 - a)) / 255);
  };
  return {mixed(c.r), mixed(c.g), mixed(c.b)};
}

wxCoord whole(double value) {
  return static_cast<wxCoord>(std::lround(value));
}

} // namespace

double DcSurface::scale() const {
  return (scaleX_ + scaleY_) / 2;
}

double DcSurface::deviceScale() const {
  return scale();
}

wxPoint DcSurface::toDevice(Point px) const {
  return {origin_.x + whole(px.x * scaleX_ - shift_), origin_.y + whole(px.y * scaleY_ - shift_)};
}

std::vector<wxPoint> DcSurface::toDevice(std::span<const Point> points) const {
  std::vector<wxPoint> device;
  device.reserve(points.size());
  for (const Point& p : points)
    device.push_back(toDevice(p));
  return device;
}

void DcSurface::clip(const Box& part) {
  dc_.SetClippingRegion(wxRect(toDevice({part.minX, part.minY}), toDevice({part.maxX, part.maxY})));
}

void DcSurface::unclip() {
  dc_.DestroyClippingRegion();
}

void DcSurface::usePen(const std::optional<Stroke>& stroke) {
  shift_ = 0;
  if (!stroke)
    return dc_.SetPen(*wxTRANSPARENT_PEN);
  const int width = std::max(1, whole(stroke->width * scale()));
  // Lines that are an odd number of pixels wide lie on the middles of pixels.
  shift_ = width % 2 == 0 ? 0 : 0.5;
  wxPen pen(onPaper(stroke->color), width);
  pen.SetCap(wxCAP_BUTT);
  dc_.SetPen(pen);
}

void DcSurface::line(Point from, Point to) {
  dc_.DrawLine(toDevice(from), toDevice(to));
}

/// A printer's own dashes are dots of its resolution.
void DcSurface::dashes(std::span<const Point> points, const Stroke& stroke) {
  bool drawn = true;
  double left = stroke.dash();
  for (std::size_t i = 1; i < points.size(); ++i) {
    const Point way{points[i].x - points[i - 1].x, points[i].y - points[i - 1].y};
    const double length = std::hypot(way.x, way.y);
    const auto at = [&](double along) {
      return Point{points[i - 1].x + way.x * along / length,
                   points[i - 1].y + way.y * along / length};
    };
    for (double done = 0; done < length;) {
      const double step = std::min(left, length - done);
      if (drawn)
        line(at(done), at(done + step));
      done += step;
      left -= step;
      if (left <= 0) {
        drawn = !drawn;
        left = drawn ? stroke.dash() : stroke.gap();
      }
    }
  }
}

void DcSurface::polyline(std::span<const Point> points, const Stroke& stroke) {
  if (points.size() < 2)
    return;
  usePen(stroke);
  if (stroke.style != Stroke::Style::Solid)
    return dashes(points, stroke);
  const std::vector<wxPoint> device = toDevice(points);
  dc_.DrawLines(static_cast<int>(device.size()), device.data());
}

void DcSurface::polygon(std::span<const Point> points, std::optional<Rgba> fill,
                        std::optional<Stroke> outline) {
  if (points.size() < 2)
    return;
  if (fill && fill->a != 0) {
    usePen({});
    const std::vector<wxPoint> device = toDevice(points);
    dc_.SetBrush(wxBrush(onPaper(*fill)));
    dc_.DrawPolygon(static_cast<int>(device.size()), device.data(), 0, 0, wxWINDING_RULE);
  }
  if (outline) {
    std::vector<Point> closed(points.begin(), points.end());
    closed.push_back(points.front());
    polyline(closed, *outline);
  }
}

void DcSurface::polygons(const PointRuns& outlines, Rgba fill) {
  for (std::size_t i = 0; i < outlines.size(); ++i)
    polygon(outlines[i], fill, {});
}

void DcSurface::segments(std::span<const Point> ends, const Stroke& stroke) {
  usePen(stroke);
  for (std::size_t i = 0; i + 1 < ends.size(); i += 2) {
    if (stroke.style == Stroke::Style::Solid)
      line(ends[i], ends[i + 1]);
    else
      dashes(ends.subspan(i, 2), stroke);
  }
}

void DcSurface::circle(Point centre, double radius, std::optional<Rgba> fill,
                       std::optional<Stroke> outline) {
  dc_.SetBrush(fill ? wxBrush(onPaper(*fill)) : *wxTRANSPARENT_BRUSH);
  if (outline)
    usePen(*outline);
  else
    usePen({});
  const wxPoint low = toDevice({centre.x - radius, centre.y - radius});
  const wxPoint high = toDevice({centre.x + radius, centre.y + radius});
  dc_.DrawEllipse(low, wxSize(high.x - low.x, high.y - low.y));
}

void DcSurface::useFont(const TextStyle& style) {
  dc_.SetFont(wxFont(wxFontInfo(wxSize(0, std::max(1, whole(style.em() * scaleY_))))
                         .Family(wxFONTFAMILY_SWISS)
                         .Bold(style.bold)));
  dc_.SetTextForeground(onPaper(style.color));
  dc_.SetBackgroundMode(wxBRUSHSTYLE_TRANSPARENT);
}

SizePx DcSurface::textSize(std::string_view text, const TextStyle& style) {
  useFont(style);
  const wxSize size = dc_.GetTextExtent(fromUtf8(text));
  return {size.x / scaleX_, size.y / scaleY_};
}

void DcSurface::text(std::string_view text, Point centre, double degrees, const TextStyle& style) {
  useFont(style);
  shift_ = 0;
  // Some printers remember the colour of their last text and think that it still is that of their
  // pen, which areas have changed since: they need to see another.
  const wxColour color = dc_.GetTextForeground();
  dc_.SetPen(wxPen(wxColour(color.Red() ^ 1, color.Green(), color.Blue())));
  const wxString shown = fromUtf8(text);
  const wxSize size = dc_.GetTextExtent(shown);
  const double turn = toRadians(degrees);
  const wxPoint middle = toDevice(centre);
  const double x = -size.x / 2.0;
  const double y = -size.y / 2.0;
  dc_.DrawRotatedText(shown, middle.x + whole(x * std::cos(turn) - y * std::sin(turn)),
                      middle.y + whole(x * std::sin(turn) + y * std::cos(turn)), -degrees);
}

} // namespace trassix
