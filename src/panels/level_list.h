#pragma once

#include "document/layout.h"
#include "editing/level_edits.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace trassix {

/// The levels of a plan while they are being edited; the plan itself changes only by `apply`, since
/// undo would not bring a level back. Levels are told by their place in the list.
class LevelList {
 public:
  explicit LevelList(const Layout& layout);

  const std::vector<Level>& levels() const { return levels_; }
  std::size_t active() const; ///< place of the active level
  void setActive(std::size_t place) { activeLevel_ = levels_.at(place).id; }

  /// Appends a level with an id that no level of the plan had, named after its number and higher
  /// than the highest one. Returns its place.
  std::size_t add();

  bool canRemove() const { return levels_.size() > 1; }

  /// What stands on the level, together with what comes there from levels removed before.
  std::size_t contentCount(std::size_t place) const;

  /// What stands on it goes to the level at `heir`, a different place. Returns false and removes
  /// nothing when it is the only level.
  bool remove(std::size_t place, std::size_t heir);

  /// For all but name and id, which have rules.
  Level& edit(std::size_t place) { return levels_.at(place); }

  /// Returns why the name is refused; empty when it was taken.
  std::string rename(std::size_t place, std::string_view name);

  /// False when nothing would change.
  bool apply(Layout& layout) const;

 private:
  const Layout& layout_;
  std::vector<Level> levels_;
  std::int32_t activeLevel_ = 1;
  std::int32_t nextId_ = 1;
  LevelMoves moves_;
};

} // namespace trassix
