#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace trassix {

inline constexpr std::string_view kOwnedFileName = "owned.txt";

/// How many of each article the user has at home, counted as the article is sold.
///
/// Kept as a text file that can be edited by hand: a line for an article is its number, blanks and
/// a count; empty lines and lines that begin with '#' are remarks. All lines stay where the user
/// put them, also those that cannot be read, so that a slip of the pen loses nothing.
class OwnedStock {
 public:
  static constexpr std::int32_t kMost = 999999;

  std::int32_t count(std::string_view article) const;

  /// Counts outside 0 .. kMost are brought into the range; none removes the article.
  void set(std::string_view article, std::int32_t count);

  /// Reads the file; one that is not there is an empty stock. The message names the first line that
  /// could not be read or says why the file could not be; it is empty on success. When the file
  /// cannot be read at all, the stock stays as it was and will not be saved in its place.
  std::string load(const std::filesystem::path& file);

  /// Whether there may be more at home than is known, because the file cannot be read.
  bool unreadable() const { return !unreadable_.empty(); }

  /// Empty on success.
  std::string save(const std::filesystem::path& file) const;

 private:
  struct Line {
    std::string text;    ///< of a line that is no count
    std::string article; ///< of one that is
  };

  std::vector<Line> lines_;
  std::map<std::string, std::int32_t, std::less<>> counts_;
  std::string unreadable_; ///< why the file could not be read
};

} // namespace trassix
