#include "app/services/legacy_files.h"

#include <algorithm>
#include <string_view>
#include <system_error>
#include <vector>

namespace trassix {

namespace fs = std::filesystem;

namespace {

/// What lies directly in `folder`, by name, so that a run does not depend on the disk's order.
/// Empty when the folder cannot be read.
std::vector<fs::directory_entry> entriesOf(const fs::path& folder) {
  std::vector<fs::directory_entry> entries;
  std::error_code error;
  for (fs::directory_iterator it(folder, error), end; !error && it != end; it.increment(error)) {
    entries.push_back(*it);
  }
  std::sort(entries.begin(), entries.end());
  return entries;
}

bool isFile(const fs::directory_entry& entry, std::string_view extension) {
  std::error_code ignored;
  return entry.is_regular_file(ignored) && entry.path().extension() == extension;
}

/// Number of files copied, 0 or 1.
int copyInto(const fs::path& folder, const fs::path& file) {
  const fs::path target = folder / file.filename();
  std::error_code error;
  if (fs::exists(fs::symlink_status(target, error))) {
    return 0;
  }
  if (!fs::copy_file(file, target, error)) {
    // Half a copy would pass for the user's own file at every later start.
    fs::remove(target, error);
    return 0;
  }
  return 1;
}

bool makeFolder(const fs::path& folder) {
  std::error_code ignored;
  fs::create_directories(folder, ignored);
  return fs::is_directory(folder, ignored);
}

int copyLibrary(const fs::path& installLibrary, const fs::path& library) {
  std::error_code ignored;
  int copied = 0;
  if (!fs::is_directory(installLibrary, ignored) || !makeFolder(library)) {
    return copied;
  }
  for (const fs::directory_entry& system : entriesOf(installLibrary)) {
    const fs::path target = library / system.path().filename();
    if (!system.is_directory(ignored) || !makeFolder(target)) {
      continue;
    }
    for (const fs::directory_entry& block : entriesOf(system.path())) {
      copied += isFile(block, ".txl") ? copyInto(target, block.path()) : 0;
    }
  }
  return copied;
}

} // namespace

fs::path folderOrFallback(const fs::path& wanted, const fs::path& fallback) {
  return makeFolder(wanted) ? wanted : fallback;
}

int copyLegacyFiles(const fs::path& installFolder, const fs::path& layoutsFolder) {
  std::error_code ignored;
  if (fs::equivalent(installFolder, layoutsFolder, ignored)) {
    return 0;
  }
  int copied = 0;
  const std::vector<fs::directory_entry> installed = entriesOf(installFolder);
  for (const std::string_view extension : {".txl", ".xml"}) {
    for (const fs::directory_entry& entry : installed) {
      if (isFile(entry, extension) && entry.path().filename() != "catalog.xml") {
        copied += copyInto(layoutsFolder, entry.path());
      }
    }
  }
  return copied + copyLibrary(installFolder / "library", layoutsFolder / "library");
}

} // namespace trassix
