#include "app/services/local_time.h"

namespace trassix {

std::tm localTime(std::time_t when) {
  std::tm local{};
#ifdef _WIN32
  localtime_s(&local, &when);
#else
  localtime_r(&when, &local);
#endif
  return local;
}

} // namespace trassix
