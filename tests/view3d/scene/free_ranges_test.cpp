#include "view3d/scene/free_ranges.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace trassix {
namespace {

TEST(FreeRanges, NeverOverlapAndComeTogetherAgain) {
  constexpr std::uint32_t kSize = 1000;
  FreeRanges ranges(kSize);
  std::vector<bool> used(kSize);
  std::vector<std::pair<std::uint32_t, std::uint32_t>> taken;
  std::mt19937 random(3);
  for (int i = 0; i < 5000; ++i) {
    const auto size = 1 + static_cast<std::uint32_t>(random() % 90);
    if (const auto at = random() % 2 == 0 ? ranges.take(size) : std::nullopt) {
      taken.emplace_back(*at, size);
      for (std::uint32_t k = *at; k < *at + size; ++k) {
        ASSERT_FALSE(used.at(k));
        used[k] = true;
      }
    } else if (!taken.empty()) {
      std::swap(taken[random() % taken.size()], taken.back());
      ranges.give(taken.back().first, taken.back().second);
      std::fill_n(used.begin() + taken.back().first, taken.back().second, false);
      taken.pop_back();
    }
  }
  for (const auto& [at, size] : taken)
    ranges.give(at, size);
  EXPECT_EQ(ranges.take(kSize), 0U);
}

} // namespace
} // namespace trassix
