#pragma once

#include <cstdint>

namespace trassix {

struct Color {
  std::uint8_t r = 0;
  std::uint8_t g = 0;
  std::uint8_t b = 0;

  bool operator==(const Color&) const = default;
};

} // namespace trassix
