#include "app/services/local_time.h"

#include <array>
#include <chrono>

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

std::string localTimeText(std::time_t when, char separator) {
  const std::tm local = localTime(when);
  std::array<char, 32> text{};
  const char format[] = {'%', 'Y', '-',       '%', 'm', '-',       '%', 'd', ' ',
                         '%', 'H', separator, '%', 'M', separator, '%', 'S', '\0'};
  std::strftime(text.data(), text.size(), format, &local);
  return text.data();
}

std::string localDateText(std::time_t when) {
  const std::string text = localTimeText(when);
  return text.substr(0, text.find(' '));
}

std::time_t writtenAt(const std::filesystem::path& file) {
  namespace chrono = std::chrono;
  std::error_code error;
  const auto written = std::filesystem::last_write_time(file, error);
  if (error)
    return 0;
  // Its clock has an epoch of its own on each platform.
  const auto ago = chrono::duration_cast<chrono::system_clock::duration>(
      std::filesystem::file_time_type::clock::now() - written);
  return chrono::system_clock::to_time_t(
      chrono::round<chrono::seconds>(chrono::system_clock::now() - ago));
}

} // namespace trassix
