// The pieces of a loop, laid and joined.
#pragma once

#include "wizards/layout/layout_proposal.h"
#include "wizards/layout/loop_solver.h"

#include <optional>

namespace trassix {

/// What a loop is built with besides its straights.
struct LayoutKit {
  const PieceDef* innerCurve = nullptr; ///< of the corner radius
  const PieceDef* outerCurve = nullptr; ///< null for one track
  const PieceDef* bridge = nullptr;
  StationThroat entry; ///< for trains that run clockwise, the sidings on their right
  StationThroat exit;  ///< for those that come the other way
};
LayoutKit layoutKit(const LayoutTask& task);

/// Straights for each stretch of the loop, from what there is at home where the task wants that;
/// none when it is not enough.
using StraightStretches = std::vector<std::vector<const PieceDef*>>;
std::optional<StraightStretches> stretchesOf(const LayoutTask& task, const TablePath& path,
                                             const LayoutKit& kit, const LoopPlan& plan,
                                             const LoopSolver& solver);

/// Everything of the proposal but its remarks and what it is best at.
LayoutProposal buildLayout(const LayoutTask& task, const TablePath& path, const LayoutKit& kit,
                           const LoopPlan& plan, const LoopSolver& solver,
                           const StraightStretches& stretches);

} // namespace trassix
