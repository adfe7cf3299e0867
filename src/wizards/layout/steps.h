#pragma once

#include <coroutine>
#include <exception>
#include <utility>

namespace trassix {

/// Work that is written down in one go and done in steps: it pauses at each `co_yield`, which says
/// what part of it is done, 0 to 1. What it throws comes out of `step`.
class Steps {
 public:
  struct promise_type {
    double done = 0;
    std::exception_ptr problem;

    Steps get_return_object() { return Steps(Handle::from_promise(*this)); }
    std::suspend_always initial_suspend() noexcept { return {}; }
    std::suspend_always final_suspend() noexcept { return {}; }
    std::suspend_always yield_value(double part) noexcept {
      done = part;
      return {};
    }
    void return_void() noexcept {}
    void unhandled_exception() { problem = std::current_exception(); }
  };

  Steps() = default;
  Steps(Steps&& other) noexcept : handle_(std::exchange(other.handle_, {})) {}
  Steps& operator=(Steps&& other) noexcept {
    std::swap(handle_, other.handle_);
    return *this;
  }
  ~Steps() {
    if (handle_)
      handle_.destroy();
  }

  /// Does the next step; false once nothing is left to do.
  bool step() {
    if (over())
      return false;
    handle_.resume();
    if (handle_.promise().problem)
      std::rethrow_exception(handle_.promise().problem);
    return !handle_.done();
  }
  bool over() const { return !handle_ || handle_.done(); }
  double done() const { return over() ? 1 : handle_.promise().done; }

 private:
  using Handle = std::coroutine_handle<promise_type>;
  explicit Steps(Handle handle) : handle_(handle) {}

  Handle handle_;
};

} // namespace trassix
