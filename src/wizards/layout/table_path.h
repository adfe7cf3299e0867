// The way around a table: what is known of a loop before its straights are chosen.
#pragma once

#include "wizards/layout/layout_task.h"
#include "wizards/layout/straight_runs.h"

#include <array>
#include <cstddef>
#include <vector>

namespace trassix {

/// A side of the way, clockwise on the screen, beside an edge of the table.
struct PathSide {
  int direction = 0;      ///< +x, +y, -x, -y: 0 to 3
  bool turnsLeft = false; ///< the corner at its beginning goes around a corner of the room
  Micrometres edge = 0;   ///< where the table's edge lies: y of a level side, x of an upright one
  std::size_t asked = 0;  ///< the same side in the task's outline

  bool level() const { return direction % 2 == 0; }
  int sign() const { return direction < 2 ? 1 : -1; }
  /// Whether the table lies on the side of greater coordinates of its edge.
  bool tableBeyond() const { return direction == 0 || direction == 3; }
};

/// A demand on the room between two sides that face each other across the table.
struct FacingSides {
  std::size_t low = 0; ///< the side of lesser coordinate
  std::size_t high = 0;
};

struct TablePath {
  std::vector<PathSide> sides;
  Micrometres leftRadius = 0;  ///< of the outer track around corners of the room
  Micrometres rightRadius = 0; ///< of the outer track elsewhere
  Micrometres spacing = 0;     ///< to the inner track, 0 for one track
  Micrometres halfBed = 0;
  Micrometres margin = 0; ///< least, from the table's edge to the outer track's middle

  std::size_t count() const { return sides.size(); }
  std::size_t after(std::size_t side) const { return (side + 1) % count(); }
  std::size_t before(std::size_t side) const { return (side + count() - 1) % count(); }
  /// What the corner at the side's beginning takes of it.
  Micrometres cornerAt(std::size_t side) const {
    return sides[side].turnsLeft ? leftRadius : rightRadius;
  }
  /// What both its corners take of it.
  Micrometres cornersOf(std::size_t side) const { return cornerAt(side) + cornerAt(after(side)); }
  std::vector<FacingSides> facing() const;

  /// How far the line of a side at a left turn has to be off its edge, where the other line there
  /// is off by `other`.
  Micrometres clearing(Micrometres other) const;

  std::vector<Micrometres> corners; ///< of the table: x and y of each, by sides
};

/// For a task without a problem of its table.
TablePath pathOf(const LayoutTask& task);

} // namespace trassix
