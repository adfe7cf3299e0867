#include "view3d/scene/free_ranges.h"

#include <algorithm>

namespace trassix {

std::optional<std::uint32_t> FreeRanges::take(std::uint32_t size) {
  const auto room =
      std::ranges::find_if(free_, [size](const auto& range) { return range.second >= size; });
  if (room == free_.end())
    return std::nullopt;
  const auto [at, there] = *room;
  free_.erase(room);
  if (there > size)
    free_[at + size] = there - size;
  return at;
}

void FreeRanges::give(std::uint32_t at, std::uint32_t size) {
  if (size == 0)
    return;
  auto here = free_.emplace(at, size).first;
  if (const auto next = std::next(here); next != free_.end() && at + size == next->first) {
    here->second += next->second;
    free_.erase(next);
  }
  if (here == free_.begin())
    return;
  if (const auto before = std::prev(here); before->first + before->second == at) {
    before->second += here->second;
    free_.erase(here);
  }
}

} // namespace trassix
