// What of a plan is to be printed.
#pragma once

#include "document/layout.h"
#include "editing/selection/plan_index.h"
#include "geometry/box.h"
#include "geometry/pose.h"
#include "output/print_options.h"

#include <optional>
#include <string>
#include <vector>

namespace trassix {

/// Where something stands that carries track, mm.
struct SupportFoot {
  Pose pose;
  double along = 0; ///< size in the direction of the track
  double across = 0;
  double height = 0; ///< of the support
};

/// A copy of a plan that holds what is printed together, and nothing else; nothing is selected.
struct PrintedPlan {
  std::string deck; ///< name of the level when it is printed alone, else empty
  Layout layout;
  PlanIndex index;
  std::optional<Box> extent;         ///< of all that is drawn, mm; none when that is nothing
  std::vector<SupportFoot> supports; ///< of its track, where they are asked for
};

/// One for all, or one for each level that has something on it where decks are printed apart, from
/// the lowest up. None when there is nothing to print.
std::vector<PrintedPlan> printedPlans(const Layout& layout, const PrintOptions& options);

/// Whether anything is drawn in the box (mm) besides the plain area of the board. `mmPerPx` is the
/// size of a pixel of the picture, for what is as large as it looks.
bool showsAnything(const PrintedPlan& plan, const Box& box, double mmPerPx);

} // namespace trassix
