#include "editing/canvas/record_pictures.h"

#include "catalog/helix_kits.h"
#include "catalog/scenery_catalog.h"
#include "document/plan_content.h"
#include "editing/canvas/halo.h"
#include "editing/canvas/plan_theme.h"
#include "editing/helix/helix_plan.h"
#include "editing/scenery/scenery_footprint.h"
#include "editing/selection/picking.h"
#include "editing/selection/record_body.h"
#include "editing/tunnels/tunnel_outline.h"
#include "measures/measure_format.h"
#include "texts/texts.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace trassix {

namespace {

constexpr double kStrokeReachPx = 4; ///< of the widest edge and its joins
constexpr double kTapeReachPx = 60;  ///< of a tape's length, written beside it

Stroke selectedEdge(const PictureSite& site) {
  return {site.theme.selected, 2.5};
}

TextStyle nameStyle(const PictureSite& site) {
  return {site.theme.label, labelTextSize(1 / site.view.zoom()) - 1, false};
}

/// More than half of what the text takes, without measuring it.
double longest(std::string_view text, double size) {
  return static_cast<double>(text.size()) * size + 20;
}

double helixRadius(const PictureSite& site, const Helix& helix) {
  return helixHalfSize(helix.variant) * site.view.zoom();
}

/// Whether this piece of a helix or a tunnel is on a hidden level.
bool isHidden(const Layout& layout, std::int32_t id) {
  const PlacedPiece* piece = layout.findPiece(id);
  return piece != nullptr && !layout.levelVisible(piece->level);
}

void paintOutline(const PictureSite& site, const auto& record, const CarriedLook& look) {
  site.surface.polygon(site.view.toScreen(bodyOf(site.layout, record, 0).outline), {}, look.edge);
}

} // namespace

bool PictureSite::isBeside(std::span<const Point> px, double reach) const {
  const auto all = [px](auto outside) { return std::ranges::all_of(px, outside); };
  return all([&](Point p) { return p.x < part.minX - reach; }) ||
         all([&](Point p) { return p.y < part.minY - reach; }) ||
         all([&](Point p) { return p.x > part.maxX + reach; }) ||
         all([&](Point p) { return p.y > part.maxY + reach; });
}

// Shapes

void paintRecord(const PictureSite& site, const Shape& shape) {
  if (shape.points.size() < 2)
    return;
  const std::vector<Point> px = site.view.toScreen(shape.points);
  if (site.isBeside(px, longest(shape.label, nameStyle(site).size)))
    return;
  const Rgba fill = site.theme.area(shape.color, shape.a);
  const Stroke edge =
      shape.sel && site.selection ? selectedEdge(site) : Stroke{site.theme.line(shape.color), 1.5};
  const bool bare = shape.outline || !site.theme.fills;
  site.surface.polygon(px, bare ? std::nullopt : std::optional(fill), edge);
  if (shape.label.empty())
    return;
  Point middle;
  for (const Point& p : px)
    middle = {middle.x + p.x / static_cast<double>(px.size()),
              middle.y + p.y / static_cast<double>(px.size())};
  site.surface.text(shape.label, middle, 0, nameStyle(site));
}

void paintSelected(const PictureSite& site, const Shape& shape) {
  site.surface.polygon(site.view.toScreen(shape.points), {}, selectedEdge(site));
}

void paintCarried(const PictureSite& site, const Shape& shape, const CarriedLook& look) {
  paintOutline(site, shape, look);
}

std::string nameOf(const Layout&, const Shape& shape) {
  return shape.label.empty() ? tr("Shape") : shape.label;
}

// Helices and tunnels

void paintRecord(const PictureSite& site, const Helix& helix) {
  const Point centre = site.view.toScreen({helix.cx, helix.cy});
  const double radius = helixRadius(site, helix);
  if (site.isBeside({&centre, 1}, radius + kStrokeReachPx) || isHidden(site.layout, helix.bottomR1))
    return;
  site.surface.circle(centre, radius, site.theme.hill,
                      Stroke{site.theme.tunnel, 1.5, Stroke::Style::Dashed});
  if (const HelixKit* kit = findHelixKit(helix.variant); kit && !planOfHelix(site.layout, helix))
    site.surface.text(kit->name, centre, 0, nameStyle(site));
}

