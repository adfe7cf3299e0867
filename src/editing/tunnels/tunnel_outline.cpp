#include "editing/tunnels/tunnel_outline.h"

#include "catalog/scenery_catalog.h"
#include "document/layout.h"
#include "document/plan_content.h"
#include "editing/tunnels/tunnel_chain.h"
#include "editing/tunnels/tunnel_figures.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace trassix {

namespace {

constexpr double kSame = 0.5; // mm

double distance(Point a, Point b) {
  return std::hypot(a.x - b.x, a.y - b.y);
}

} // namespace

Polygon hillOver(const Layout& layout, const Tunnel& tunnel) {
  std::vector<std::int32_t> pieces = tunnel.covers;
  std::erase_if(pieces, [&layout](std::int32_t id) { return layout.findPiece(id) == nullptr; });
  std::ranges::sort(pieces);
  const TunnelChains chains = tunnelChains(layout, pieces);
  if (chains.problem)
    return {};
  const TrainWay& way = chains.ways.front();
  const TrackSystem system = definitionOf(*layout.findPiece(way.start().piece))->system;
  const double half =
      findScenery(portalItem(TunnelOpening::WithWire, 1))->footprint(system).width / 2;
  double left = half;
  double right = half;
  if (chains.ways.size() == 2) { // seen along the way, the end looks the same way
    const WorldConnector there = outerEnd(layout, chains.ways.back().end());
    const double beside = besideEnd(outerEnd(layout, way.end()), {there.x, there.y}).right;
    (beside > 0 ? right : left) += std::abs(beside);
  }
  Polygon hill;
  Polygon back;
  for (const Pose& pose : posesAlong(layout, way)) {
    const Point there = toWorld(pose, {0, right});
    const Point here = toWorld(pose, {0, -left});
    if (!hill.empty() && distance(hill.back(), there) < kSame &&
        distance(back.back(), here) < kSame)
      continue; // where pieces meet
    hill.push_back(there);
    back.push_back(here);
  }
  std::ranges::reverse_copy(back, std::back_inserter(hill));
  return hill;
}

} // namespace trassix
