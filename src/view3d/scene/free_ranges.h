#pragma once

#include <cstdint>
#include <map>
#include <optional>

namespace trassix {

/// Stretches of a store of fixed size, taken where there is room and given back in any order.
class FreeRanges {
 public:
  explicit FreeRanges(std::uint32_t size) { free_[0] = size; }

  /// Where so many lie from now on; none where there is no room for them in one piece.
  std::optional<std::uint32_t> take(std::uint32_t size);
  /// What was taken and lies there.
  void give(std::uint32_t at, std::uint32_t size);

 private:
  std::map<std::uint32_t, std::uint32_t> free_; ///< sizes by place, no two of them touching
};

} // namespace trassix
