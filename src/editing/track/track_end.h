#pragma once

#include <compare>
#include <cstdint>

namespace trassix {

/// One end of a placed piece.
struct TrackEnd {
  std::int32_t piece = -1; ///< id
  std::int32_t connector = -1;

  auto operator<=>(const TrackEnd&) const = default;
};

} // namespace trassix
