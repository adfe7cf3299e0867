#pragma once

#include <unistd.h>

namespace trassix::test {

/// Permissions count in its life, also where tests are run with the administrator's rights.
class PlainUser {
 public:
  PlainUser() { become(65534); }
  ~PlainUser() { become(0); }

 private:
  void become(uid_t user) { done_ = mighty_ && setresuid(user, user, 0) == 0; }

  bool mighty_ = geteuid() == 0;
  bool done_ = false;
};

} // namespace trassix::test
