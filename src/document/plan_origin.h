// The file that a plan belongs to, and telling whether others changed it.
#pragma once

#include <ctime>
#include <filesystem>
#include <string>
#include <string_view>

namespace trassix {

/// Stands for the content of a plan file, whatever its line ends and times; the same in every
/// version of the program and on every system. Never empty.
std::string contentMark(std::string_view text);

/// Of a file as it is now; empty when there is none that can be read.
std::string contentMarkOf(const std::filesystem::path& file);

/// The file of a plan, and what it held when it was read or written here last.
struct PlanOrigin {
  std::filesystem::path file; ///< empty: the plan has none
  std::string content;        ///< its `contentMark`; empty: there was no file
  std::time_t since = 0;      ///< when that was

  /// A plan that was read from this text of a file or written to it just now.
  static PlanOrigin of(const std::filesystem::path& file, std::string_view text);

  /// Whether the file holds something else now. Not when it is gone: then there is nothing that a
  /// save would write over.
  bool changedElsewhere() const;
  bool gone() const;

  bool operator==(const PlanOrigin&) const = default;
};

/// Whether two paths, which need not exist, lead to one file.
bool sameFile(const std::filesystem::path& a, const std::filesystem::path& b);

} // namespace trassix
