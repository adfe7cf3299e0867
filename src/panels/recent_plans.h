#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace trassix {

class ProgramMemory;

/// The plan files that were opened or saved last, the latest first, as the program remembers them.
class RecentPlans {
 public:
  static constexpr std::size_t kMost = 9;

  /// Brings the file to the front. What cannot be remembered is not worth a word.
  static void add(const ProgramMemory& memory, const std::filesystem::path& file);
  static void forget(const ProgramMemory& memory, const std::filesystem::path& file);

  /// Also those that are gone meanwhile.
  static std::vector<std::filesystem::path> list(const ProgramMemory& memory);
};

/// What a menu shows of each: its name, and its folder where it lies outside of `plansFolder`.
std::vector<std::string> recentLabels(const std::vector<std::filesystem::path>& files,
                                      const std::filesystem::path& plansFolder);

} // namespace trassix
