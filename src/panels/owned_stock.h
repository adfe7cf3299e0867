#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <string_view>

namespace trassix {

class ProgramMemory;

/// How many of each article the user has at home, counted as the article is sold. The program
/// remembers it for the purchase list of every plan.
class OwnedStock {
 public:
  static constexpr std::int32_t kMost = 999999;
  /// In the layouts folder, where earlier versions kept it: a line for an article is its number,
  /// blanks and a count; empty lines and lines that begin with '#' are remarks.
  static constexpr std::string_view kOlderFileName = "owned.txt";

  std::int32_t count(std::string_view article) const;

  /// Counts outside 0 .. kMost are brought into the range; none removes the article.
  void set(std::string_view article, std::int32_t count);

  /// Takes what is remembered or, as long as nothing is, what the file of earlier versions holds;
  /// that is left as it is. The message says why a file cannot be read, or which of its lines; it
  /// is empty on success. When a file cannot be read at all, the stock stays as it was and will not
  /// be saved.
  std::string load(const ProgramMemory& memory, const std::filesystem::path& olderFile);

  /// Whether there may be more at home than is known, because a file cannot be read.
  bool unreadable() const { return !unreadable_.empty(); }

  /// Has the program remember what was set, and nothing else, since it may run twice. Empty on
  /// success.
  std::string save(const ProgramMemory& memory);

 private:
  std::string takeOver(const std::filesystem::path& olderFile);

  std::map<std::string, std::int32_t, std::less<>> counts_;
  std::set<std::string> unsaved_;
  std::string unreadable_; ///< why
};

} // namespace trassix
