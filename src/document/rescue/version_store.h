#pragma once

#include "document/plan_file.h"

#include <cstddef>
#include <cstdint>
#include <ctime>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace trassix {

/// What plan files held before they were saved over, replaced or deleted. A folder in the user's
/// local data with one for each plan; their files are plans, each written when its content was
/// saved. What cannot be kept is no reason not to save.
class VersionStore {
 public:
  static constexpr std::size_t kMostOfAPlan = 20;
  static constexpr std::uintmax_t kMostBytes = 500'000'000; ///< of all plans
  /// Of a deleted plan, in seconds: 30 days.
  static constexpr std::time_t kKeptAfterDelete = 30 * std::time_t{86'400};

  explicit VersionStore(std::filesystem::path folder, std::uintmax_t mostBytes = kMostBytes)
      : folder_(std::move(folder)), mostBytes_(mostBytes) {}

  /// Calls `write`, which replaces the plan file and returns a `FileResult`, and keeps what the
  /// file held before, if that is something else now.
  template <class Write>
  auto replacing(const std::filesystem::path& file, Write write) const {
    const Kept kept = keep(file);
    auto result = write();
    settle(kept, !result.failed(), result.way);
    return result;
  }

  /// Deletes a plan file, whose versions are kept for some time from `now` on. `kept` becomes
  /// whether this one is among them.
  std::error_code remove(const std::filesystem::path& file, std::time_t now, bool& kept) const;

  /// Removes what has been kept for long enough.
  void tidy(std::time_t now) const;

  struct Version {
    std::filesystem::path copy;
    std::time_t when = 0; ///< saved
    std::size_t pieces = 0;
  };
  struct Plan {
    std::filesystem::path file;
    bool gone = false;
    std::vector<std::filesystem::path> copies; ///< the latest first
  };
  /// By the names of their files.
  std::vector<Plan> plans() const;
  static Version versionIn(const std::filesystem::path& copy);

 private:
  /// What a file holds before it is written over.
  struct Kept {
    std::filesystem::path file;
    std::filesystem::path copy; ///< empty when nothing is kept
    std::string text;
  };

  Kept keep(const std::filesystem::path& file) const;
  void settle(const Kept& kept, bool replaced, WriteWay way) const;
  std::filesystem::path folderOf(const std::filesystem::path& file) const;
  void thin(const std::filesystem::path& planFolder) const;
  void limitSize() const;

  std::filesystem::path folder_;
  std::uintmax_t mostBytes_;
};

/// Which of more versions than a plan may have goes first, by their ages, the youngest first: the
/// one whose neighbours stand closest for their age, so that what is left reaches far back, in
/// steps that grow. Neither the first nor the last.
std::size_t leastMissed(const std::vector<double>& ages);

} // namespace trassix
