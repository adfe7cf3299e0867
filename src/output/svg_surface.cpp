#include "output/svg_surface.h"

#include "output/page_painter.h"

#include <array>
#include <cctype>
#include <charconv>
#include <cstdio>

namespace trassix {

namespace {

constexpr double kMmPerPx = 1 / kPxPerMm;
constexpr int kDecimals = 4;
/// From the middle of a line of text to its baseline, of the font's size.
constexpr double kBaseline = 0.35;

} // namespace

SvgSurface::SvgSurface(SizeMm size, std::string_view title, TextMeasure measure)
    : measure_(std::move(measure)) {
  out_ = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
         "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"";
  number(size.width * kPxPerMm);
  out_ += "mm\" height=\"";
  number(size.height * kPxPerMm);
  out_ += "mm\" viewBox=\"0 0 ";
  number(size.width * kPxPerMm);
  out_ += ' ';
  number(size.height * kPxPerMm);
  out_ += "\" font-family=\"DejaVu Sans, Verdana, sans-serif\">\n<title>";
  escaped(title);
  out_ += "</title>\n";
}

std::string SvgSurface::take() {
  out_ += "</svg>\n";
  return std::move(out_);
}

void SvgSurface::clip(const Box& part) {
  const std::string id = idOf("clip");
  out_.append("<clipPath id=\"").append(id).append("\"><path d=\"");
  points(std::array<Point, 4>{{{part.minX, part.minY},
                               {part.maxX, part.minY},
                               {part.maxX, part.maxY},
                               {part.minX, part.maxY}}},
         true);
  out_.append("\"/></clipPath>\n<g clip-path=\"url(#").append(id).append(")\">\n");
}

void SvgSurface::unclip() {
  endGroup();
}

/// The name as far as an identifier may be like it, told from others by a number.
std::string SvgSurface::idOf(std::string_view name) {
  std::string id;
  for (const char c : name) {
    const auto byte = static_cast<unsigned char>(c);
    id += byte >= 128 || std::isalnum(byte) != 0 ? c : '_';
  }
  if (id.empty() || std::isdigit(static_cast<unsigned char>(id[0])) != 0)
    id.insert(id.begin(), '_');
  if (const int before = ids_[id]++; before > 0)
    id.append("-").append(std::to_string(before + 1));
  return id;
}

/// With a title for its reader, and an identifier by which other programs find it.
void SvgSurface::openGroup(std::string_view name, std::string_view attributes) {
  out_.append("<g id=\"").append(idOf(name)).append("\"").append(attributes).append("><title>");
  escaped(name);
  out_ += "</title>\n";
}

void SvgSurface::beginGroup(std::string_view name) {
  openGroup(name, "");
}

void SvgSurface::beginHiddenGroup(std::string_view name) {
  openGroup(name, " display=\"none\"");
}

void SvgSurface::endGroup() {
  out_ += "</g>\n";
}

void SvgSurface::number(double px) {
  std::array<char, 40> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), px * kMmPerPx,
                                 std::chars_format::fixed, kDecimals)
                       .ptr;
  std::string_view written(text.data(), static_cast<std::size_t>(end - text.data()));
  while (written.ends_with('0'))
    written.remove_suffix(1);
  if (written.ends_with('.'))
    written.remove_suffix(1);
  out_.append(written == "-0" ? "0" : written);
}

void SvgSurface::points(std::span<const Point> run, bool closed) {
  char command = 'M';
  for (const Point& p : run) {
    out_ += command;
    number(p.x);
    out_ += ' ';
    number(p.y);
    command = 'L';
  }
  if (closed)
    out_ += 'Z';
}

void SvgSurface::beginPath() {
  out_ += "<path d=\"";
}

void SvgSurface::endPath(std::optional<Rgba> fill, const std::optional<Stroke>& stroke) {
  out_ += '"';
  paint("fill", fill);
  strokeOf(stroke);
  out_ += "/>\n";
}

