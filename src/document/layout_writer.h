#pragma once

#include "document/layout.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace trassix {

/// The whole text of a layout file in `text`. Returns a message, empty on success; the only failure
/// is a number that is not finite, which no file may hold because none could be read back.
std::string writeLayout(const Layout& layout, std::string_view name, std::string& text);

/// Saves without ever leaving a damaged file: see `writeTextFile`. Returns a message, empty on
/// success.
std::string saveLayout(const Layout& layout, const std::filesystem::path& path,
                       std::string_view name);

} // namespace trassix
