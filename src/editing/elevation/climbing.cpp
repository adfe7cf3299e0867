#include "editing/elevation/climbing.h"

#include "document/layout.h"
#include "document/plan_content.h"
#include "editing/elevation/train_way.h"
#include "editing/joining/joining.h"
#include "editing/track/connector_geometry.h"

#include <unordered_set>

namespace trassix {

namespace {

PieceHeight laid(const PlacedPiece& piece, const ClimbStart& from) {
  if (takesGrade(piece))
    return layTowards(piece, *definitionOf(piece), from.start.connector, from.towards, from.height,
                      from.slope);
  PieceHeight lifted = heightOf(piece);
  if (const PieceDef* definition = definitionOf(piece))
    lifted.z += from.height - endHeight(piece, *definition, from.start.connector);
  return lifted;
}

} // namespace

std::vector<PieceHeight> climbFrom(const Layout& layout, std::span<const std::int32_t> pieces,
                                   const ClimbStart& from) {
  std::vector<PieceHeight> heights;
  std::unordered_set<std::int32_t> met{from.start.piece};
  std::vector<ClimbStart> queue{from};
  for (std::size_t next = 0; next < queue.size(); ++next) {
    const ClimbStart here = queue[next];
    PlacedPiece piece = *layout.findPiece(here.start.piece);
    heights.push_back(laid(piece, here));
    const PieceDef* definition = definitionOf(piece);
    if (definition == nullptr)
      continue;
    lay(piece, heights.back());
    for (std::int32_t i = 0; i < static_cast<std::int32_t>(piece.joints.size()); ++i) {
      const TrackEnd end = beyond(layout, {piece.id, i});
      if (end.piece == -1 || !containsId(pieces, end.piece) || !met.insert(end.piece).second)
        continue;
      const PieceDef& other = *definitionOf(*layout.findPiece(end.piece));
      queue.push_back({end, oppositeEnd(other, end.connector), endHeight(piece, *definition, i),
                       slopeOut(piece, *definition, i)});
    }
  }
  return heights;
}

} // namespace trassix
