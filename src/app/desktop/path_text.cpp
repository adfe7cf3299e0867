#include "app/desktop/path_text.h"

#include <wx/strconv.h>

namespace trassix {

wxString textOfBytes(std::string_view bytes) {
  if (bytes.empty())
    return {};
  const wxString text = wxString::FromUTF8(bytes.data(), bytes.size());
  return text.empty() ? wxString(bytes.data(), wxConvISO8859_1, bytes.size()) : text;
}

std::filesystem::path toPath(const wxString& text) {
#ifdef _WIN32
  return {text.ToStdWstring()};
#else
  return {text.utf8_string()};
#endif
}

wxString toText(const std::filesystem::path& path) {
#ifdef _WIN32
  return {path.wstring()};
#else
  return textOfBytes(path.native());
#endif
}

} // namespace trassix
