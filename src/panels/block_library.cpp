#include "panels/block_library.h"

#include "app/services/file_listing.h"
#include "document/block.h"
#include "document/entities.h"
#include "document/repairs.h"

#include <algorithm>
#include <utility>

namespace trassix {

namespace fs = std::filesystem;

SharedBlock openBlock(const fs::path& file, FileResult& result) {
  auto block = std::make_shared<Block>();
  result.message = loadBlock(file, *block, &result);
  if (std::string repairs = describeRepairs(makeSound(*block)); !repairs.empty())
    result.notices.push_back(std::move(repairs));
  decodeTexts(*block);
  centreBlock(*block);
  return block;
}

std::vector<LibraryEntry> libraryBlocks(const fs::path& folder) {
  std::vector<LibraryEntry> entries;
  for (const fs::path& file : filesIn(folder, ".txl")) {
    LibraryEntry entry;
    entry.file = file;
    const std::u8string name = entry.file.stem().u8string();
    entry.name.assign(name.begin(), name.end());
    FileResult read;
    entry.block = openBlock(entry.file, read);
    entry.pieces = entry.block->content.pieces.size();
    entry.problem = read.message;
    entries.push_back(std::move(entry));
  }
  std::ranges::sort(entries, {}, &LibraryEntry::name);
  return entries;
}

} // namespace trassix
