#pragma once

#include "wizards/layout/layout_proposal.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace trassix {

/// Looks for layouts, in short steps. It knows no plan and changes nothing: whoever has enough of
/// it drops it. The same task always gives the same proposals.
class LayoutSearch {
 public:
  /// Lengths in texts are in the given unit.
  explicit LayoutSearch(LayoutTask task, std::int32_t units = 0);
  ~LayoutSearch();
  LayoutSearch(LayoutSearch&&) noexcept;
  LayoutSearch& operator=(LayoutSearch&&) noexcept;

  static constexpr std::size_t kAtOnce = 4; ///< proposals at most in one round

  /// Works for a few milliseconds. Nothing happens once it is done.
  void step();
  bool done() const;
  double progress() const; ///< 0 to 1

  /// The best one for what the task prefers comes first. Grows only.
  const std::vector<LayoutProposal>& proposals() const;

  /// Once done: why there are no proposals.
  const std::optional<LayoutRefusal>& refusal() const;

  /// Goes on for up to four more, which are shorter. Then `step` has something to do again.
  void searchOn();
  /// Whether a further round may find more.
  bool mayHaveMore() const;

  const LayoutTask& task() const;

 private:
  struct State;
  std::unique_ptr<State> state_;
};

} // namespace trassix
