#include "panels/block_library.h"

#include <algorithm>
#include <system_error>

namespace trassix {

namespace fs = std::filesystem;

std::vector<LibraryEntry> libraryBlocks(const fs::path& folder) {
  std::vector<LibraryEntry> entries;
  std::error_code error;
  for (fs::directory_iterator file(folder, error), end; !error && file != end;
       file.increment(error)) {
    std::error_code unreadable;
    if (file->path().extension() != ".txl" || !file->is_regular_file(unreadable))
      continue;
    LibraryEntry entry;
    entry.file = file->path();
    const std::u8string name = entry.file.stem().u8string();
    entry.name.assign(name.begin(), name.end());
    entry.problem = loadBlock(entry.file, entry.block);
    centreBlock(entry.block);
    entries.push_back(std::move(entry));
  }
  std::ranges::sort(entries, {}, &LibraryEntry::name);
  return entries;
}

} // namespace trassix
