#include "editing/canvas/piece_painter.h"

#include "editing/canvas/plan_colors.h"

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

} // namespace

PieceLook carriedLook(bool snapped) {
  PieceLook look;
  look.bed = snapped ? Rgba{150, 208, 172, 235} : Rgba{170, 198, 236, 215};
  look.accent = snapped ? plan_colors::kSnapped : plan_colors::kSelected;
  return look;
}

PiecePainter::PiecePainter(Surface& surface, const ViewTransform& view)
    : surface_(surface), view_(view), tolerance_(kChordPx / (view.zoom() * surface.deviceScale())) {
}

PiecePainter::Shape PiecePainter::shapeOf(const PieceDef& definition) const {
  return {trackGeometryOf(definition), trackLinesOf(definition, tolerance_)};
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
    return Stroke{look.faded ? plan_colors::faded(plan_colors::kBedEdge) : plan_colors::kBedEdge,
                  1.0, look.beneath ? Stroke::Style::Dashed : Stroke::Style::Solid};
  };
  const auto fillOf = [this](const Piece& piece) -> std::optional<Rgba> {
    if (fromAfar(piece.shape.geometry))
      return std::nullopt;
    Rgba fill = piece.look.faded ? plan_colors::faded(piece.look.bed) : piece.look.bed;
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
  const auto shade = [](const Piece& piece, Rgba color) {
    return piece.look.faded ? plan_colors::faded(color) : color;
  };
  const auto sleeperOf = [&](const Piece& piece) -> std::optional<Stroke> {
    const double gaugePx = piece.shape.geometry.gauge * zoom;
    if (!railsShow(piece) || !piece.look.sleepers || piece.look.beneath ||
        gaugePx < kSleepersFromPx)
      return std::nullopt;
    return Stroke{shade(piece, plan_colors::kSleeper), std::max(1.0, gaugePx * 0.17)};
  };
  const auto lineOf = [&](const Piece& piece) -> std::optional<Stroke> {
    const TrackGeometry& geometry = piece.shape.geometry;
    if (fromAfar(geometry))
      return Stroke{
          piece.look.beneath ? plan_colors::kFarBeneath : shade(piece, plan_colors::kFarTrack),
          std::max(geometry.halfWidth * zoom * (piece.look.beneath ? kBeneathWidth : 1), 1.5),
          styleOf(piece)};
    const double width = railsShow(piece) ? std::max(geometry.gauge * zoom * 0.06, 1.0) : 1.0;
    return Stroke{shade(piece, plan_colors::kRail), width, styleOf(piece)};
  };
  const auto stroke = [this](const Stroke& line) { surface_.polylines(runs_, line); };
  together(
      pieces, sleeperOf,
      [this](const Piece& piece) { addPairs(piece.shape.geometry.sleepers, piece.pose); }, stroke);
  together(
      pieces, lineOf,
      [&](const Piece& piece) {
        const TrackLines& lines = piece.shape.lines;
        addLines(railsShow(piece) && !fromAfar(piece.shape.geometry) ? lines.rails
                                                                     : lines.centreLines,
                 piece.pose);
      },
      stroke);
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
