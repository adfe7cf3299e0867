#include "document/piece_index.h"

#include "document/plan_content.h"

#include <algorithm>

namespace trassix {

namespace {

constexpr auto kNowhere = static_cast<std::size_t>(-1);

} // namespace

const PlacedPiece* PieceIndex::find(std::span<const PlacedPiece> pieces, std::int32_t id,
                                    std::uint64_t arrangement) {
  // What is found has the id, whatever has become of the list meanwhile.
  if (const PlacedPiece* found = lookUp(pieces, id))
    return found;
  if (arrangement == arrangement_ && pieces.size() == count_)
    return nullptr;
  if (!isSorted() && pieces.size() > count_ && append(pieces)) // most likely some were appended
    if (const PlacedPiece* found = lookUp(pieces, id))
      return found;
  table_.clear();
  map_.clear();
  arrangement_ = arrangement;
  count_ = pieces.size();
  if (!std::ranges::is_sorted(pieces, {}, &PlacedPiece::id))
    keepPlaces(pieces);
  return lookUp(pieces, id);
}

const PlacedPiece* PieceIndex::lookUp(std::span<const PlacedPiece> pieces, std::int32_t id) const {
  std::size_t position = kNowhere;
  if (isSorted()) {
    // Where nothing was deleted a piece stands as far from the first one as its id does.
    const auto likely =
        pieces.empty() ? pieces.size()
                       : static_cast<std::size_t>(id) - static_cast<std::size_t>(pieces.front().id);
    if (likely < pieces.size() && pieces[likely].id == id &&
        (likely == 0 || pieces[likely - 1].id != id))
      return &pieces[likely];
    const auto at = std::ranges::lower_bound(pieces, id, {}, &PlacedPiece::id);
    position = static_cast<std::size_t>(at - pieces.begin());
  } else if (!table_.empty()) {
    const auto slot = static_cast<std::size_t>(id);
    position = slot < table_.size() ? table_[slot] : kNowhere;
  } else if (const auto known = map_.find(id); known != map_.end()) {
    position = known->second;
  }
  return position < pieces.size() && pieces[position].id == id ? &pieces[position] : nullptr;
}

bool PieceIndex::append(std::span<const PlacedPiece> pieces) {
  if (!map_.empty()) {
    for (; count_ < pieces.size(); ++count_)
      map_.emplace(pieces[count_].id, count_);
    return true;
  }
  const std::size_t longest = 4 * pieces.size() + 64;
  for (; count_ < pieces.size(); ++count_) {
    const auto slot = static_cast<std::size_t>(pieces[count_].id);
    if (slot >= longest)
      return false;
    if (slot >= table_.size())
      table_.resize(std::max(slot + 1, pieces.size()), kNowhere);
    if (table_[slot] == kNowhere) // of several with one id the first counts
      table_[slot] = count_;
  }
  return true;
}

void PieceIndex::keepPlaces(std::span<const PlacedPiece> pieces) {
  count_ = 0;
  if (append(pieces))
    return;
  table_.clear();
  map_.emplace(pieces.front().id, 0);
  count_ = 1;
  append(pieces);
}

} // namespace trassix
