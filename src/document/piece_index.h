#pragma once

#include "document/records.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <unordered_map>
#include <vector>

namespace trassix {

/// Where the piece with a given id stands in a plan's list. Ids are handed out in rising order and
/// pieces are appended, so nearly every list is sorted and needs no more than halving; for another
/// one, which comes from elsewhere, the places are kept: in a table by id unless the ids are far
/// larger than the list is long, else in a map. Either is renewed only by a look-up that it cannot
/// answer, so that edits cost nothing here.
class PieceIndex {
 public:
  /// Null when no piece has this id. `arrangement` is another number whenever pieces may have been
  /// added, removed, reordered or renumbered.
  const PlacedPiece* find(std::span<const PlacedPiece> pieces, std::int32_t id,
                          std::uint64_t arrangement);

 private:
  const PlacedPiece* lookUp(std::span<const PlacedPiece> pieces, std::int32_t id) const;
  bool isSorted() const { return table_.empty() && map_.empty(); }
  void keepPlaces(std::span<const PlacedPiece> pieces);
  /// Takes up the pieces behind those that were looked at; false when an id of theirs lies too far
  /// from the others for the table.
  bool append(std::span<const PlacedPiece> pieces);

  std::vector<std::size_t> table_; ///< by id; `kNowhere` for those without a piece
  std::unordered_map<std::int32_t, std::size_t> map_;
  std::size_t count_ = 0;         ///< pieces that were looked at
  std::uint64_t arrangement_ = 0; ///< in which they were so
};

} // namespace trassix
