#include "editing/autofill/arc_fill.h"

#include <array>
#include <cmath>

namespace trassix {

namespace {

constexpr double kNone = 1e-9;

Point direction(double degrees) {
  return {std::cos(toRadians(degrees)), std::sin(toRadians(degrees))};
}

/// Distance from the arc's end to `gap`, the way from its start to where it should end.
double missBy(const ConnectingArc& arc, Point forward, Point gap) {
  const double side = arc.turn > 0 ? 1.0 : -1.0;
  const double turn = toRadians(std::abs(arc.turn));
  const double along = arc.radius * std::sin(turn);
  const double across = side * arc.radius * (1 - std::cos(turn));
  return std::hypot(along * forward.x - across * forward.y - gap.x,
                    along * forward.y + across * forward.x - gap.y);
}

} // namespace

std::vector<ConnectingArc> connectingArcs(const WorldConnector& start, const WorldConnector& end) {
  const Point gap{end.x - start.x, end.y - start.y};
  if (std::hypot(gap.x, gap.y) <= 1e-6)
    return {};
  const Point u = direction(start.heading);
  const Point v = direction(end.heading);
  const double cross = u.x * v.y - u.y * v.x;
  const double dot = u.x * v.x + u.y * v.y;
  const double across = u.x * gap.y - u.y * gap.x;

  if (std::abs(cross) < kNone && dot > 0) {
    // Side by side: half a circle, when neither end is ahead of the other.
    const double along = u.x * gap.x + u.y * gap.y;
    if (std::abs(across) < kArcClosure || std::abs(along) > kArcClosure)
      return {};
    return {{std::abs(across) / 2, across > 0 ? 180.0 : -180.0, std::abs(along)}};
  }

  // A train arrives against the end's heading; it gets there by the short or by the long way round.
  const double turn = toDegrees(std::atan2(-cross, -dot));
  std::vector<ConnectingArc> arcs;
  for (const double candidate : std::array{turn, turn > 0 ? turn - 360.0 : turn + 360.0}) {
    if (std::abs(candidate) < 1e-6)
      continue;
    const double towards = candidate > 0 ? across : -across;
    if (std::abs(2 * towards) < kNone)
      continue;
    ConnectingArc arc{(gap.x * gap.x + gap.y * gap.y) / (2 * towards), candidate};
    arc.miss = missBy(arc, u, gap);
    if (arc.radius > 1e-6)
      arcs.push_back(arc);
  }
  return arcs;
}

} // namespace trassix
