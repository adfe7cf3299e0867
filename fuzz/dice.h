#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace trassix::fuzz {

/// Choices taken from the fuzzer's bytes, and when they are used up, from numbers that follow from
/// them, so that a short input drives a long run as well.
class Dice {
 public:
  explicit Dice(std::span<const std::uint8_t> bytes) : bytes_(bytes) {
    for (const std::uint8_t byte : bytes)
      state_ = (state_ ^ byte) * 1099511628211U;
  }

  /// 0 to `count` - 1, or 0 for an empty range.
  std::size_t below(std::size_t count) {
    if (count < 2)
      return 0;
    std::size_t value = byte();
    if (count > 256)
      value = value << 16U | static_cast<std::size_t>(byte()) << 8U | byte();
    return value % count;
  }
  bool oneIn(std::size_t count) { return below(count) == 0; }

  template <class Items>
  auto& of(Items& items) {
    return items[below(std::size(items))];
  }

 private:
  std::uint8_t byte() {
    if (next_ < bytes_.size())
      return bytes_[next_++];
    state_ ^= state_ << 13U;
    state_ ^= state_ >> 7U;
    state_ ^= state_ << 17U;
    return static_cast<std::uint8_t>(state_ >> 32U);
  }

  std::span<const std::uint8_t> bytes_;
  std::size_t next_ = 0;
  std::uint64_t state_ = 14695981039346656037U;
};

} // namespace trassix::fuzz
