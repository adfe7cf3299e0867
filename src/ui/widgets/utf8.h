#pragma once

#include <wx/string.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace trassix {

/// Texts are UTF-8 inside and `wxString` towards the toolkit. Bytes that are no UTF-8, as a damaged
/// file may hold them, are shown as Latin-1 rather than lost.
wxString fromUtf8(std::string_view text);
inline wxString fromUtf8(const std::u8string& text) {
  return fromUtf8(std::string_view(reinterpret_cast<const char*>(text.data()), text.size()));
}
std::string toUtf8(const wxString& text);

/// A text of more characters than this cut to as many, the last one an ellipsis.
wxString shortened(const wxString& text, std::size_t characters);

} // namespace trassix
