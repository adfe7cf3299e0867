// Several pieces of one article in a row.
#pragma once

#include "editing/placing/placing.h"

#include <functional>
#include <string_view>

namespace trassix {

/// The most that are placed at once.
inline constexpr int kLongestRun = 99;

struct Run {
  EditResult result; ///< of all of them together
  int count = 0;     ///< how often a piece, or a pair of them, was placed
};

/// Places a piece by `first` and goes on from it until there are `count`, as one undo step. Ends
/// early where no end is open, as when a circle closes, and where the plan ends; refused only when
/// the first piece is.
Run placeRun(Layout& layout, std::string_view article, int count, const ExtensionWish& wish,
             const std::function<EditResult()>& first);

} // namespace trassix
