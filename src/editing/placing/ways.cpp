#include "editing/placing/ways.h"

#include "document/records.h"
#include "editing/joining/joining.h"

#include <algorithm>
#include <cmath>

namespace trassix {

namespace {

std::vector<WorldConnector> endsWhenJoinedBy(const PieceDef& definition, std::int32_t end) {
  return WorldConnectorsOf(pieceAt(hangingBy(definition, end, {})), definition);
}

bool sameEnd(const PieceDef& definition, const WorldConnector& a, const WorldConnector& b) {
  return std::hypot(a.x - b.x, a.y - b.y) <= kClosingDistance &&
         headingDifference(a.heading, b.heading) <= kClosingFacing &&
         definition.connectorSystem(static_cast<std::size_t>(a.index)) ==
             definition.connectorSystem(static_cast<std::size_t>(b.index));
}

bool coversTheSame(const PieceDef& definition, std::int32_t a, std::int32_t b) {
  const std::vector<WorldConnector> endsA = endsWhenJoinedBy(definition, a);
  const std::vector<WorldConnector> endsB = endsWhenJoinedBy(definition, b);
  return std::ranges::all_of(endsA, [&](const WorldConnector& end) {
    return std::ranges::any_of(
        endsB, [&](const WorldConnector& other) { return sameEnd(definition, end, other); });
  });
}

} // namespace

std::vector<std::int32_t> waysOf(const PieceDef& definition, std::optional<TrackSystem> system) {
  std::vector<std::int32_t> ways;
  for (std::int32_t end = 0; end < static_cast<std::int32_t>(definition.connectors.size()); ++end)
    if ((!system || definition.connectorSystem(static_cast<std::size_t>(end)) == *system) &&
        std::ranges::none_of(ways,
                             [&](std::int32_t way) { return coversTheSame(definition, way, end); }))
      ways.push_back(end);
  return ways;
}

std::int32_t wayAfter(const PieceDef& definition, std::int32_t end, int step,
                      std::optional<TrackSystem> system) {
  const std::vector<std::int32_t> ways = waysOf(definition, system);
  if (ways.empty())
    return -1;
  const auto found = std::ranges::find_if(
      ways, [&](std::int32_t way) { return way == end || coversTheSame(definition, way, end); });
  if (found == ways.end())
    return ways.front();
  const auto count = static_cast<int>(ways.size());
  const auto place = static_cast<int>(found - ways.begin());
  const std::int32_t next =
      ways[static_cast<std::size_t>(((place + step) % count + count) % count)];
  return next == *found ? end : next;
}

Pose hangingBy(const PieceDef& definition, std::int32_t end, const Pose& pose) {
  return AttachPose(definition, end, {pose.x, pose.y, pose.heading});
}

} // namespace trassix
