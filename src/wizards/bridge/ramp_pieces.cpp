#include "wizards/bridge/ramp_pieces.h"

#include "catalog/plain_track.h"
#include "catalog/track_catalog.h"
#include "document/layout.h"
#include "document/plan_content.h"
#include "editing/track/connector_geometry.h"

#include <map>
#include <vector>

namespace trassix {

namespace {

/// Of the same ends, which is more than being as long.
const PieceDef* rampLike(const PieceDef& plain) {
  const TrackCatalog& catalog = TrackCatalog::instance();
  for (std::int32_t i = 0; i < catalog.count(); ++i) {
    const PieceDef* ramp = catalog.at(i);
    if (ramp->ramp && ramp->system == plain.system && ramp->kind == plain.kind &&
        ramp->connectors == plain.connectors)
      return ramp;
  }
  return nullptr;
}

} // namespace

void useRampPieces(Layout& layout, std::span<const WayStretch> stretches) {
  std::map<const PieceDef*, std::vector<std::int32_t>> places;
  for (const WayStretch& stretch : stretches) {
    const PieceDef& definition = *definitionOf(*layout.findPiece(stretch.piece));
    const PieceDef* ramp =
        definition.ramp || hasOwnFunction(definition) ? nullptr : rampLike(definition);
    if (ramp != nullptr)
      places[ramp].push_back(stretch.piece);
  }
  for (auto& [ramp, pieces] : places) {
    if (ramp->pair && pieces.size() % 2 == 1)
      pieces.pop_back();
    for (std::size_t i = 0; i < pieces.size(); ++i) {
      layout.editPiece(pieces[i])->cat = ramp->article;
      if (ramp->pair && i % 2 == 1)
        layout.edit().pairs.push_back({pieces[i - 1], pieces[i]});
    }
  }
}

} // namespace trassix
