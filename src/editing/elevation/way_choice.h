// Which way a train takes through what is selected.
#pragma once

#include "editing/elevation/train_way.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace trassix {

class Layout;

struct WayChoice {
  std::int32_t piece = -1; ///< that it leads through; -1 for no way at all
  std::vector<BranchChoice> branches;

  bool operator==(const WayChoice&) const = default;
};

/// The way through the first of the pieces (sorted ids) that a train can take, along branches that
/// lead to others of them. It leads to as many as one way can without a long search.
WayChoice choiceThrough(const Layout& layout, std::span<const std::int32_t> pieces);

TrainWay wayOf(const Layout& layout, const WayChoice& choice);

/// Whether a train could take another branch on this stretch of the chosen way.
bool hasBranches(const Layout& layout, const WayChoice& choice, const TrainWay& way,
                 std::size_t stretch);
/// Takes the next one, round to the first; nothing happens where there is only one.
void takeNextBranch(const Layout& layout, WayChoice& choice, const TrainWay& way,
                    std::size_t stretch);

} // namespace trassix
