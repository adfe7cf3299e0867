#include "app/services/legacy_files.h"

#include "app/services/file_listing.h"

#include <string_view>
#include <system_error>

namespace trassix {

namespace fs = std::filesystem;

namespace {

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
  std::error_code error;
  for (fs::directory_iterator system(installLibrary, error), end; !error && system != end;
       system.increment(error)) {
    const fs::path target = library / system->path().filename();
    if (!system->is_directory(ignored) || !makeFolder(target)) {
      continue;
    }
    for (const fs::path& block : filesIn(system->path(), ".txl")) {
      copied += copyInto(target, block);
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
  for (const std::string_view extension : {".txl", ".xml"}) {
    for (const fs::path& file : filesIn(installFolder, extension)) {
      if (file.filename() != "catalog.xml") {
        copied += copyInto(layoutsFolder, file);
      }
    }
  }
  return copied + copyLibrary(installFolder / "library", layoutsFolder / "library");
}

} // namespace trassix
