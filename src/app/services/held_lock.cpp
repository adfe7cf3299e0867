#include "app/services/held_lock.h"

#include <boost/interprocess/sync/file_lock.hpp>

#include <fstream>

namespace trassix {

HeldLock::HeldLock() = default;
HeldLock::~HeldLock() = default;
HeldLock::HeldLock(HeldLock&&) noexcept = default;
HeldLock& HeldLock::operator=(HeldLock&&) noexcept = default;

HeldLock HeldLock::take(const std::filesystem::path& file) {
  HeldLock taken;
  try {
    if (!std::filesystem::exists(file))
      std::ofstream(file, std::ios::app).close();
    auto lock = std::make_unique<boost::interprocess::file_lock>(file.string().c_str());
    if (lock->try_lock()) {
      taken.lock_ = std::move(lock);
      taken.state_ = State::Held;
    } else {
      taken.state_ = State::HeldByOther;
    }
  } catch (const std::exception&) { // of the file system or of the lock
    taken.state_ = State::Unavailable;
  }
  return taken;
}

} // namespace trassix
