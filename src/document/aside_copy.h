#pragma once

#include <ctime>
#include <filesystem>
#include <string>
#include <string_view>

namespace trassix {

class Layout;

/// A plan that was written aside because it might get lost.
struct AsideCopy {
  std::filesystem::path file;
  std::string problem; ///< why there is no copy; empty when there is one
};

/// Writes the plan to a file of its own in `folder`, which is made when missing: named after the
/// plan and the local time `when`, replacing none. Characters that a file name may not hold on some
/// system become underscores.
AsideCopy writeAside(const Layout& layout, std::string_view name,
                     const std::filesystem::path& folder, std::time_t when);

} // namespace trassix
