#include "panels/block_library.h"

#include "app/services/file_listing.h"
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
  for (const fs::path& file : filesIn(folder, ".txl")) {
    LibraryEntry entry;
    entry.file = file;
    const std::u8string name = entry.file.stem().u8string();
    entry.name.assign(name.begin(), name.end());
    entry.problem = openBlock(entry.file, entry.block).message;
    entries.push_back(std::move(entry));
  }
  std::ranges::sort(entries, {}, &LibraryEntry::name);
  return entries;
}

} // namespace trassix
