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

/// As many as there are when it does not lead through the piece.
std::size_t stretchOf(const TrainWay& way, std::int32_t piece) {
  return static_cast<std::size_t>(std::ranges::find(way.stretches, piece, &WayStretch::piece) -
                                  way.stretches.begin());
}

bool leadsThrough(const TrainWay& way, std::int32_t piece) {
  return stretchOf(way, piece) != way.stretches.size();
}

std::vector<std::int32_t> leavesFrom(const Layout& layout, TrackEnd enter) {
  std::vector<std::int32_t> leaves;
  if (const std::vector<Route>* routes = routesOf(layout, enter.piece))
    for (const Route& route : *routes)
      if (route.to != -1 && (route.from == enter.connector || route.to == enter.connector))
        leaves.push_back(route.from == enter.connector ? route.to : route.from);
  return leaves;
}

std::vector<BranchChoice> routesThrough(const Layout& layout, std::int32_t piece) {
  std::vector<BranchChoice> through;
  if (const std::vector<Route>* routes = routesOf(layout, piece))
    for (const Route& route : *routes)
      if (route.to != -1)
        through.push_back({piece, route.to, route.from});
  return through;
}

/// The branches that a train could take on a stretch, as it leads away from the piece that the way
/// was chosen for; any route through that piece itself.
std::vector<BranchChoice> branchesAt(const Layout& layout, const WayChoice& choice,
                                     const TrainWay& way, std::size_t stretch) {
  const std::size_t chosen = stretchOf(way, choice.piece);
  if (stretch == chosen)
    return routesThrough(layout, choice.piece);
  const WayStretch& taken = way.stretches[stretch];
  std::vector<BranchChoice> branches;
  for (const std::int32_t leave :
       leavesFrom(layout, {taken.piece, stretch > chosen ? taken.enter : taken.leave}))
    branches.push_back({taken.piece, leave});
  return branches;
}

bool isTaken(const BranchChoice& branch, const WayStretch& stretch) {
  const std::int32_t other = branch.leave == stretch.leave ? stretch.enter : stretch.leave;
  return (branch.leave == stretch.leave || branch.leave == stretch.enter) &&
         (branch.enter == -1 || branch.enter == other);
}

/// Through the chosen piece itself the way takes the route that leads to most of `pieces`.
void takeBusiestRoute(const Layout& layout, std::span<const std::int32_t> pieces,
                      WayChoice& choice) {
  std::ptrdiff_t most = 0;
  for (const BranchChoice& branch : routesThrough(layout, choice.piece)) {
    const TrainWay way = wayThrough(layout, choice.piece, {branch});
    const auto met = std::ranges::count_if(way.stretches, [pieces](const WayStretch& stretch) {
      return std::ranges::binary_search(pieces, stretch.piece);
    });
    if (met > most && most > 0)
      choice.branches = {branch};
    most = std::max(most, met);
  }
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
  takeBusiestRoute(layout, pieces, choice);
  TrainWay way = wayOf(layout, choice);
  const TrackEnd start{*first, way.stretches[stretchOf(way, *first)].enter};
  int searches = 0;
  for (const std::int32_t other : pieces) {
    const std::vector<Route>* routes = routesOf(layout, other);
    if (leadsThrough(way, other) || routes == nullptr || routes->empty())
      continue;
    if (++searches > kMostSearches)
      break;
    for (const TrainWay& found : trainWays(layout, start, {other, routes->front().from}, 1))
      for (const WayStretch& stretch : found.stretches)
        if (stretch.piece != *first &&
            leavesFrom(layout, {stretch.piece, stretch.enter}).size() > 1)
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
  return branchesAt(layout, choice, way, stretch).size() > 1;
}

void takeNextBranch(const Layout& layout, WayChoice& choice, const TrainWay& way,
                    std::size_t stretch) {
  const std::vector<BranchChoice> branches = branchesAt(layout, choice, way, stretch);
  if (branches.size() < 2)
    return;
  const WayStretch& now = way.stretches[stretch];
  const auto taken = std::ranges::find_if(
      branches, [&now](const BranchChoice& branch) { return isTaken(branch, now); });
  const bool last = taken == branches.end() || taken + 1 == branches.end();
  std::erase_if(choice.branches,
                [&now](const BranchChoice& branch) { return branch.piece == now.piece; });
  choice.branches.push_back(last ? branches.front() : *(taken + 1));
}

} // namespace trassix
