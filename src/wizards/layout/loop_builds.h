// Loops that are best at something, laid and checked.
#pragma once

#include "wizards/layout/layout_builder.h"
#include "wizards/layout/loop_solver.h"
#include "wizards/layout/steps.h"

#include <optional>
#include <vector>

namespace trassix {

struct BuiltLoop {
  LoopPlan plan;
  LayoutProposal proposal;
};

/// All searches of one task. What the system has no pieces for is left out, which the proposals
/// remark.
class LoopBuilds {
 public:
  explicit LoopBuilds(LayoutTask task);
  LoopBuilds(const LoopBuilds&) = delete;
  LoopBuilds& operator=(const LoopBuilds&) = delete;

  /// What is really sought.
  const LayoutTask& task() const { return task_; }
  Micrometres shortestStraight() const;

  Steps longest(Micrometres mostTotal, std::optional<BuiltLoop>& found);
  Steps longestStation(Micrometres mostTotal, std::optional<BuiltLoop>& found);
  Steps fewestPieces(const LoopPlan& model, std::optional<BuiltLoop>& found);
  Steps fewestKinds(const LoopPlan& model, std::optional<BuiltLoop>& found);

  /// Whether there would be room if straights came in all lengths.
  bool hasRoom() { return solver_->hasRoom(); }

 private:
  /// Lays a loop; false, and `last_` is left as it was, when it cannot lie there.
  bool build(const LoopPlan& plan, const LoopSolver& solver);
  void hand(std::optional<LoopPlan>& plan, std::optional<BuiltLoop>& found);

  LayoutTask task_;
  std::vector<std::string> remarks_;
  TablePath path_;
  LayoutKit kit_;
  std::vector<PlainStraight> straights_; ///< each length once, longest first
  std::unique_ptr<LoopSolver> solver_;
  std::optional<BuiltLoop> last_;
};

} // namespace trassix
