#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>

namespace trassix {

/// A short time to work for: a loop asks after each small unit whether it is over.
class TimeSlice {
 public:
  using Clock = std::chrono::steady_clock;

  /// Over from the start: one unit is done at a time.
  TimeSlice() = default;
  explicit TimeSlice(Clock::duration length) : end_(Clock::now() + length) {}

  bool over() const { return Clock::now() >= end_; }

 private:
  Clock::time_point end_{};
};

/// Work that may take longer than a user waits without a word; `Questions::finish` does it. It
/// keeps what it finds to itself: who asked for it puts that into the plan once all is done, so
/// that cancelled and failed work leaves nothing behind.
struct LongWork {
  std::string title; ///< of the box that comes up when it takes a while
  std::string line;  ///< one line in it
  /// Does one unit of a few milliseconds, goes on until the slice is over, and returns which part
  /// of the whole is done, 0 to 1; none once nothing is left to do.
  std::function<std::optional<double>(const TimeSlice& slice)> step;
};

} // namespace trassix