void paintCarried(const PictureSite& site, const Helix& helix, const CarriedLook& look) {
  site.surface.circle(site.view.toScreen({helix.cx, helix.cy}), helixRadius(site, helix), {},
                      look.edge);
}

namespace {

/// Strokes up the slope from its foot, long and short in turns.
void paintHachures(const PictureSite& site, const std::vector<Point>& foot) {
  constexpr double kApartPx = 9;
  constexpr double kLongMm = 14;
  const double longest = std::min(kLongMm * site.view.zoom(), 18.0);
  if (longest < 4)
    return;
  double area = 0;
  for (std::size_t i = 0; i < foot.size(); ++i) {
    const Point a = foot[i];
    const Point b = foot[(i + 1) % foot.size()];
    area += a.x * b.y - b.x * a.y;
  }
  const double inwards = area > 0 ? 1 : -1;
  std::vector<Point> strokes;
  double next = kApartPx / 2;
  int count = 0;
  for (std::size_t i = 0; i < foot.size(); ++i) {
    const Point a = foot[i];
    const Point b = foot[(i + 1) % foot.size()];
    const double length = std::hypot(b.x - a.x, b.y - a.y);
    const Point along{(b.x - a.x) / length, (b.y - a.y) / length};
    for (; next < length; next += kApartPx) {
      const Point from{a.x + along.x * next, a.y + along.y * next};
      const double reach = inwards * longest * (count++ % 2 == 0 ? 1 : 0.55);
      strokes.insert(strokes.end(), {from, {from.x - along.y * reach, from.y + along.x * reach}});
    }
    next -= length;
  }
  site.surface.segments(strokes, {withAlpha(site.theme.tunnel, 150), 1});
}

} // namespace

/// A hill with a soft slope.
void paintRecord(const PictureSite& site, const Tunnel& tunnel) {
  if (isHidden(site.layout, tunnel.anchorA))
    return;
  const std::vector<Point> px = site.view.toScreen(hillOver(site.layout, tunnel));
  if (px.empty() || site.isBeside(px, kStrokeReachPx))
    return;
  site.surface.polygon(px, site.theme.hill, Stroke{site.theme.tunnel, 1.5});
  paintHachures(site, px);
  if (site.selection)
    paintSelected(site, tunnel);
}

/// All of it when any of its track or a portal is selected.
void paintSelected(const PictureSite& site, const Tunnel& tunnel) {
  const bool chosen = std::ranges::any_of(tunnel.covers, [&site](std::int32_t id) {
    return isSelected(site.layout, {RecordKind::Piece, id});
  });
  if (!chosen && !isSelected(site.layout, {RecordKind::Scenery, tunnel.portalA}) &&
      !isSelected(site.layout, {RecordKind::Scenery, tunnel.portalB}))
    return;
  if (const std::vector<Point> px = site.view.toScreen(hillOver(site.layout, tunnel)); !px.empty())
    site.surface.polygon(px, {}, selectedEdge(site));
}

void paintCarried(const PictureSite&, const Tunnel&, const CarriedLook&) {}

// Scenery and track

void paintSelected(const PictureSite& site, const SceneryItem& item) {
  site.surface.polygon(site.view.toScreen(sceneryOutline(site.layout, item)), {},
                       selectedEdge(site));
}

void paintCarried(const PictureSite& site, const SceneryItem& item, const CarriedLook& look) {
  paintOutline(site, item, look);
}

std::string nameOf(const Layout&, const SceneryItem& item) {
  const SceneryDef* definition = findScenery(item.item);
  return definition ? std::string(definition->name) : item.item;
}

void paintCarried(const PictureSite& site, const PlacedPiece& piece, const CarriedLook& look) {
  if (const PieceDef* definition = definitionOf(piece))
    PiecePainter(site.surface, site.view, site.theme).paint(*definition, poseOf(piece), look.track);
}

std::string nameOf(const Layout&, const PlacedPiece& piece) {
  // The catalogue's names begin with the article.
  const PieceDef* definition = definitionOf(piece);
  return definition ? definition->name : piece.cat;
}

// Measurements

