#pragma once

#include <wx/string.h>

#include <filesystem>
#include <string_view>

namespace trassix {

/// Bytes that are UTF-8, or else are shown as Latin-1 rather than lost.
wxString textOfBytes(std::string_view bytes);

/// Paths are `std::filesystem::path` inside and `wxString` towards the toolkit; blanks, umlauts and
/// anything else a file name may hold survive both ways. A name that is no UTF-8 can be shown, but
/// the text does not lead back to it.
std::filesystem::path toPath(const wxString& text);
wxString toText(const std::filesystem::path& path);

} // namespace trassix
