#include "ui/saved_layouts.h"

#include <algorithm>

namespace trassix {

namespace {

std::string text(const std::filesystem::path& path) {
  const std::u8string utf8 = path.u8string();
  return {utf8.begin(), utf8.end()};
}

std::filesystem::path path(std::string_view utf8) {
  return std::filesystem::path(std::u8string(utf8.begin(), utf8.end()));
}

} // namespace

std::filesystem::path layoutFile(const std::filesystem::path& folder, std::string_view name) {
  // Put together as text: a name that begins with a separator must not replace the folder.
  std::filesystem::path file = folder;
  file += std::filesystem::path::preferred_separator;
  file += path(std::string(name) + ".txl");
  return file;
}

SavedLayouts::SavedLayouts(const std::filesystem::path& folder) {
  for (const char* extension : {".txl", ".xml"}) {
    std::vector<std::filesystem::path> found;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
      std::error_code ignored;
      if (entry->is_regular_file(ignored) && entry->path().extension() == extension)
        found.push_back(entry->path());
    }
    std::sort(found.begin(), found.end());
    files_.insert(files_.end(), found.begin(), found.end());
  }
}

std::vector<std::string> SavedLayouts::names() const {
  std::vector<std::string> names;
  for (const auto& file : files_)
    names.push_back(text(file.stem()));
  std::sort(names.begin(), names.end());
  return names;
}

std::optional<std::filesystem::path> SavedLayouts::find(std::string_view name) const {
  const auto found = std::find_if(files_.begin(), files_.end(),
                                  [name](const auto& file) { return text(file.stem()) == name; });
  if (found == files_.end())
    return {};
  return *found;
}

void SavedLayouts::remove(const std::filesystem::path& file) {
  std::erase(files_, file);
}

} // namespace trassix
