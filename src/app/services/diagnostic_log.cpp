#include "app/services/diagnostic_log.h"

#include "app/services/local_time.h"

#include <array>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <memory>
#include <string>

namespace trassix {

namespace {

std::unique_ptr<LogFile>& handle() {
  static std::unique_ptr<LogFile> log;
  return log;
}

/// Local time as "14:03:59.007 ".
std::string timeStamp(std::chrono::system_clock::time_point when) {
  const std::time_t seconds = std::chrono::system_clock::to_time_t(when);
  const auto sinceEpoch =
      std::chrono::duration_cast<std::chrono::milliseconds>(when.time_since_epoch());
  const std::tm local = localTime(seconds);
  std::array<char, 64> text{};
  std::snprintf(text.data(), text.size(), "%02d:%02d:%02d.%03d ", local.tm_hour, local.tm_min,
                local.tm_sec, static_cast<int>(sinceEpoch.count() % 1000));
  return text.data();
}

} // namespace

void DiagnosticLog::open(const LogFolder& folder) {
  handle() = std::make_unique<LogFile>(folder, kFileName, LogFile::Start::Anew);
}

void DiagnosticLog::write(std::string_view text) {
  if (!handle()) {
    return;
  }
  std::string line = timeStamp(std::chrono::system_clock::now());
  line.append(text).append("\n");
  handle()->write(line);
}

void DiagnosticLog::close() {
  handle().reset();
}

} // namespace trassix
