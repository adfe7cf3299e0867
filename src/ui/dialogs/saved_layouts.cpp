#include "ui/dialogs/saved_layouts.h"

#include "app/desktop/path_text.h"
#include "app/services/file_listing.h"

#ifdef __WXMSW__
#include <wx/msw/wrapwin.h>
#else
#include <wx/crt.h>
#endif

#include <algorithm>
#include <iterator>

namespace trassix {

namespace {

std::string text(const std::filesystem::path& path) {
  const std::u8string utf8 = path.u8string();
  return {utf8.begin(), utf8.end()};
}

std::filesystem::path path(std::string_view utf8) {
  return std::filesystem::path(std::u8string(utf8.begin(), utf8.end()));
}

int compareNames(const wxString& a, const wxString& b) {
#ifdef __WXMSW__
  return ::lstrcmpiW(a.wc_str(), b.wc_str());
#else
  return wxStrcoll(a.Lower(), b.Lower());
#endif
}

bool listedBefore(const std::filesystem::path& a, const std::filesystem::path& b) {
  const int names = compareNames(toText(a.stem()), toText(b.stem()));
  return names != 0 ? names < 0 : a < b;
}

} // namespace

std::filesystem::path layoutFile(const std::filesystem::path& folder, std::string_view name) {
  // From one text: a name that begins with a separator must not replace the folder, and what is put
  // together by `+=` keeps the parent path of its first part in some libraries.
  std::filesystem::path::string_type text = folder.native();
  text += std::filesystem::path::preferred_separator;
  text += path(std::string(name) + ".txl").native();
  return {std::move(text)};
}

SavedLayouts::SavedLayouts(const std::filesystem::path& folder) {
  for (const char* extension : {".txl", ".xml"})
    std::ranges::copy(filesIn(folder, extension), std::back_inserter(files_));
  std::ranges::sort(files_, listedBefore);
}

std::vector<std::string> SavedLayouts::names() const {
  std::vector<std::string> names;
  for (const auto& file : files_)
    names.push_back(text(file.stem()));
  return names;
}

std::optional<std::filesystem::path> SavedLayouts::find(std::string_view name) const {
  const auto found = std::find_if(files_.begin(), files_.end(),
                                  [name](const auto& file) { return text(file.stem()) == name; });
  if (found == files_.end())
    return {};
  return *found;
}

void SavedLayouts::remove(const std::filesystem::path& file) {
  std::erase(files_, file);
}

} // namespace trassix
