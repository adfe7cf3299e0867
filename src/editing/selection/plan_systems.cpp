#include "editing/selection/plan_systems.h"

#include "catalog/track_catalog.h"
#include "document/layout.h"
#include "document/records.h"
#include "editing/track/connector_geometry.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace trassix {

std::optional<TrackSystem> chiefSystem(const Layout& layout) {
  const TrackCatalog& catalog = TrackCatalog::instance();
  std::vector<std::pair<TrackSystem, std::size_t>> counts;
  for (const PlacedPiece& placed : layout.pieces()) {
    if (const PieceDef* piece = catalog.find(placed.cat)) {
      auto count = std::ranges::find(counts, piece->system, &decltype(counts)::value_type::first);
      if (count == counts.end()) {
        count = counts.insert(count, {piece->system, 0});
      }
      ++count->second;
    }
  }
  const auto most = std::ranges::max_element(counts, {}, &decltype(counts)::value_type::second);
  return most == counts.end() ? std::nullopt : std::optional(most->first);
}

bool holdsTrackOf(const Layout& layout, TrackSystem system) {
  return std::ranges::any_of(layout.pieces(), [system](const PlacedPiece& piece) {
    const PieceDef* definition = definitionOf(piece);
    return definition != nullptr && definition->system == system;
  });
}

} // namespace trassix
