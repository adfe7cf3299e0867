#include "editing/elevation/way_choice.h"

#include "document/layout.h"
#include "document/records.h"
#include "editing/track/connector_geometry.h"
#include "editing/track/routes.h"

#include <algorithm>
#include <optional>

namespace trassix {

namespace {

const std::vector<Route>* routesOf(const Layout& layout, std::int32_t id) {
  const PlacedPiece* piece = layout.findPiece(id);
  const PieceDef* definition = piece == nullptr ? nullptr : definitionOf(*piece);
  return definition == nullptr ? nullptr : &routesOf(*definition);
}

bool leadsThrough(const TrainWay& way, std::int32_t piece) {
  return std::ranges::find(way.stretches, piece, &WayStretch::piece) != way.stretches.end();
}

std::vector<std::int32_t> leavesFrom(const Layout& layout, TrackEnd enter) {
  std::vector<std::int32_t> leaves;
  if (const std::vector<Route>* routes = routesOf(layout, enter.piece))
    for (const Route& route : *routes)
      if (route.to != -1 && (route.from == enter.connector || route.to == enter.connector))
        leaves.push_back(route.from == enter.connector ? route.to : route.from);
  return leaves;
}

/// A stretch as it is taken away from the piece that the way was chosen for.
struct Turn {
  TrackEnd enter;
  std::int32_t leave = -1;
};
Turn turnAt(const WayChoice& choice, const TrainWay& way, std::size_t stretch) {
  const auto chosen = std::ranges::find(way.stretches, choice.piece, &WayStretch::piece);
  const WayStretch& taken = way.stretches[stretch];
  const bool onwards = static_cast<long>(stretch) >= chosen - way.stretches.begin();
  return onwards ? Turn{{taken.piece, taken.enter}, taken.leave}
                 : Turn{{taken.piece, taken.leave}, taken.enter};
}

} // namespace

WayChoice choiceThrough(const Layout& layout, std::span<const std::int32_t> pieces) {
  constexpr int kMostSearches = 4;
  WayChoice choice;
  const auto first = std::ranges::find_if(pieces, [&layout](std::int32_t id) {
    const std::vector<Route>* routes = routesOf(layout, id);
    return routes != nullptr && !routes->empty() && routes->front().to != -1;
  });
  if (first == pieces.end())
    return choice;
  choice.piece = *first;
  const TrackEnd start{*first, routesOf(layout, *first)->front().from};
  TrainWay way = wayOf(layout, choice);
  int searches = 0;
  for (const std::int32_t other : pieces) {
    const std::vector<Route>* routes = routesOf(layout, other);
    if (leadsThrough(way, other) || routes == nullptr || routes->empty())
      continue;
    if (++searches > kMostSearches)
      break;
    for (const TrainWay& found : trainWays(layout, start, {other, routes->front().from}, 1))
      for (const WayStretch& stretch : found.stretches)
        if (leavesFrom(layout, {stretch.piece, stretch.enter}).size() > 1)
          choice.branches.push_back({stretch.piece, stretch.leave});
    way = wayOf(layout, choice);
  }
  return choice;
}

TrainWay wayOf(const Layout& layout, const WayChoice& choice) {
  return wayThrough(layout, choice.piece, choice.branches);
}

bool hasBranches(const Layout& layout, const WayChoice& choice, const TrainWay& way,
                 std::size_t stretch) {
  return leavesFrom(layout, turnAt(choice, way, stretch).enter).size() > 1;
}

void takeNextBranch(const Layout& layout, WayChoice& choice, const TrainWay& way,
                    std::size_t stretch) {
  const Turn turn = turnAt(choice, way, stretch);
  const std::vector<std::int32_t> leaves = leavesFrom(layout, turn.enter);
  if (leaves.size() < 2)
    return;
  const auto taken = std::ranges::find(leaves, turn.leave);
  const bool last = taken == leaves.end() || taken + 1 == leaves.end();
  std::erase_if(choice.branches,
                [&](const BranchChoice& branch) { return branch.piece == turn.enter.piece; });
  choice.branches.push_back({turn.enter.piece, last ? leaves.front() : *(taken + 1)});
}

} // namespace trassix
