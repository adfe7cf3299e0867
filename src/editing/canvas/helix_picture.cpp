#include "editing/canvas/helix_picture.h"

#include "document/plan_content.h"
#include "editing/canvas/halo.h"
#include "editing/canvas/plan_theme.h"
#include "editing/helix/helix_ends.h"
#include "measures/measure_format.h"
#include "texts/texts.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace trassix {

namespace {

constexpr double kArrow = 9;      // px
constexpr double kLeastStub = 34; // px
constexpr double kMostStub = 140;
constexpr double kClearOfTrack = 45; // mm

/// Px of way beyond an end: as much as brings it clear of the turn that it leaves.
double stubLength(const ViewTransform& view, const HelixPlan& plan) {
  const double way = std::sqrt(2 * plan.kit->outermost().radius * kClearOfTrack);
  return std::clamp(way * view.zoom(), kLeastStub, kMostStub);
}

Point along(Point from, double heading, double px) {
  return {from.x + std::cos(toRadians(heading)) * px, from.y + std::sin(toRadians(heading)) * px};
}

/// On the inner track, a part of a turn beyond the bottom.
void paintArrow(Surface& surface, const ViewTransform& view, const PlanTheme& theme,
                const HelixPlan& plan, double turned) {
  const double side = plan.hand == HelixHand::Right ? 1 : -1;
  const double heading = plan.centre.heading + side * turned;
  const Point at = view.toScreen(
      toWorld({plan.centre.x, plan.centre.y, heading}, {0, -side * plan.kit->inner->radius}));
  const Point back = along(at, heading, -kArrow / 2);
  const std::array<Point, 3> head{along(at, heading, kArrow),
                                  along(back, heading + 90, kArrow * 0.7),
                                  along(back, heading - 90, kArrow * 0.7)};
  surface.polygon(head, theme.gradeColor(plan.slope(false)), Stroke{theme.paper, 1});
}

} // namespace

void paintHelixTrack(Surface& surface, const ViewTransform& view, const PlanTheme& theme,
                     const HelixPlan& plan, const PieceLook& look) {
  PiecePainter painter(surface, view, theme);
  for (const HelixTrack& track : helixTracks(plan)) {
    const PieceDef& curve = *definitionOf(track.pieces.front());
    const auto turn = static_cast<std::size_t>(std::lround(360 / curve.angle));
    for (std::size_t i = 0; i < std::min(turn, track.pieces.size()); ++i)
      painter.paint(curve, poseOf(track.pieces[i]), look);
  }
}

void paintHelixMarks(Surface& surface, const ViewTransform& view, const PlanTheme& theme,
                     const HelixPlan& plan) {
  for (const double turned : {60.0, 180.0, 300.0})
    paintArrow(surface, view, theme, plan, turned);
  const double stub = stubLength(view, plan);
  for (const HelixEnd& end : endsOf(plan)) {
    const Point at = view.toScreen(end.placed.at);
    const std::array<Point, 2> line{at, along(at, end.placed.heading, stub)};
    surface.polyline(line, {theme.openEnd, 2});
    surface.circle(at, 3.5, theme.paper, Stroke{theme.openEnd, 2});
  }
}

void paintHelixMarks(Surface& surface, const ViewTransform& view, const PlanTheme& theme,
                     const HelixPlan& plan, std::optional<std::size_t> joining,
                     std::int32_t units) {
  paintHelixMarks(surface, view, theme, plan);
  const std::vector<HelixEnd> ends = endsOf(plan);
  if (joining)
    surface.circle(view.toScreen(ends[*joining].placed.at), 6, theme.snapped,
                   Stroke{theme.paper, 2});
  for (const bool top : {false, true}) {
    const HelixEnd& end = ends[top ? ends.size() - 1 : plan.kit->tracks() - 1];
    const std::string text = tr(top ? trLater("top %1%") : trLater("bottom %1%"),
                                {formatLength(end.placed.height, units)});
    const TextStyle style{theme.ruler, 12, false};
    const double half = surface.textSize(text, style).width / 2;
    // Beyond the stub, whichever way it leads.
    const double reach = half * std::abs(std::cos(toRadians(end.placed.heading)));
    paintTextWithHalo(surface, text,
                      along(view.toScreen(end.placed.at), end.placed.heading,
                            stubLength(view, plan) + reach + 10),
                      0, style, theme.paper);
  }
}

} // namespace trassix
