#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>

namespace boost::interprocess {
class file_lock;
}

namespace trassix {

/// A lock on a file, which the system gives back when the process ends, however it ends. It tells
/// processes apart and not parts of one, and ends early where the process opens and closes the file
/// by other means.
class HeldLock {
 public:
  enum class State : std::uint8_t {
    Held,
    HeldByOther,
    Unavailable, ///< the file cannot be made, or the system has no locks there
  };

  HeldLock();
  ~HeldLock();
  HeldLock(HeldLock&&) noexcept;
  HeldLock& operator=(HeldLock&&) noexcept;

  /// Does not wait. Makes the file, but not its folder.
  static HeldLock take(const std::filesystem::path& file);

  State state() const { return state_; }
  bool held() const { return state_ == State::Held; }

 private:
  std::unique_ptr<boost::interprocess::file_lock> lock_; ///< ends with its handle
  State state_ = State::Unavailable;
};

} // namespace trassix
