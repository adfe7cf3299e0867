#include "canvas/drawn_calls.h"

#include <wx/brush.h>

namespace trassix::bench {

namespace {

wxColour colour(Rgba c) {
  return {c.r, c.g, c.b, c.a};
}

wxGraphicsPen penOf(wxGraphicsContext& context, const Stroke& stroke) {
  const wxPenStyle style = stroke.style == Stroke::Style::Solid    ? wxPENSTYLE_SOLID
                           : stroke.style == Stroke::Style::Dashed ? wxPENSTYLE_SHORT_DASH
                                                                   : wxPENSTYLE_DOT;
  return context.CreatePen(wxGraphicsPenInfo(colour(stroke.color), stroke.width, style)
                               .Cap(wxCAP_BUTT)
                               .Join(wxJOIN_ROUND));
}

} // namespace

void DrawnCalls::polyline(std::span<const Point> points, const Stroke& stroke) {
  calls_.push_back({Kind::Line, {points.begin(), points.end()}, 0, {}, stroke});
}

void DrawnCalls::polygon(std::span<const Point> points, std::optional<Rgba> fill,
                         std::optional<Stroke> outline) {
  calls_.push_back({Kind::Area, {points.begin(), points.end()}, 0, fill, outline});
}

void DrawnCalls::segments(std::span<const Point> ends, const Stroke& stroke) {
  calls_.push_back({Kind::Segments, {ends.begin(), ends.end()}, 0, {}, stroke});
}

void DrawnCalls::circle(Point centre, double radius, std::optional<Rgba> fill,
                        std::optional<Stroke> outline) {
  calls_.push_back({Kind::Circle, {centre}, radius, fill, outline});
}

void DrawnCalls::handTo(wxGraphicsContext& context) const {
  // Pens and brushes are made anew only where they change, as any frugal program would do it.
  std::optional<Stroke> pen;
  std::optional<Rgba> brush;
  for (const Call& call : calls_) {
    if (call.outline && call.outline != pen) {
      pen = call.outline;
      context.SetPen(penOf(context, *pen));
    }
    if (call.fill && call.fill != brush) {
      brush = call.fill;
      context.SetBrush(context.CreateBrush(wxBrush(colour(*brush))));
    }
    wxGraphicsPath path = context.CreatePath();
    if (call.kind == Kind::Circle) {
      path.AddCircle(call.points[0].x, call.points[0].y, call.radius);
    } else {
      const std::size_t stride = call.kind == Kind::Segments ? 2 : call.points.size();
      for (std::size_t i = 0; i < call.points.size(); ++i) {
        if (i % stride == 0)
          path.MoveToPoint(call.points[i].x, call.points[i].y);
        else
          path.AddLineToPoint(call.points[i].x, call.points[i].y);
      }
      if (call.kind == Kind::Area)
        path.CloseSubpath();
    }
    if (call.fill)
      context.FillPath(path, wxWINDING_RULE);
    if (call.outline)
      context.StrokePath(path);
  }
}

} // namespace trassix::bench
