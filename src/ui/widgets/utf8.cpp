#include "ui/widgets/utf8.h"

#include "app/desktop/path_text.h"

namespace trassix {

wxString fromUtf8(std::string_view text) {
  return textOfBytes(text);
}

std::string toUtf8(const wxString& text) {
  const wxScopedCharBuffer bytes = text.utf8_str();
  return {bytes.data(), bytes.length()};
}

wxString shortened(const wxString& text, std::size_t characters) {
  // Counted in UTF-8: on Windows a character may be two of the toolkit's.
  const std::string bytes = toUtf8(text);
  std::size_t begun = 0;
  std::size_t kept = 0; ///< bytes of all characters but the last that fit
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const bool begins = (static_cast<unsigned char>(bytes[i]) & 0xC0U) != 0x80U;
    begun += begins ? 1 : 0;
    if (begins && begun == characters)
      kept = i;
  }
  return begun <= characters ? text : fromUtf8(bytes.substr(0, kept)) + wxS("\u2026");
}

} // namespace trassix
