#include "editing/joining/end_grid.h"

#include "document/plan_content.h"
#include "editing/joining/joining.h"

#include <utility>

namespace trassix {

void appendEnds(std::vector<PlacedEnd>& ends, const PlacedPiece& piece, std::int32_t position,
                bool visible) {
  const PieceDef* definition = definitionOf(piece);
  if (definition == nullptr)
    return;
  for (std::size_t i = 0; i < definition->connectors.size(); ++i) {
    const auto index = static_cast<std::int32_t>(i);
    const WorldConnector end = ConnectorToWorld(piece, *definition, index);
    ends.push_back({{end.x, end.y},
                    end.heading,
                    endHeight(piece, *definition, index),
                    definition->connectorSystem(i),
                    piece.id,
                    position,
                    index,
                    piece.joint(i).target,
                    visible,
                    isGraded(piece)});
  }
}

std::vector<PlacedEnd> openEndsOf(std::span<const PlacedPiece> pieces) {
  std::unordered_set<std::int32_t> ids;
  for (const PlacedPiece& piece : pieces)
    ids.insert(piece.id);
  std::vector<PlacedEnd> ends;
  std::int32_t position = 0;
  for (const PlacedPiece& piece : pieces)
    appendEnds(ends, piece, position++, true);
  std::erase_if(ends, [&ids](const PlacedEnd& end) { return ids.contains(end.joinedTo); });
  for (PlacedEnd& end : ends)
    end.joinedTo = -1;
  return ends;
}

std::vector<PlacedEnd> endsOf(const Layout& layout) {
  std::vector<PlacedEnd> ends;
  ends.reserve(layout.pieces().size() * 5 / 2);
  std::int32_t position = 0;
  for (const PlacedPiece& piece : layout.pieces())
    appendEnds(ends, piece, position++, layout.pieceVisible(piece));
  return ends;
}

EndGrid::EndGrid(std::vector<PlacedEnd> ends) : ends_(std::move(ends)) {
  int bits = 1;
  while ((std::size_t{1} << bits) < ends_.size() * 2)
    ++bits;
  shift_ = 64 - bits;
  starts_.assign((std::size_t{1} << bits) + 1, 0);

  std::vector<Slot> unsorted;
  unsorted.reserve(ends_.size());
  for (std::size_t i = 0; i < ends_.size(); ++i) {
    const Point at = ends_[i].at;
    if (!std::isfinite(at.x) || !std::isfinite(at.y))
      continue;
    unsorted.push_back({{cellOf(at.x, 0), cellOf(at.y, 0)}, static_cast<std::uint32_t>(i)});
    ++starts_[bucketOf(unsorted.back().cell) + 1];
  }
  for (std::size_t bucket = 1; bucket < starts_.size(); ++bucket)
    starts_[bucket] += starts_[bucket - 1];
  slots_.resize(unsorted.size());
  std::vector<std::uint32_t> next(starts_.begin(), starts_.end() - 1);
  for (const Slot& slot : unsorted)
    slots_[next[bucketOf(slot.cell)]++] = slot;
}

} // namespace trassix
