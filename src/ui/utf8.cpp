#include "ui/utf8.h"

#include <wx/strconv.h>

namespace trassix {

wxString fromUtf8(std::string_view text) {
  if (text.empty())
    return {};
  wxString result = wxString::FromUTF8(text.data(), text.size());
  if (result.empty())
    result = wxString(text.data(), wxConvISO8859_1, text.size());
  return result;
}

std::string toUtf8(const wxString& text) {
  const wxScopedCharBuffer bytes = text.utf8_str();
  return {bytes.data(), bytes.length()};
}

} // namespace trassix
