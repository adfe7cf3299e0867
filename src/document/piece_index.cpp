#include "document/piece_index.h"

#include <algorithm>

namespace trassix {

const PlacedPiece* PieceIndex::find(std::span<const PlacedPiece> pieces, std::int32_t id,
                                    std::uint64_t arrangement) {
  // What is found has the id, whatever has become of the list meanwhile.
  if (const PlacedPiece* found = lookUp(pieces, id))
    return found;
  if (arrangement == arrangement_ && pieces.size() == count_)
    return nullptr;
  if (!positions_.empty() && pieces.size() > count_) { // most likely some were appended
    append(pieces);
    if (const PlacedPiece* found = lookUp(pieces, id))
      return found;
  }
  positions_.clear();
  count_ = 0;
  arrangement_ = arrangement;
  if (std::ranges::is_sorted(pieces, {}, &PlacedPiece::id))
    count_ = pieces.size();
  else
    append(pieces);
  return lookUp(pieces, id);
}

const PlacedPiece* PieceIndex::lookUp(std::span<const PlacedPiece> pieces, std::int32_t id) const {
  std::size_t position = 0;
  if (positions_.empty()) {
    // Where nothing was deleted a piece stands as far from the first one as its id does.
    const auto likely =
        pieces.empty() ? pieces.size()
                       : static_cast<std::size_t>(id) - static_cast<std::size_t>(pieces.front().id);
    if (likely < pieces.size() && pieces[likely].id == id &&
        (likely == 0 || pieces[likely - 1].id != id))
      return &pieces[likely];
    const auto at = std::ranges::lower_bound(pieces, id, {}, &PlacedPiece::id);
    position = static_cast<std::size_t>(at - pieces.begin());
  } else {
    const auto known = positions_.find(id);
    position = known == positions_.end() ? pieces.size() : known->second;
  }
  return position < pieces.size() && pieces[position].id == id ? &pieces[position] : nullptr;
}

void PieceIndex::append(std::span<const PlacedPiece> pieces) {
  positions_.reserve(pieces.size());
  for (; count_ < pieces.size(); ++count_)
    positions_.emplace(pieces[count_].id, count_);
}

} // namespace trassix
