#pragma once

#include <chrono>
#include <optional>

namespace trassix {

/// When a rescue copy is to be written. The first within two seconds of the first unsaved change,
/// then one for each interval in which something changed; in a pause of the input where one comes
/// in time, and never while a mouse button is down. An interval below two seconds holds for the
/// first copy too. Knows no clock: it is told the time.
class RescueSchedule {
 public:
  using Time = std::chrono::steady_clock::time_point;
  using Duration = std::chrono::steady_clock::duration;

  explicit RescueSchedule(Duration interval = std::chrono::seconds(20));

  /// How often to ask whether a copy is due.
  Duration tick() const { return tick_; }

  /// There is something that the last copy lacks.
  void changed(Time now);
  bool waiting() const { return changed_.has_value(); }
  bool due(Time now, Time lastInput, bool buttonDown) const;
  /// A copy was written, or it was tried.
  void copied(Time now);
  /// There is nothing left to rescue.
  void settled();

 private:
  Duration interval_;
  Duration tick_;
  std::optional<Time> changed_; ///< the first change that is in no copy
  std::optional<Time> copied_;
};

} // namespace trassix
