#pragma once

#include "editing/canvas/plan_theme.h"
#include "editing/profile/profile_handles.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace trassix {

/// All that a picture of a height profile is made of.
struct ProfilePicture {
  const Layout& layout;
  const ProfileContent& content;
  const TrainWay& way; ///< as it is shown; as long as the content's
  ProfileScale plot;
  SizePx size;
  const PlanTheme& theme;
  std::vector<std::size_t> knees;
  std::vector<ProfileHandle> handles;
  const HeightPlan* plan = nullptr; ///< what is being done, if anything
  std::optional<std::size_t> pointedJoint = {};
  std::optional<std::size_t> chosenJoint = {}; ///< that the keys are on
  std::int32_t pointedPiece = -1;
  bool focused = false;
  std::string_view problem = {}; ///< why it is not possible
};

void paintProfile(Surface& surface, const ProfilePicture& picture);

} // namespace trassix
