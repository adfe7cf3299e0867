#include "ui/canvas/gc_surface.h"

#include <wx/settings.h>
#ifdef __WXMSW__
#include <wx/msw/private.h>
#endif

namespace trassix {

namespace {

/// Finding a font by its height in pixels costs the toolkit several trial fonts. Whoever makes the
/// context scales it to the display's resolution, so points are those of the usual one.
constexpr double kPointsPerPixel = 0.75;
const wxRealPoint kDpi(96, 96);

/// The face that texts in the window are really drawn with.
wxString guiFace() {
  const wxFont font = wxSystemSettings::GetFont(wxSYS_DEFAULT_GUI_FONT);
#ifdef __WXMSW__
  // Its name may stand for another font's, and graphics contexts find only true names.
  const ScreenHDC screen;
  const SelectInHDC selected(screen, GetHfontOf(font));
  wchar_t face[LF_FACESIZE] = {};
  if (::GetTextFaceW(screen, LF_FACESIZE, face) > 0)
    return face;
#endif
  return font.GetFaceName();
}

wxColour colour(Rgba c) {
  return {c.r, c.g, c.b, c.a};
}

wxGraphicsPenInfo penInfo(const Stroke& stroke) {
  wxGraphicsPenInfo info(colour(stroke.color), stroke.width);
  if (stroke.style == Stroke::Style::Dashed)
    info.Style(wxPENSTYLE_SHORT_DASH);
  else if (stroke.style == Stroke::Style::Dotted)
    info.Style(wxPENSTYLE_DOT);
  // On a thin line a round join looks the same and costs several times as much.
  return info.Cap(wxCAP_BUTT).Join(stroke.width < 2.5 ? wxJOIN_BEVEL : wxJOIN_ROUND);
}

wxString toText(std::string_view utf8) {
  return wxString::FromUTF8(utf8.data(), utf8.size());
}

/// Points of one run, added to the path.
void add(wxGraphicsPath& path, std::span<const Point> points) {
  if (points.size() < 2)
    return;
  path.MoveToPoint(points[0].x, points[0].y);
  for (const Point& p : points.subspan(1))
    path.AddLineToPoint(p.x, p.y);
}

} // namespace

wxGraphicsRenderer& planRenderer() {
#ifdef __WXMSW__
  return *wxGraphicsRenderer::GetGDIPlusRenderer();
#else
  return *wxGraphicsRenderer::GetDefaultRenderer();
#endif
}

void GcSurface::usePen(const std::optional<Stroke>& stroke) {
  if (pen_ == stroke && pen_)
    return;
  pen_ = stroke;
  context_.SetPen(stroke ? context_.CreatePen(penInfo(*stroke)) : wxGraphicsPen());
}

void GcSurface::useBrush(const std::optional<Rgba>& fill) {
  if (brush_ && *brush_ == fill)
    return;
  brush_ = fill;
  context_.SetBrush(fill ? context_.CreateBrush(wxBrush(colour(*fill))) : wxGraphicsBrush());
}

void GcSurface::useFont(const TextStyle& style) {
  if (font_ == style)
    return;
  font_ = style;
  const auto packed = static_cast<std::uint32_t>(style.color.r) << 24 |
                      static_cast<std::uint32_t>(style.color.g) << 16 |
                      static_cast<std::uint32_t>(style.color.b) << 8 | style.color.a;
  const auto [entry, isNew] = texts_.fonts.try_emplace({style.size, style.bold, packed});
  if (isNew)
    entry->second = context_.CreateFont(
        wxFont(wxFontInfo(style.em() * kPointsPerPixel).FaceName(guiFace()).Bold(style.bold)),
        colour(style.color));
  context_.SetFont(entry->second);
}

void GcSurface::clip(const Box& part) {
  context_.Clip(part.minX, part.minY, part.maxX - part.minX, part.maxY - part.minY);
}

void GcSurface::unclip() {
  context_.ResetClip();
}

void GcSurface::polyline(std::span<const Point> points, const Stroke& stroke) {
  if (points.size() < 2)
    return;
  usePen(stroke);
  wxGraphicsPath path = context_.CreatePath();
  add(path, points);
  context_.StrokePath(path);
}

void GcSurface::polylines(const PointRuns& lines, const Stroke& stroke) {
  usePen(stroke);
  wxGraphicsPath path = context_.CreatePath();
  for (std::size_t i = 0; i < lines.size(); ++i)
    add(path, lines[i]);
  context_.StrokePath(path);
}

void GcSurface::polygons(const PointRuns& outlines, Rgba fill) {
  useBrush(fill);
  wxGraphicsPath path = context_.CreatePath();
  for (std::size_t i = 0; i < outlines.size(); ++i) {
    add(path, outlines[i]);
    path.CloseSubpath();
  }
  context_.FillPath(path, wxWINDING_RULE);
}

void GcSurface::polygon(std::span<const Point> points, std::optional<Rgba> fill,
                        std::optional<Stroke> outline) {
  if (points.size() < 2)
    return;
  wxGraphicsPath path = context_.CreatePath();
  add(path, points);
  path.CloseSubpath();
  if (fill) {
    useBrush(fill);
    context_.FillPath(path, wxWINDING_RULE);
  }
  if (outline) {
    usePen(outline);
    context_.StrokePath(path);
  }
}

void GcSurface::segments(std::span<const Point> ends, const Stroke& stroke) {
  if (ends.size() < 2)
    return;
  usePen(stroke);
  wxGraphicsPath path = context_.CreatePath();
  for (std::size_t i = 0; i + 1 < ends.size(); i += 2) {
    path.MoveToPoint(ends[i].x, ends[i].y);
    path.AddLineToPoint(ends[i + 1].x, ends[i + 1].y);
  }
  context_.StrokePath(path);
}

void GcSurface::circle(Point centre, double radius, std::optional<Rgba> fill,
                       std::optional<Stroke> outline) {
  useBrush(fill);
  usePen(outline);
  context_.DrawEllipse(centre.x - radius, centre.y - radius, radius * 2, radius * 2);
}

SizePx GcSurface::textSize(std::string_view text, const TextStyle& style) {
  // Plans repeat few texts often, and measuring one costs as much as drawing it.
  const auto [entry, isNew] = texts_.sizes.try_emplace({style.size, style.bold, std::string(text)});
  if (isNew) {
    useFont(style);
    context_.GetTextExtent(toText(text), &entry->second.width, &entry->second.height);
  }
  return entry->second;
}

void GcSurface::text(std::string_view text, Point centre, double degrees, const TextStyle& style) {
  const SizePx size = textSize(text, style);
  useFont(style);
  context_.PushState();
  context_.Translate(centre.x, centre.y);
  if (degrees != 0)
    context_.Rotate(degrees * 3.141592653589793 / 180);
  context_.DrawText(toText(text), -size.width / 2, -size.height / 2);
  context_.PopState();
}

} // namespace trassix
