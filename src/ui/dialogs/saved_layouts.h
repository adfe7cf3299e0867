#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace trassix {

/// The file that a plan or block of this name (UTF-8, as typed) has in a folder.
std::filesystem::path layoutFile(const std::filesystem::path& folder, std::string_view name);

/// The plans in a folder: its .txl and its .xml files, as every list of plans shows them: by name
/// in the order of the user's language, capitals or not. A name that exists with both extensions is
/// listed twice, the .txl file first, and both entries mean that.
class SavedLayouts {
 public:
  explicit SavedLayouts(const std::filesystem::path& folder);

  bool empty() const { return files_.empty(); }
  const std::vector<std::filesystem::path>& files() const { return files_; }

  /// Of the files, without folder and extension; UTF-8.
  std::vector<std::string> names() const;

  /// The first file whose name is exactly this.
  std::optional<std::filesystem::path> find(std::string_view name) const;

  void remove(const std::filesystem::path& file);

 private:
  std::vector<std::filesystem::path> files_;
};

} // namespace trassix
