#include "editing/canvas/piece_painter.h"

#include "editing/canvas/plan_theme.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

namespace trassix {

namespace {

constexpr double kBedFromPx = 5.0;   ///< a narrower track bed is drawn as a line
constexpr double kRailsFromPx = 3.2; ///< distance between the rails from which both are drawn
constexpr double kSleepersFromPx = 9.0;
constexpr double kBeneathWidth = 0.7; ///< of what lies beneath, to what lies on top
constexpr double kChordPx = 0.15;     ///< by which a chord may miss its curve
constexpr double kDetailPx = 2;       ///< smaller details are left out
// To the gauge.
constexpr double kGirder = 0.1;
constexpr double kShoulder = 0.25;
constexpr double kBeam = 0.28;
constexpr double kArrow = 0.1;

} // namespace

PieceLook carriedLook(const PlanTheme& theme, bool snapped) {
  PieceLook look;
  look.bed = snapped ? theme.snappedBed : theme.carriedBed;
  look.accent = snapped ? theme.snapped : theme.selected;
  return look;
}

PiecePainter::PiecePainter(Surface& surface, const ViewTransform& view, const PlanTheme& theme)
    : surface_(surface), view_(view), theme_(theme),
      tolerance_(kChordPx / (view.zoom() * surface.deviceScale())) {}

PiecePainter::Shape PiecePainter::shapeOf(const PieceDef& definition) const {
  const TrackGeometry& geometry = trackGeometryOf(definition);
  const bool close = geometry.gauge * kBeam * view_.zoom() >= kDetailPx;
  return {geometry, trackLinesOf(definition, tolerance_),
          close ? &trackDetailsOf(definition) : nullptr};
}

bool PiecePainter::fromAfar(const TrackGeometry& geometry) const {
  return geometry.halfWidth * 2 * view_.zoom() < kBedFromPx;
}

void PiecePainter::toScreen(std::span<const Point> local, const Pose& pose,
                            std::span<Point> px) const {
  const double zoom = view_.zoom();
  const double c = std::cos(toRadians(pose.heading)) * zoom;
  const double s = std::sin(toRadians(pose.heading)) * zoom;
  const Point at = view_.toScreen({pose.x, pose.y});
  for (std::size_t i = 0; i < local.size(); ++i)
    px[i] = {at.x + local[i].x * c - local[i].y * s, at.y + local[i].x * s + local[i].y * c};
}

const std::vector<Point>& PiecePainter::toScreen(const std::vector<Point>& local,
                                                 const Pose& pose) {
  buffer_.resize(local.size());
  toScreen(local, pose, buffer_);
  return buffer_;
}

void PiecePainter::onPixels(std::span<const Point> local, const Pose& pose,
                            std::span<Point> px) const {
  const double scale = surface_.deviceScale();
  // By a cast, which is one instruction where std::floor is a call for each of many points. It cuts
  // towards zero, so that it is done far from there: halves go the same way wherever the plan lies.
  constexpr double kFar = 1 << 30;
  const auto whole = [scale](double at) {
    return (static_cast<double>(static_cast<std::int64_t>(at * scale + kFar + 0.5)) - kFar) / scale;
  };
  toScreen(local, pose, px);
  for (Point& p : px)
    p = {whole(p.x), whole(p.y)};
}

void PiecePainter::addLines(const std::vector<std::vector<Point>>& lines, const Pose& pose) {
  for (const auto& line : lines)
    toScreen(line, pose, runs_.add(line.size()));
}

void PiecePainter::addPairs(const std::vector<Point>& ends, const Pose& pose) {
  for (std::size_t i = 0; i + 1 < ends.size(); i += 2)
    toScreen(std::span(ends).subspan(i, 2), pose, runs_.add(2));
}

template <class StyleOf, class Add, class Draw>
void PiecePainter::together(std::span<const Piece> pieces, StyleOf styleOf, Add add, Draw draw) {
  using Style = typename decltype(styleOf(pieces[0]))::value_type;
  std::vector<Style> styles; // few
  for (const Piece& piece : pieces)
    if (const std::optional<Style> style = styleOf(piece))
      if (std::ranges::find(styles, *style) == styles.end())
        styles.push_back(*style);
  for (const Style& style : styles) {
    runs_.clear();
    for (const Piece& piece : pieces)
      if (styleOf(piece) == style)
        add(piece);
    draw(style);
  }
}

void PiecePainter::paintBeds(std::span<const Piece> pieces) {
  const auto edgeOf = [this](const Piece& piece) -> std::optional<Stroke> {
    if (fromAfar(piece.shape.geometry))
      return std::nullopt;
    const PieceLook& look = piece.look;
    return Stroke{look.faded ? theme_.faded(theme_.bedEdge) : theme_.bedEdge, 1.0,
                  look.beneath ? Stroke::Style::Dashed : Stroke::Style::Solid};
  };
  const auto fillOf = [this](const Piece& piece) -> std::optional<Rgba> {
    if (fromAfar(piece.shape.geometry) || !theme_.fills)
      return std::nullopt;
    Rgba fill = piece.look.faded ? theme_.faded(piece.look.bed) : piece.look.bed;
    if (piece.look.beneath)
      fill.a = 90;
    return fill;
  };
  const auto stroke = [this](const Stroke& edge) { surface_.polylines(runs_, edge); };
  // What meets hides the end of the other one, but for a hair by which they are told apart.
  together(
      pieces, edgeOf, [this](const Piece& piece) { addPairs(piece.shape.lines.ends, piece.pose); },
      stroke);
  together(
      pieces, fillOf,
      [this](const Piece& piece) {
        for (const auto& outline : piece.shape.geometry.beds)
          onPixels(outline, piece.pose, runs_.add(outline.size()));
      },
      [this](Rgba fill) { surface_.polygons(runs_, fill); });
  together(
      pieces,
      [&](const Piece& piece) -> std::optional<Rgba> {
        if (piece.shape.geometry.decks.empty() || !fillOf(piece))
          return std::nullopt;
        Rgba fill = opaque(theme_.bed);
        if (piece.look.faded)
          fill = theme_.faded(fill);
        fill.a = fillOf(piece)->a;
        return fill;
      },
      [this](const Piece& piece) {
        for (const auto& outline : piece.shape.geometry.decks)
          onPixels(outline, piece.pose, runs_.add(outline.size()));
      },
      [this](Rgba fill) { surface_.polygons(runs_, fill); });
  // On whole pixels a curve has steps, which its edge covers.
  together(
      pieces, edgeOf, [this](const Piece& piece) { addLines(piece.shape.lines.edges, piece.pose); },
      stroke);
}

void PiecePainter::paintRails(std::span<const Piece> pieces) {
  const double zoom = view_.zoom();
  const auto railsShow = [zoom](const Piece& piece) {
    return piece.look.rails && piece.shape.geometry.gauge * zoom >= kRailsFromPx;
  };
  const auto styleOf = [](const Piece& piece) {
    return piece.look.beneath ? Stroke::Style::Dashed : Stroke::Style::Solid;
  };
  const auto shade = [this](const Piece& piece, Rgba color) {
    return piece.look.faded ? theme_.faded(color) : color;
  };
  const auto sleeperOf = [&](const Piece& piece) -> std::optional<Stroke> {
    const double gaugePx = piece.shape.geometry.gauge * zoom;
    if (!railsShow(piece) || !piece.look.sleepers || piece.look.beneath ||
        gaugePx < kSleepersFromPx)
      return std::nullopt;
    return Stroke{shade(piece, theme_.sleeper), std::max(1.0, gaugePx * 0.17)};
  };
  paintDetails(pieces);
  const auto lineOf = [&](const Piece& piece) -> std::optional<Stroke> {
    const TrackGeometry& geometry = piece.shape.geometry;
    if (fromAfar(geometry))
      return Stroke{
          piece.look.beneath ? theme_.farBeneath : shade(piece, theme_.farTrack),
          std::max(geometry.halfWidth * zoom * (piece.look.beneath ? kBeneathWidth : 1), 1.5),
          styleOf(piece)};
    const double width = railsShow(piece) ? std::max(geometry.gauge * zoom * 0.06, 1.0) : 1.0;
    return Stroke{shade(piece, theme_.rail), width, styleOf(piece)};
  };
  const auto stroke = [this](const Stroke& line) { surface_.polylines(runs_, line); };
  together(
      pieces, sleeperOf,
      [this](const Piece& piece) { addPairs(piece.shape.geometry.sleepers, piece.pose); }, stroke);
  together(
      pieces, lineOf,
      [&](const Piece& piece) {
        const auto& [geometry, lines, details] = piece.shape;
        if (!railsShow(piece) || fromAfar(geometry))
          return addLines(lines.centreLines, piece.pose);
        addLines(showsPoints(piece) ? details->rails : lines.rails, piece.pose);
        if (showsPoints(piece))
          addLines(details->fittings, piece.pose);
      },
      stroke);
  paintClimbs(pieces);
}

bool PiecePainter::showsPoints(const Piece& piece) const {
  return piece.shape.details != nullptr && !piece.shape.details->rails.empty() &&
         piece.shape.geometry.gauge * kFlangeway * view_.zoom() >= kDetailPx;
}

void PiecePainter::paintDetails(std::span<const Piece> all) {
  std::vector<Piece> pieces;
  for (const Piece& piece : all)
    if (piece.shape.details != nullptr && piece.shape.details->more())
      pieces.push_back(piece);
  const auto shade = [this](const Piece& piece, Rgba color) {
    if (piece.look.faded)
      color = theme_.faded(color);
    if (piece.look.beneath)
      color.a = 90;
    return color;
  };
  const auto wide = [this](const Piece& piece, double gauges) {
    return piece.shape.geometry.gauge * gauges * view_.zoom();
  };
  const auto stroke = [this](const Stroke& line) { surface_.polylines(runs_, line); };
  together(
      pieces,
      [&](const Piece& piece) -> std::optional<Stroke> {
        if (piece.shape.details->girders.empty() || wide(piece, kGirder) < 1)
          return std::nullopt;
        return Stroke{shade(piece, theme_.girder), std::min(wide(piece, kGirder), 4.0)};
      },
      [this](const Piece& piece) { addLines(piece.shape.details->girders, piece.pose); }, stroke);
  together(
      pieces,
      [&](const Piece& piece) -> std::optional<Stroke> {
        if (piece.shape.details->hachures.empty() || wide(piece, kShoulder) < kDetailPx)
          return std::nullopt;
        return Stroke{shade(piece, theme_.bedEdge), 1};
      },
      [this](const Piece& piece) { addPairs(piece.shape.details->hachures, piece.pose); }, stroke);
  together(
      pieces,
      [&](const Piece& piece) -> std::optional<Stroke> {
        if (piece.shape.details->beams.empty())
          return std::nullopt;
        return Stroke{shade(piece, opaque(theme_.material(Material::Red))), wide(piece, kBeam)};
      },
      [this](const Piece& piece) { addPairs(piece.shape.details->beams, piece.pose); }, stroke);
}

/// Which way is up on a ramp.
void PiecePainter::paintClimbs(std::span<const Piece> pieces) {
  together(
      pieces,
      [this](const Piece& piece) -> std::optional<Stroke> {
        if (piece.shape.details == nullptr || piece.look.climb == 0)
          return std::nullopt;
        const Rgba color = piece.look.faded ? theme_.faded(theme_.rail) : theme_.rail;
        return Stroke{color,
                      std::clamp(piece.shape.geometry.gauge * kArrow * view_.zoom(), 1., 3.)};
      },
      [this](const Piece& piece) {
        const auto& [up, down] = piece.shape.details->climbs;
        addLines(piece.look.climb > 0 ? up : down, piece.pose);
      },
      [this](const Stroke& line) { surface_.polylines(runs_, line); });
}

void PiecePainter::paintAccents(std::span<const Piece> pieces) {
  together(
      pieces,
      [this](const Piece& piece) -> std::optional<Stroke> {
        if (!piece.look.accent)
          return std::nullopt;
        const TrackGeometry& geometry = piece.shape.geometry;
        return Stroke{*piece.look.accent,
                      fromAfar(geometry) ? std::max(geometry.halfWidth * view_.zoom(), 2.5) : 2.0};
      },
      [this](const Piece& piece) {
        addLines(piece.shape.lines.centreLines, piece.pose);
        if (fromAfar(piece.shape.geometry))
          return;
        addLines(piece.shape.lines.edges, piece.pose);
        addPairs(piece.shape.lines.ends, piece.pose);
      },
      [this](const Stroke& accent) { surface_.polylines(runs_, accent); });
}

void PiecePainter::paint(const PieceDef& definition, const Pose& pose, const PieceLook& look) {
  const Piece piece{shapeOf(definition), pose, look};
  paintBeds({&piece, 1});
  paintRails({&piece, 1});
  paintAccents({&piece, 1});
}

} // namespace trassix
