#include "editing/canvas/piece_painter.h"

#include "editing/canvas/plan_colors.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace trassix {

namespace {

constexpr double kBedFromPx = 5.0;   ///< a narrower track bed is drawn as a line
constexpr double kRailsFromPx = 3.2; ///< distance between the rails from which both are drawn
constexpr double kSleepersFromPx = 9.0;

} // namespace

PieceLook carriedLook(bool snapped) {
  PieceLook look;
  look.bed = snapped ? Rgba{150, 208, 172, 235} : Rgba{170, 198, 236, 215};
  look.accent = snapped ? plan_colors::kSnapped : plan_colors::kSelected;
  return look;
}

bool PiecePainter::fromAfar(const TrackGeometry& geometry) const {
  return geometry.halfWidth * 2 * view_.zoom() < kBedFromPx;
}

const std::vector<Point>& PiecePainter::toScreen(const std::vector<Point>& local,
                                                 const Pose& pose) {
  const double zoom = view_.zoom();
  const double c = std::cos(toRadians(pose.heading)) * zoom;
  const double s = std::sin(toRadians(pose.heading)) * zoom;
  const Point at = view_.toScreen({pose.x, pose.y});
  buffer_.resize(local.size());
  for (std::size_t i = 0; i < local.size(); ++i)
    buffer_[i] = {at.x + local[i].x * c - local[i].y * s, at.y + local[i].x * s + local[i].y * c};
  return buffer_;
}

const std::vector<Point>& PiecePainter::onPixels(const std::vector<Point>& local,
                                                 const Pose& pose) {
  const double scale = surface_.deviceScale();
  // By a cast, which is one instruction where std::round is a call for each of many points.
  const auto whole = [scale](double px) {
    const double device = px * scale;
    return static_cast<double>(static_cast<std::int64_t>(device + (device < 0 ? -0.5 : 0.5))) /
           scale;
  };
  toScreen(local, pose);
  for (Point& p : buffer_)
    p = {whole(p.x), whole(p.y)};
  return buffer_;
}

void PiecePainter::paintBed(const TrackGeometry& geometry, const Pose& pose,
                            const PieceLook& look) {
  if (fromAfar(geometry))
    return;
  const Rgba fill = look.faded ? plan_colors::faded(look.bed) : look.bed;
  Stroke edge{plan_colors::kBedEdge, 1.0};
  if (look.faded)
    edge.color = plan_colors::faded(edge.color);
  if (look.accent)
    edge = {*look.accent, 2.0};
  if (look.covered)
    edge.style = Stroke::Style::Dashed;
  const Rgba bed = look.covered ? Rgba{fill.r, fill.g, fill.b, 90} : fill;
  if (geometry.beds.size() == 1) {
    const std::vector<Point>& outline = onPixels(geometry.beds.front(), pose);
    surface_.polygon(outline, {}, edge);
    surface_.polygon(outline, bed, {});
    return;
  }
  // Outlines first, fills over them: where routes of one piece overlap, no edge crosses the bed.
  for (const auto& outline : geometry.beds)
    surface_.polygon(onPixels(outline, pose), {}, edge);
  for (const auto& outline : geometry.beds)
    surface_.polygon(onPixels(outline, pose), bed, {});
}

void PiecePainter::paintRails(const TrackGeometry& geometry, const Pose& pose,
                              const PieceLook& look) {
  const double zoom = view_.zoom();
  if (fromAfar(geometry)) {
    Rgba color = look.accent.value_or(plan_colors::kFarTrack);
    if (look.faded && !look.accent)
      color = plan_colors::faded(color);
    const double width = std::max(geometry.halfWidth * zoom, look.accent ? 2.5 : 1.5);
    for (const auto& line : geometry.centreLines)
      surface_.polyline(
          toScreen(line, pose),
          {color, width, look.covered ? Stroke::Style::Dashed : Stroke::Style::Solid});
    return;
  }
  const double gaugePx = geometry.gauge * zoom;
  const Rgba rail = look.faded ? plan_colors::faded(plan_colors::kRail) : plan_colors::kRail;
  const Stroke::Style style = look.covered ? Stroke::Style::Dashed : Stroke::Style::Solid;
  if (look.rails && gaugePx >= kRailsFromPx) {
    if (look.sleepers && !look.covered && gaugePx >= kSleepersFromPx) {
      const Rgba sleeper =
          look.faded ? plan_colors::faded(plan_colors::kSleeper) : plan_colors::kSleeper;
      surface_.segments(toScreen(geometry.sleepers, pose),
                        {sleeper, std::max(1.0, gaugePx * 0.17)});
    }
    for (const auto& line : geometry.rails)
      surface_.polyline(toScreen(line, pose), {rail, std::max(gaugePx * 0.06, 1.0), style});
  } else {
    for (const auto& line : geometry.centreLines)
      surface_.polyline(toScreen(line, pose), {rail, 1.0, style});
  }
  if (look.accent)
    for (const auto& line : geometry.centreLines)
      surface_.polyline(toScreen(line, pose), {*look.accent, 2.0});
}

void PiecePainter::paint(const TrackGeometry& geometry, const Pose& pose, const PieceLook& look) {
  paintBed(geometry, pose, look);
  paintRails(geometry, pose, look);
}

} // namespace trassix
