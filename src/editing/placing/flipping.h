// Turning a piece round where it lies: it stays joined, by another of its ends.
#pragma once

#include "document/layout.h"
#include "editing/edit_result.h"
#include "geometry/pose.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace trassix {

/// How a piece comes to lie.
struct Flip {
  std::int32_t piece = -1;
  std::int32_t from = -1; ///< the end that is where `to` will be
  std::int32_t to = -1;
  Pose pose;
  int opens = 0; ///< joints whose ends do not meet any more
};

/// The piece's next way, or with a step of -1 the one before, at the joint it was placed by: the
/// one to the latest of the older pieces. `held` names another end to be taken for that, for one
/// flip after the other of a piece without joints. Empty when it has only one way there.
std::optional<Flip> flipOf(const Layout& layout, std::int32_t piece, int step,
                           std::int32_t held = -1);

/// All its other ways there.
std::vector<Flip> flipsOf(const Layout& layout, std::int32_t piece);

/// One undo step. The end keeps its height and its joint; other ends that meet something are
/// joined. Refused beyond the limits of a plan.
ChangeResult flip(Layout& layout, const Flip& how);

} // namespace trassix
