#pragma once

#include "document/plan_content.h"

#include <string>

namespace trassix {

/// Complete records with the ids and joints they had in their plan, also joints that lead out of
/// the block.
struct Block {
  std::string name;
  PlanContent content;   ///< of it the file has pieces and scenery, without their heights
  bool onLevels = false; ///< pieces have no height of their own, but that of their level

  /// Whether there is something in it that a block file can hold.
  bool hasFilePart() const { return !content.pieces.empty() || !content.scenery.empty(); }
  bool operator==(const Block&) const = default;
};

} // namespace trassix