void paintRecord(const PictureSite& site, const Measurement& tape) {
  const std::array<Point, 2> ends{site.view.toScreen(tape.from), site.view.toScreen(tape.to)};
  if (!site.isBeside(ends, kTapeReachPx))
    paintTape(site, tape.from, tape.to, tape.sel && site.selection);
}

void paintSelected(const PictureSite& site, const Measurement& tape) {
  paintTape(site, tape.from, tape.to, true);
}

void paintCarried(const PictureSite& site, const Measurement& tape, const CarriedLook&) {
  paintTape(site, tape.from, tape.to, true);
}

std::string nameOf(const Layout& layout, const Measurement& tape) {
  return formatLength(std::hypot(tape.to.x - tape.from.x, tape.to.y - tape.from.y),
                      layout.settings().units);
}

// Labels

namespace {

TextStyle labelStyle(const PictureSite& site) {
  return {site.theme.label, labelTextSize(1 / site.view.zoom()), true};
}

std::array<Point, 4> labelFrame(const PictureSite& site, const Label& label) {
  const Point at = site.view.toScreen({label.x, label.y});
  const SizePx box = site.surface.textSize(label.text, labelStyle(site));
  const double w = box.width / 2 + 5;
  const double h = box.height / 2 + 2;
  return {{{at.x - w, at.y - h}, {at.x + w, at.y - h}, {at.x + w, at.y + h}, {at.x - w, at.y + h}}};
}

} // namespace

void paintRecord(const PictureSite& site, const Label& label) {
  const Point at = site.view.toScreen({label.x, label.y});
  const TextStyle style = labelStyle(site);
  if (site.isBeside({&at, 1}, longest(label.text, style.size)))
    return;
  site.surface.polygon(labelFrame(site, label), site.theme.plate,
                       label.sel && site.selection ? Stroke{site.theme.selected, 2}
                                                   : Stroke{site.theme.bedEdge, 1});
  site.surface.text(label.text, at, 0, style);
}

void paintSelected(const PictureSite& site, const Label& label) {
  site.surface.polygon(labelFrame(site, label), {}, Stroke{site.theme.selected, 2});
}

void paintCarried(const PictureSite& site, const Label& label, const CarriedLook& look) {
  site.surface.text(label.text, site.view.toScreen({label.x, label.y}), 0,
                    {look.edge.color, labelTextSize(1 / site.view.zoom()), true});
}

std::string nameOf(const Layout&, const Label& label) {
  return label.text;
}

TextStyle articleStyle(const PlanTheme& theme, bool faded) {
  return {faded ? theme.farArticle : theme.article, 10.5, false};
}

double uprightAngle(double heading) {
  double degrees = std::remainder(heading, 360.0);
  if (degrees > 90)
    degrees -= 180;
  else if (degrees <= -90)
    degrees += 180;
  return degrees;
}

void paintTape(const PictureSite& site, Point from, Point to, bool selected) {
  const Point a = site.view.toScreen(from);
  const Point b = site.view.toScreen(to);
  const Rgba color = selected ? site.theme.selected : site.theme.measure;
  const double length = std::hypot(b.x - a.x, b.y - a.y);
  const Point along = length > 0 ? Point{(b.x - a.x) / length, (b.y - a.y) / length} : Point{1, 0};
  const Point tick{-along.y * 6, along.x * 6};
  const std::array<Point, 6> lines{{a,
                                    b,
                                    {a.x - tick.x, a.y - tick.y},
                                    {a.x + tick.x, a.y + tick.y},
                                    {b.x - tick.x, b.y - tick.y},
                                    {b.x + tick.x, b.y + tick.y}}};
  paintLinesWithHalo(site.surface, lines, {color, 1.5}, site.theme.paper);
  const std::string text =
      formatLength(std::hypot(to.x - from.x, to.y - from.y), site.layout.settings().units);
  const TextStyle style{color, 12, true};
  const double angle = uprightAngle(std::atan2(along.y, along.x) * 180 / kPi);
  const double up = toRadians(angle - 90);
  paintTextWithHalo(site.surface, text,
                    {(a.x + b.x) / 2 + std::cos(up) * 11, (a.y + b.y) / 2 + std::sin(up) * 11},
                    angle, style, site.theme.paper);
}

} // namespace trassix
