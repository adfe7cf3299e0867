#pragma once

#include <filesystem>
#include <string_view>
#include <vector>

namespace trassix {

/// Whether a file's name ends in this extension (".txl"). Capitals count as the system's file names
/// have them: not on Windows.
bool hasExtension(const std::filesystem::path& file, std::string_view extension);

/// The regular files with this extension that lie directly in the folder, sorted by path. None for
/// a folder that cannot be read.
std::vector<std::filesystem::path> filesIn(const std::filesystem::path& folder,
                                           std::string_view extension);

} // namespace trassix
