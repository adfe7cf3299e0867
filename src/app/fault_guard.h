#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace trassix {

class MainFrame;

/// What the program does about an exception that nothing else caught: it is logged, the plan is
/// written aside unless it has not changed since the last time, and the user is told, in a box the
/// first time and in the status bar from then on. The program goes on.
class FaultGuard {
 public:
  /// Called while the exception is handled. `frame` is null when there is none yet or any more.
  void caught(MainFrame* frame) noexcept;

 private:
  void keepPlan(MainFrame& frame, const std::string& what);

  std::string logged_;
  std::optional<std::uint64_t> kept_; ///< revision of the plan that was last written aside
  bool told_ = false;
};

} // namespace trassix
