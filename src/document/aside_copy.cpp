#include "document/aside_copy.h"

#include "app/services/local_time.h"
#include "document/layout_writer.h"

#include <algorithm>
#include <array>
#include <system_error>

namespace trassix {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kLongestName = 150; ///< bytes, which leaves room for the time

/// The name as a file name of any system may begin, cut between characters.
std::string fileNameOf(std::string_view name) {
  std::size_t length = std::min(name.size(), kLongestName);
  while (length > 0 && length < name.size() && (name[length] & 0xC0) == 0x80)
    --length;
  std::string safe(name.substr(0, length));
  std::replace_if(
      safe.begin(), safe.end(),
      [](char c) {
        return static_cast<unsigned char>(c) < 0x20 ||
               std::string_view("/\\:*?\"<>|").find(c) != std::string_view::npos;
      },
      '_');
  return safe.empty() ? "Unnamed" : safe;
}

std::string timeText(std::time_t when) {
  const std::tm local = localTime(when);
  std::array<char, 32> text{};
  std::strftime(text.data(), text.size(), " %Y-%m-%d %H.%M.%S", &local);
  return text.data();
}

fs::path unusedFile(const fs::path& folder, const std::string& stem) {
  const auto file = [&folder](const std::string& name) {
    return folder / fs::path(std::u8string(name.begin(), name.end()));
  };
  fs::path unused = file(stem + ".txl");
  std::error_code ignored;
  for (int number = 2; fs::exists(unused, ignored); ++number)
    unused = file(std::string(stem).append(" (").append(std::to_string(number)).append(").txl"));
  return unused;
}

} // namespace

AsideCopy writeAside(const Layout& layout, std::string_view name, const fs::path& folder,
                     std::time_t when) {
  std::error_code ignored; // a folder that cannot be made shows as a file that cannot be written
  fs::create_directories(folder, ignored);
  AsideCopy copy;
  copy.file = unusedFile(folder, fileNameOf(name) + timeText(when));
  copy.problem = saveLayout(layout, copy.file, name);
  return copy;
}

} // namespace trassix
