#pragma once

#include <filesystem>

namespace trassix {

/// `wanted` when it is a folder or can be made one (with its parents), else `fallback` unmade.
std::filesystem::path folderOrFallback(const std::filesystem::path& wanted,
                                       const std::filesystem::path& fallback);

/// Copies the layouts (.txl, .xml) in `installFolder`, and the blocks (.txl) in the subfolders of
/// its "library", to `layoutsFolder` and the same-named subfolders of its library. A file that is
/// already there is never replaced, sources stay, "catalog.xml" is the program's own and stays
/// behind, what cannot be copied is skipped. Gives the number of copied files; 0 when both folders
/// are the same.
int copyLegacyFiles(const std::filesystem::path& installFolder,
                    const std::filesystem::path& layoutsFolder);

} // namespace trassix
