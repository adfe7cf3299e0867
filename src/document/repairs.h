// Making plans and blocks from elsewhere sound, so that edits can rely on them.
#pragma once

#include "document/block_file.h"
#include "document/layout.h"

#include <cstddef>
#include <string>

namespace trassix {

/// What was mended.
struct Repairs {
  std::size_t opened = 0;     ///< joints at ends that the piece does not have
  std::size_t renumbered = 0; ///< records and levels without an id of their own
  std::size_t relevelled = 0; ///< uses of the level -1, which cannot be

  bool any() const { return opened + renumbered + relevelled != 0; }
  bool operator==(const Repairs&) const = default;
};

/// To be called once after a load, since the readers keep a file's records as they are.
///
/// Of records of one collection with the same id the first keeps it, and with it all references;
/// the others, and those with the id -1, get fresh ones. The joint table of a piece ends with the
/// ends of its definition: a joint beyond is opened, on its other side too. One-sided joints stay,
/// and so does the table of a piece whose article is unknown. Pairs are looked for again where
/// anything was mended. What stands on level -1, which cannot be, goes to level 1; where it is the
/// active one, the first level becomes that. Records no history.
Repairs makeSound(Layout& layout);
Repairs makeSound(Block& block);

/// What was mended in a few sentences for the user, empty when nothing was.
std::string describeRepairs(const Repairs& repairs);

} // namespace trassix
