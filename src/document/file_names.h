// Names that users give their plans and blocks, which become names of files. UTF-8, without folder
// and extension.
#pragma once

#include <string>
#include <string_view>

namespace trassix {

/// What to say about a name while it is typed; nothing about a good one.
struct NameAdvice {
  std::string line;      ///< a sentence; empty when there is nothing to say
  bool leadsOut = false; ///< the file would lie in another folder: not to be accepted

  bool operator==(const NameAdvice&) const = default;
};

/// Judges a name by the rules of all systems, since plans travel. Most names it warns of are still
/// good on some system, which has the last word when the file is written.
NameAdvice adviseOnName(std::string_view name);

/// A name from a file, to be offered as the name of another: `/` and `\` go.
std::string withoutSeparators(std::string name);

/// The name as the name of a file on any system may begin, of 150 bytes at most: what cannot be in
/// one becomes an underscore. "Unnamed" for none.
std::string asFileName(std::string_view name);

} // namespace trassix
