#pragma once

#include <algorithm>
#include <cstdint>

namespace trassix {

/// The record of a plain list that has this id; null on a miss. A scan: pieces, of which there are
/// many, are found by their `Layout`.
template <typename Records>
auto* recordWithId(Records& records, std::int32_t id) {
  const auto found =
      std::ranges::find_if(records, [id](const auto& record) { return record.id == id; });
  return found == records.end() ? nullptr : &*found;
}

} // namespace trassix
