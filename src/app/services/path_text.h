#pragma once

#include <wx/string.h>

#include <filesystem>

namespace trassix {

/// Paths are `std::filesystem::path` inside and `wxString` towards the toolkit; blanks, umlauts and
/// anything else a file name may hold survive both ways.
std::filesystem::path toPath(const wxString& text);
wxString toText(const std::filesystem::path& path);

} // namespace trassix
