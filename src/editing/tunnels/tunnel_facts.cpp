#include "editing/tunnels/tunnel_facts.h"

#include "catalog/scenery_catalog.h"
#include "document/layout.h"
#include "document/plan_content.h"
#include "editing/records_by_id.h"
#include "editing/scenery/scenery_footprint.h"
#include "editing/tunnels/tunnel_chain.h"

#include <algorithm>
#include <cmath>

namespace trassix {

namespace {

/// A portal's opening grows with its front. None of an item that is no portal for so many tracks.
OpeningSize openingThrough(const Layout& layout, std::int32_t portal, TrackSystem system,
                           std::size_t tracks) {
  const SceneryItem* item = recordWithId(layout.content().scenery, portal);
  if (item == nullptr)
    return {};
  for (const TunnelOpening kind : {TunnelOpening::WithWire, TunnelOpening::OldStone})
    if (item->item == portalItem(kind, tracks)) {
      OpeningSize opening = openingOf(system, kind, tracks);
      opening.width *=
          sceneryFootprint(layout, *item).width / findScenery(item->item)->footprint(system).width;
      return opening;
    }
  return {};
}

} // namespace

std::optional<TunnelFacts> tunnelFacts(const Layout& layout, const Tunnel& tunnel) {
  std::vector<std::int32_t> pieces = tunnel.covers;
  std::erase_if(pieces, [&layout](std::int32_t id) { return layout.findPiece(id) == nullptr; });
  std::ranges::sort(pieces);
  const TunnelChains chains = tunnelChains(layout, pieces);
  if (chains.problem)
    return std::nullopt;
  TunnelFacts facts;
  facts.tracks = chains.ways.size();
  const PlacedPiece& first = *layout.findPiece(chains.ways.front().start().piece);
  const TrackSystem system = definitionOf(first)->system;
  for (const TrainWay& way : chains.ways) {
    facts.length = std::max(facts.length, way.length());
    const double radius = sharpestRadius(layout, way);
    if (radius > 0 && (facts.sharpest == 0 || radius < facts.sharpest))
      facts.sharpest = radius;
  }
  const OpeningSize plain = openingOf(system, TunnelOpening::WithWire, facts.tracks);
  facts.needed = openingOf(system, TunnelOpening::WithWire, 1).width +
                 2 * sideAddition(system, facts.sharpest);
  if (facts.tracks == 2) {
    const WorldConnector there = outerEnd(layout, chains.ways[1].start());
    facts.needed +=
        std::abs(besideEnd(outerEnd(layout, chains.ways[0].start()), {there.x, there.y}).right);
  }
  facts.heightWithWire = plain.height;
  const OpeningSize a = openingThrough(layout, tunnel.portalA, system, facts.tracks);
  const OpeningSize b = openingThrough(layout, tunnel.portalB, system, facts.tracks);
  facts.opening = {std::min(a.width, b.width), std::min(a.height, b.height)};
  return facts;
}

const Tunnel* tunnelOver(const Layout& layout, std::int32_t piece) {
  for (const Tunnel& tunnel : layout.content().tunnels)
    if (std::ranges::find(tunnel.covers, piece) != tunnel.covers.end())
      return &tunnel;
  return nullptr;
}

const Tunnel* tunnelOfPortal(const Layout& layout, std::int32_t item) {
  for (const Tunnel& tunnel : layout.content().tunnels)
    if (item != -1 && (tunnel.portalA == item || tunnel.portalB == item))
      return &tunnel;
  return nullptr;
}

} // namespace trassix
