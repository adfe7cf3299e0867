#include "editing/track/mirror_twin.h"

#include "catalog/track_catalog.h"
#include "document/records.h"
#include "editing/track/connector_geometry.h"
#include "editing/track/routes.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace trassix {

namespace {

/// The ends of a piece in its own frame, or with y turned over.
std::vector<WorldConnector> endsOf(const PieceDef& piece, bool mirrored) {
  std::vector<WorldConnector> ends = WorldConnectorsOf({}, piece);
  if (mirrored)
    for (WorldConnector& end : ends) {
      end.y = -end.y;
      end.heading = normaliseHeading(-end.heading);
    }
  return ends;
}

bool sameSort(const PieceDef& a, const PieceDef& b) {
  const auto handless = [](PieceKind kind) {
    return kind == PieceKind::TurnoutRight ? PieceKind::TurnoutLeft : kind;
  };
  return a.system == b.system && handless(a.kind) == handless(b.kind) && a.bridge == b.bridge &&
         a.ramp == b.ramp && a.pair == b.pair && a.turnoutSet == b.turnoutSet &&
         a.connectors.size() == b.connectors.size();
}

/// True when trains have the same ways through both.
bool sameWays(const PieceDef& piece, const MirrorTwin& twin) {
  const std::vector<Route>& ways = routesOf(*twin.definition);
  const auto twinEnd = [&twin](std::int32_t end) {
    return end < 0 ? end : twin.ends[static_cast<std::size_t>(end)];
  };
  return ways.size() == routesOf(piece).size() &&
         std::ranges::all_of(routesOf(piece), [&](const Route& way) {
           const std::int32_t from = twinEnd(way.from);
           const std::int32_t to = twinEnd(way.to);
           return std::ranges::any_of(ways, [from, to](const Route& other) {
             return (other.from == from && other.to == to) ||
                    (other.from == to && other.to == from);
           });
         });
}

/// The candidate with its end `first` on the first of the places, if all its ends lie on places.
std::optional<MirrorTwin> laidAt(const PieceDef& piece, const std::vector<WorldConnector>& places,
                                 const PieceDef& candidate, std::int32_t first) {
  WorldConnector facing = places.front();
  facing.heading = normaliseHeading(facing.heading + 180);
  MirrorTwin twin{&candidate, AttachPose(candidate, first, facing), {}};
  const std::vector<WorldConnector> ends = WorldConnectorsOf(pieceAt(twin.pose), candidate);
  for (std::size_t i = 0; i < places.size(); ++i) {
    const auto found = std::ranges::find_if(ends, [&](const WorldConnector& end) {
      return std::hypot(end.x - places[i].x, end.y - places[i].y) <= kTwinPlay &&
             headingDifference(end.heading, places[i].heading) <= kTwinPlay &&
             candidate.connectorSystem(static_cast<std::size_t>(end.index)) ==
                 piece.connectorSystem(i) &&
             std::ranges::find(twin.ends, end.index) == twin.ends.end();
    });
    if (found == ends.end())
      return {};
    twin.ends.push_back(found->index);
  }
  return sameWays(piece, twin) ? std::optional(twin) : std::nullopt;
}

std::vector<MirrorTwin> waysAs(const PieceDef& piece, const PieceDef& candidate, bool mirrored) {
  std::vector<MirrorTwin> ways;
  const std::vector<WorldConnector> places = endsOf(piece, mirrored);
  for (std::size_t k = 0; k < places.size() && sameSort(piece, candidate); ++k)
    if (auto way = laidAt(piece, places, candidate, static_cast<std::int32_t>(k)))
      ways.push_back(std::move(*way));
  return ways;
}

} // namespace

std::vector<MirrorTwin> mirrorTwins(const PieceDef& piece) {
  if (std::vector<MirrorTwin> itself = waysAs(piece, piece, true); !itself.empty())
    return itself;
  const TrackCatalog& catalog = TrackCatalog::instance();
  std::vector<std::vector<MirrorTwin>> twins;
  std::size_t place = 0; // of the piece among those that look like it
  bool met = false;
  for (std::int32_t i = 0; i < catalog.count(); ++i) {
    const PieceDef& candidate = *catalog.at(i);
    met = met || &candidate == &piece;
    if (std::vector<MirrorTwin> ways = waysAs(piece, candidate, true); !ways.empty())
      twins.push_back(std::move(ways));
    else if (!met && !waysAs(piece, candidate, false).empty())
      ++place;
  }
  return twins.empty() ? std::vector<MirrorTwin>{} : twins[std::min(place, twins.size() - 1)];
}

} // namespace trassix
