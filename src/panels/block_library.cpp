#include "panels/block_library.h"

#include "document/entities.h"
#include "document/repairs.h"

#include <algorithm>
#include <utility>

namespace trassix {

namespace fs = std::filesystem;

FileResult openBlock(const fs::path& file, Block& block) {
  FileResult result;
  result.message = loadBlock(file, block, &result);
  if (std::string repairs = describeRepairs(makeSound(block)); !repairs.empty())
    result.notices.push_back(std::move(repairs));
  decodeTexts(block);
  centreBlock(block);
  return result;
}

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
    entry.problem = openBlock(entry.file, entry.block).message;
    entries.push_back(std::move(entry));
  }
  std::ranges::sort(entries, {}, &LibraryEntry::name);
  return entries;
}

} // namespace trassix
