// The blocks that the user keeps in a library folder.
#pragma once

#include "document/block_file.h"
#include "document/plan_file.h"

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace trassix {

/// A block of the library as the list shows it.
struct LibraryEntry {
  std::filesystem::path file;
  std::string name;  ///< of the file, without folder and extension; UTF-8
  SharedBlock block; ///< centred; what could be read of it
  std::size_t pieces = 0;
  std::string problem; ///< why the file could not be read; empty when it could
};

/// Reads a block of the library, ready to be placed: sound, centred, with texts as they were typed.
/// After a failure it holds what was read.
SharedBlock openBlock(const std::filesystem::path& file, FileResult& result);

/// The ".txl" files that lie in the folder, by name; none for a folder that is not there. Each is
/// read, so that it can be shown.
std::vector<LibraryEntry> libraryBlocks(const std::filesystem::path& folder);

} // namespace trassix
