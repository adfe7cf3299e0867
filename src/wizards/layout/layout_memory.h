#pragma once

#include "wizards/layout/layout_task.h"

#include <filesystem>
#include <optional>

namespace trassix {

class Layout;
class ProgramMemory;

/// What the layout of a plan was made from.
struct RememberedLayout {
  LayoutTask task;        ///< without the stock
  bool unchanged = false; ///< the plan's track and table are as they were placed; else only the
                          ///< table is worth taking over
};

/// Keeps with which values a plan was made until the plan has a file, then by its path in the
/// program's memory, for the last plans.
class LayoutMemory {
 public:
  static constexpr std::size_t kMost = 50;

  /// To be told after a layout was placed.
  void made(const LayoutTask& task, const Layout& layout);
  /// To be told when another plan is opened or begun.
  void forget();
  /// To be told after the plan was saved. The message is empty on success.
  std::string saved(const ProgramMemory& memory, const std::filesystem::path& file);
  /// None when the wizard did not make the plan. An empty path asks for what is not saved yet.
  std::optional<RememberedLayout> recall(const ProgramMemory& memory,
                                         const std::filesystem::path& file,
                                         const Layout& layout) const;

 private:
  struct Made {
    LayoutTask task;
    std::uint64_t track = 0; ///< fingerprint of track and table
  };
  std::optional<Made> made_;
};

} // namespace trassix
