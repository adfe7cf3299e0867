#include "app/services/path_text.h"

namespace trassix {

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
  return wxString::FromUTF8(path.native());
#endif
}

} // namespace trassix
