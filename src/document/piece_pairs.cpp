#include "document/piece_pairs.h"

#include "catalog/track_catalog.h"
#include "document/plan_content.h"

#include <algorithm>
#include <unordered_map>

namespace trassix {

namespace {

using PiecesById = std::unordered_map<std::int32_t, const PlacedPiece*>;

PiecesById soldInPairs(std::span<const PlacedPiece> pieces) {
  PiecesById found;
  for (const PlacedPiece& piece : pieces) {
    const PieceDef* definition = TrackCatalog::instance().find(piece.cat);
    if (definition != nullptr && definition->pair)
      found.emplace(piece.id, &piece);
  }
  return found;
}

/// The only piece of the same article that this one is joined to; null when there are more.
const PlacedPiece* onlyNeighbour(const PiecesById& pieces, const PlacedPiece& piece) {
  const PlacedPiece* only = nullptr;
  for (std::size_t i = 0; i < piece.joints.size(); ++i) {
    const Joint joint = piece.joints[i];
    const auto other = pieces.find(joint.target);
    if (other == pieces.end() || other->second->cat != piece.cat ||
        other->second->joint(static_cast<std::size_t>(joint.tconn)) !=
            Joint{piece.id, static_cast<std::int32_t>(i)})
      continue;
    if (only != nullptr)
      return nullptr;
    only = other->second;
  }
  return only;
}

} // namespace

std::vector<PiecePair> pairsOfRuns(std::span<const PlacedPiece> pieces) {
  const PiecesById candidates = soldInPairs(pieces);
  std::vector<PiecePair> pairs;
  for (const auto& [id, piece] : candidates) {
    const PlacedPiece* other = onlyNeighbour(candidates, *piece);
    if (other != nullptr && id < other->id && onlyNeighbour(candidates, *other) == piece)
      pairs.push_back({id, other->id});
  }
  std::ranges::sort(pairs, {}, &PiecePair::first);
  return pairs;
}

} // namespace trassix
