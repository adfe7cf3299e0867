#pragma once

#include "editing/profile/profile_content.h"
#include "editing/profile/profile_scale.h"

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace trassix {

/// A joint of the way as it can be pulled.
struct ProfileHandle {
  std::size_t joint = 0;
  Point px;
  bool knee = false;
};

/// The handles in view: all knees (ascending), and of the other joints those that have room, and
/// the one that is chosen. `way` is as long as the content's.
std::vector<ProfileHandle> handlesOf(const ProfileContent& content, const TrainWay& way,
                                     std::span<const std::size_t> knees, const ProfileScale& plot,
                                     std::optional<std::size_t> chosen);

} // namespace trassix
