#include "ui/utf8.h"

#include "app/services/path_text.h"

namespace trassix {

wxString fromUtf8(std::string_view text) {
  return textOfBytes(text);
}

std::string toUtf8(const wxString& text) {
  const wxScopedCharBuffer bytes = text.utf8_str();
  return {bytes.data(), bytes.length()};
}

} // namespace trassix
