#include "document/file_names.h"

#include "texts/texts.h"

#include <algorithm>

namespace trassix {

namespace {

constexpr std::string_view kSeparators = "/\\";

bool isLetter(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

bool beginsWithDrive(std::string_view name) {
  return name.size() > 1 && isLetter(name[0]) && name[1] == ':' &&
         (name.size() == 2 || name[2] != ' ');
}

/// Whether the file of this name would not lie in its folder nor in one of that. Where it begins
/// with a separator, that was meant, though it is put behind the folder.
bool leadsOut(std::string_view name) {
  if (beginsWithDrive(name) || name.find_first_of(kSeparators) == 0)
    return true;
  while (!name.empty()) {
    const std::size_t length = std::min(name.find_first_of(kSeparators), name.size());
    if (name.substr(0, length) == "..")
      return true;
    name.remove_prefix(std::min(length + 1, name.size()));
  }
  return false;
}

bool hasControlCharacters(std::string_view name) {
  for (std::size_t i = 0; i < name.size(); ++i) {
    const auto byte = static_cast<unsigned char>(name[i]);
    const auto next = static_cast<unsigned char>(i + 1 < name.size() ? name[i + 1] : '\0');
    // In UTF-8 the second set, U+0080 to U+009F, begins with the byte C2.
    if (byte < 0x20 || byte == 0x7f || (byte == 0xc2 && next >= 0x80 && next < 0xa0))
      return true;
  }
  return false;
}

/// Devices of Windows, with any extension and blanks before it.
bool namesDevice(std::string_view name) {
  name = name.substr(0, name.find('.'));
  name = name.substr(0, name.find_last_not_of(' ') + 1);
  std::string upper(name);
  std::transform(upper.begin(), upper.end(), upper.begin(),
                 [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; });
  if (upper.size() == 4 && upper[3] >= '1' && upper[3] <= '9')
    return upper.starts_with("COM") || upper.starts_with("LPT");
  return upper == "CON" || upper == "PRN" || upper == "AUX" || upper == "NUL";
}

} // namespace

NameAdvice adviseOnName(std::string_view name) {
  constexpr std::size_t kLongest = 200; // bytes
  if (leadsOut(name))
    return {tr("This name leads out of the folder."), true};
  if (name.find_first_of(kSeparators) != std::string_view::npos)
    return {tr("A name with / or \\ means a folder inside this one.")};
  if (hasControlCharacters(name))
    return {tr("The name holds characters that cannot be seen.")};
  if (name.find_first_of("<>:\"|?*") != std::string_view::npos)
    return {tr("Windows takes none of < > : \" | ? * in a name.")};
  if (namesDevice(name))
    return {tr("Windows keeps this name for a device.")};
  if (name.size() > kLongest)
    return {tr("The name is too long for some disks.")};
  return {};
}

std::string withoutSeparators(std::string name) {
  std::erase_if(name, [](char c) { return kSeparators.find(c) != std::string_view::npos; });
  return name;
}

std::string asFileName(std::string_view name) {
  constexpr std::size_t kLongest = 150;
  std::size_t length = std::min(name.size(), kLongest);
  while (length > 0 && length < name.size() && (name[length] & 0xC0) == 0x80) // within a character
    --length;
  std::string safe(name.substr(0, length));
  std::replace_if(
      safe.begin(), safe.end(),
      [](char c) {
        return static_cast<unsigned char>(c) < 0x20 ||
               std::string_view("/\\:*?\"<>|").find(c) != std::string_view::npos;
      },
      '_');
  return safe.empty() ? "Unnamed" : safe;
}

} // namespace trassix
