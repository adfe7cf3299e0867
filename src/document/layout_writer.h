#pragma once

#include "app/services/text_file.h"
#include "document/element_writer.h"
#include "document/layout.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace trassix {

/// Gives the text of a layout file to `sink`, part by part. Returns a message, empty on success;
/// the only failure is a number that is not finite, which no file may hold because none could be
/// read back.
std::string writeLayout(const Layout& layout, std::string_view name, const TextSink& sink);

/// The same, the whole text in `text`.
std::string writeLayout(const Layout& layout, std::string_view name, std::string& text);

/// Saves without ever leaving a damaged file: see `replaceTextFile`. Returns a message, empty
/// on success.
std::string saveLayout(const Layout& layout, const std::filesystem::path& path,
                       std::string_view name, FileReport* report = nullptr);

} // namespace trassix
