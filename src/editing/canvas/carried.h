#pragma once

#include "document/block_file.h"
#include "editing/helix/helix_plan.h"

#include <string>
#include <variant>

namespace trassix {

struct CarriedPiece {
  std::string article;
  int count = 1; ///< pieces in a row, of which the first one hangs on the pointer
};

struct CarriedScenery {
  std::string key; ///< in the scenery catalogue
};

/// What can hang on the pointer on its way to the plan. A block, which is never null, hangs on it
/// by its origin.
struct Carried : std::variant<CarriedPiece, CarriedScenery, SharedBlock, HelixWish> {
  using variant::variant;
};

} // namespace trassix
