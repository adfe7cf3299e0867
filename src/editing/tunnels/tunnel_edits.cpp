#include "editing/tunnels/tunnel_edits.h"

#include "catalog/scenery_catalog.h"
#include "document/limits.h"
#include "document/plan_content.h"
#include "document/record_kinds.h"
#include "document/undo_scope.h"
#include "editing/scenery/scenery_footprint.h"
#include "editing/selection/selection.h"
#include "measures/measure_format.h"
#include "texts/texts.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <unordered_set>

namespace trassix {

namespace {

constexpr double kPortalPlay = 5; // mm between the heights of two tracks under one portal

Notice refusal(std::string why) {
  return {tr("Tunnel"), std::move(why)};
}

bool covers(const Tunnel& tunnel, std::int32_t piece) {
  return std::ranges::find(tunnel.covers, piece) != tunnel.covers.end();
}

bool isPortalOf(const Tunnel& tunnel, const SceneryItem& item) {
  return item.id == tunnel.portalA || item.id == tunnel.portalB;
}

struct Seat {
  Point at;
  double heading = 0; ///< where track leaves the tunnel
};

/// Where a portal stands at an end of the chains: over one track, or over the middle of two.
Seat seatAt(const Layout& layout, TrackEnd own, const TrackEnd* beside) {
  const WorldConnector end = outerEnd(layout, own);
  if (beside == nullptr)
    return {{end.x, end.y}, end.heading};
  const WorldConnector there = outerEnd(layout, *beside);
  const BesideEnd lies = besideEnd(end, {there.x, there.y});
  return {toWorld({end.x, end.y, end.heading}, {std::max(lies.ahead, 0.0), lies.right / 2}),
          end.heading};
}

/// A portal, as wide as those of the track's gauge although scenery stands in that of the plan. Its
/// front, which runs along its own x, lies across the track and looks outwards.
SceneryItem portalAt(const Layout& layout, std::string_view key, TrackSystem system,
                     const Seat& seat, std::int32_t level) {
  SceneryItem item;
  item.item = key;
  item.x = seat.at.x;
  item.y = seat.at.y;
  item.heading = normaliseHeading(seat.heading - 90);
  item.level = level;
  const Footprint wanted = findScenery(key)->footprint(system);
  const Footprint shown = sceneryFootprint(layout, item);
  item.scalex = wanted.width / shown.width;
  item.scaley = wanted.depth / shown.depth;
  return item;
}

TunnelProblem problemOf(const Layout& layout, const TunnelChains& chains) {
  if (chains.problem)
    return chains.problem;
  const PlacedPiece& first = *layout.findPiece(chains.ways.front().start().piece);
  const double least = shortestTunnel(definitionOf(first)->system);
  for (const TrainWay& way : chains.ways)
    if (way.length() < least)
      return {trLater("The selected track is too short for a tunnel"),
              tr("A tunnel takes at least %1% of track, the selected track is %2% long.",
                 {formatBriefLength(least, layout.settings().units),
                  formatLength(way.length(), layout.settings().units)})};
  const TrainWay& one = chains.ways.front();
  const TrainWay& other = chains.ways.back();
  if (std::abs(one.stretches.front().from - other.stretches.front().from) > kPortalPlay ||
      std::abs(one.stretches.back().to - other.stretches.back().to) > kPortalPlay)
    return TunnelProblem::plain(
        trLater("The two tracks lie at different heights where a portal would stand."));
  return {};
}

} // namespace

TunnelChoice tunnelChoice(const Layout& layout) {
  TunnelChoice choice;
  const std::vector<std::int32_t> pieces = selectedPieces(layout);
  std::size_t covered = 0;
  for (const Tunnel& tunnel : layout.content().tunnels) {
    const auto within = [&tunnel](std::int32_t id) { return covers(tunnel, id); };
    const auto count = static_cast<std::size_t>(std::ranges::count_if(pieces, within));
    const bool portal =
        std::ranges::any_of(layout.content().scenery, [&tunnel](const SceneryItem& item) {
          return item.sel && isPortalOf(tunnel, item);
        });
    covered += count;
    if (count > 0 || portal)
      choice.present.push_back(tunnel.id);
  }
  if (!choice.present.empty()) {
    if (covered >= pieces.size())
      return choice;
    choice.present.clear();
    choice.problem =
        TunnelProblem::plain(trLater("Some of what is selected belongs to a tunnel already."));
    return choice;
  }
  if (helixGuard(layout, pieces, "")) {
    choice.problem = TunnelProblem::plain(trLater("Track of a helix needs no portals."));
    return choice;
  }
  choice.chains = tunnelChains(layout, pieces);
  choice.problem = problemOf(layout, choice.chains);
  return choice;
}

bool liesInTunnel(const Layout& layout) {
  return !layout.content().tunnels.empty() && !tunnelChoice(layout).present.empty();
}

EditResult placeTunnel(Layout& layout, TunnelOpening opening) {
  const TunnelChoice choice = tunnelChoice(layout);
  if (choice.problem)
    return {{}, refusal(choice.problem.text)};
  if (!choice.present.empty())
    return {{}, refusal(tr("The selected track lies in a tunnel already."))};
  const std::vector<TrainWay>& ways = choice.chains.ways;
  const std::string_view key = portalItem(opening, ways.size());
  if (key.empty())
    return {{}, refusal(tr("There are no old stone portals for two tracks."))};

  Tunnel tunnel;
  tunnel.anchorA = ways.front().start().piece;
  tunnel.anchorB = ways.front().end().piece;
  for (const TrainWay& way : ways)
    for (const WayStretch& stretch : way.stretches)
      tunnel.covers.push_back(stretch.piece);

  const PlacedPiece& anchor = *layout.findPiece(tunnel.anchorA);
  const auto portal = [&](TrackEnd own, TrackEnd beside, std::int32_t level) {
    const Seat seat = seatAt(layout, own, ways.size() == 2 ? &beside : nullptr);
    return portalAt(layout, key, definitionOf(anchor)->system, seat, level);
  };
  std::array<SceneryItem, 2> portals{
      portal(ways.front().start(), ways.back().start(), anchor.level),
      portal(ways.front().end(), ways.back().end(), layout.findPiece(tunnel.anchorB)->level)};
  if (!inLimits(portals[0]) || !inLimits(portals[1]))
    return {{}, beyondPlan()};

  UndoScope step(layout);
  for (SceneryItem& item : portals)
    item.id = layout.takeId();
  tunnel.portalA = portals[0].id;
  tunnel.portalB = portals[1].id;
  tunnel.id = layout.takeId();
  PlanContent& content = layout.edit();
  content.scenery.insert(content.scenery.end(), portals.begin(), portals.end());
  content.tunnels.push_back(tunnel);
  deselectHidden(layout);
  step.keep();
  return {{tunnel.id, tunnel.portalA, tunnel.portalB}, {}};
}

bool removeTunnels(Layout& layout, const std::vector<std::int32_t>& tunnels) {
  const auto goes = [&tunnels](const Tunnel& tunnel) {
    return std::ranges::find(tunnels, tunnel.id) != tunnels.end();
  };
  UndoScope step(layout);
  PlanContent& content = layout.edit();
  std::unordered_set<std::int32_t> portals;
  for (const Tunnel& tunnel : content.tunnels)
    if (goes(tunnel))
      portals.insert({tunnel.portalA, tunnel.portalB});
  std::erase_if(content.tunnels, goes);
  for (const Tunnel& other : content.tunnels) { // a file may let two share one
    portals.erase(other.portalA);
    portals.erase(other.portalB);
  }
  std::erase_if(content.scenery, [&portals](const SceneryItem& item) {
    const SceneryDef* definition = findScenery(item.item);
    return portals.contains(item.id) &&
           (definition == nullptr || definition->category == SceneryCategory::Tunnel);
  });
  return step.keep();
}

} // namespace trassix