void SvgSurface::paint(std::string_view property, std::optional<Rgba> color) {
  out_.append(" ").append(property).append("=\"");
  if (!color) {
    out_ += "none\"";
    return;
  }
  std::array<char, 8> hex{};
  std::snprintf(hex.data(), hex.size(), "#%02x%02x%02x", color->r, color->g, color->b);
  out_.append(hex.data()).append("\"");
  if (color->a != 255) {
    out_.append(" ").append(property).append("-opacity=\"");
    number(color->a / 255.0 * kPxPerMm);
    out_ += '"';
  }
}

void SvgSurface::strokeOf(const std::optional<Stroke>& stroke) {
  if (!stroke)
    return;
  paint("stroke", stroke->color);
  out_ += " stroke-width=\"";
  number(stroke->width);
  out_ += "\" stroke-linejoin=\"round\"";
  if (stroke->style == Stroke::Style::Solid)
    return;
  out_ += " stroke-dasharray=\"";
  number(stroke->dash());
  out_ += ' ';
  number(stroke->gap());
  out_ += '"';
}

void SvgSurface::escaped(std::string_view text) {
  for (const char c : text) {
    if (c == '<')
      out_ += "&lt;";
    else if (c == '&')
      out_ += "&amp;";
    else if (c == '>')
      out_ += "&gt;";
    else if (static_cast<unsigned char>(c) >= ' ' || c == '\t') // others no XML may hold
      out_ += c;
  }
}

void SvgSurface::polyline(std::span<const Point> line, const Stroke& stroke) {
  if (line.size() < 2)
    return;
  beginPath();
  points(line, false);
  endPath({}, stroke);
}

void SvgSurface::polygon(std::span<const Point> outline, std::optional<Rgba> fill,
                         std::optional<Stroke> edge) {
  if (outline.size() < 2)
    return;
  beginPath();
  points(outline, true);
  endPath(fill, edge);
}

void SvgSurface::polylines(const PointRuns& lines, const Stroke& stroke) {
  beginPath();
  for (std::size_t i = 0; i < lines.size(); ++i)
    points(lines[i], false);
  endPath({}, stroke);
}

void SvgSurface::polygons(const PointRuns& outlines, Rgba fill) {
  beginPath();
  for (std::size_t i = 0; i < outlines.size(); ++i)
    points(outlines[i], true);
  endPath(fill, {});
}

void SvgSurface::segments(std::span<const Point> ends, const Stroke& stroke) {
  if (ends.size() < 2)
    return;
  beginPath();
  for (std::size_t i = 0; i + 1 < ends.size(); i += 2)
    points(ends.subspan(i, 2), false);
  endPath({}, stroke);
}

void SvgSurface::circle(Point centre, double radius, std::optional<Rgba> fill,
                        std::optional<Stroke> outline) {
  out_ += "<circle cx=\"";
  number(centre.x);
  out_ += "\" cy=\"";
  number(centre.y);
  out_ += "\" r=\"";
  number(radius);
  endPath(fill, outline);
}

void SvgSurface::text(std::string_view text, Point centre, double degrees, const TextStyle& style) {
  out_ += "<text transform=\"translate(";
  number(centre.x);
  out_ += ' ';
  number(centre.y);
  out_ += ")";
  if (degrees != 0) {
    out_ += " rotate(";
    number(degrees * kPxPerMm);
    out_ += ")";
  }
  out_ += "\" y=\"";
  number(style.em() * kBaseline);
  out_ += "\" text-anchor=\"middle\" font-size=\"";
  number(style.em());
  out_ += style.bold ? "\" font-weight=\"bold\"" : "\"";
  paint("fill", style.color);
  out_ += '>';
  escaped(text);
  out_ += "</text>\n";
}

SizePx SvgSurface::textSize(std::string_view text, const TextStyle& style) {
  return measure_(text, style);
}

} // namespace trassix
