#pragma once

#include "document/layout.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace trassix {

/// Empties the document, its history included, and fills it from the text of a layout file; `name`
/// becomes the layout's name as it stands in the file. Returns a message, empty on success. After a
/// failure the document holds what was read before it and is fit for use.
std::string readLayout(std::string_view text, Layout& layout, std::string& name);

/// Whether the text goes from a layout's first line to its last. `readLayout` takes what there is
/// of a text that was cut off, and nothing from a text of another kind, without a message.
bool isWholeLayout(std::string_view text);

/// The same as `readLayout` from a file. When it cannot be opened or read, the document and `name`
/// are untouched.
std::string loadLayout(const std::filesystem::path& path, Layout& layout, std::string& name);

} // namespace trassix
