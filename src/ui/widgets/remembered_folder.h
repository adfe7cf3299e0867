#pragma once

#include <filesystem>
#include <string>

namespace trassix {

/// The folder that was used last for a purpose ("import"); the usual one when there was none yet or
/// it is gone.
std::filesystem::path rememberedFolder(const std::string& purpose,
                                       const std::filesystem::path& usual);
void rememberFolder(const std::string& purpose, const std::filesystem::path& folder);

} // namespace trassix
