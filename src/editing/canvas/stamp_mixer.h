#pragma once

#include <bit>
#include <cstdint>

namespace trassix {

/// Makes one stamp of several values, by FNV-1a.
class StampMixer {
 public:
  template <class... Values>
  explicit StampMixer(Values... values) {
    (add(values), ...);
  }
  void add(std::uint64_t value) { stamp_ = (stamp_ ^ value) * 1099511628211U; }
  void add(double value) { add(std::bit_cast<std::uint64_t>(value)); }
  std::uint64_t stamp() const { return stamp_; }

 private:
  std::uint64_t stamp_ = 14695981039346656037U;
};

} // namespace trassix
