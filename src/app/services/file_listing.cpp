#include "app/services/file_listing.h"

#include <algorithm>
#include <system_error>

namespace trassix {

namespace fs = std::filesystem;

bool hasExtension(const fs::path& file, std::string_view extension) {
  fs::path::string_type own = file.extension().native();
#ifdef _WIN32
  for (wchar_t& c : own) {
    if (c >= L'A' && c <= L'Z') {
      c = static_cast<wchar_t>(c - L'A' + L'a');
    }
  }
#endif
  return own == fs::path(extension).native();
}

std::vector<fs::path> filesIn(const fs::path& folder, std::string_view extension) {
  std::vector<fs::path> files;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error)) {
    std::error_code unreadable;
    if (hasExtension(entry->path(), extension) && entry->is_regular_file(unreadable)) {
      files.push_back(entry->path());
    }
  }
  std::ranges::sort(files);
  return files;
}

} // namespace trassix
