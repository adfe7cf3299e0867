// Slopes along a way, eased: neighbouring pieces differ in grade by no more than their middles are
// apart allows.
#pragma once

#include <optional>
#include <vector>

namespace trassix {

/// A way of pieces that is to climb. Lengths in mm, slopes as rise over length.
struct Climb {
  std::vector<double> lengths; ///< of the pieces, in order; none is 0
  std::vector<double> base;    ///< slopes that the climb keeps as much of as it can, or none: level
  double before = 0;           ///< slope of what lies ahead of the way
  double after = 0;            ///< and of what follows
  double change = 0;           ///< of slope for each mm of way; 0: the grade may change at once
  double lengthBefore = 0;     ///< of the piece ahead of the way; 0: as long as the first
  double lengthAfter = 0;      ///< and of what follows, as the last
};

/// The slopes with which the way climbs `rise` mm: those of `base`, all steeper by as much, but for
/// what easing holds back at both ends. Without a base that is one grade. Empty when easing does
/// not allow the rise; `base` itself is to be eased (see `easedBase`).
std::optional<std::vector<double>> slopesFor(const Climb& climb, double rise);

/// Slopes as near to those of `base` as easing allows, whatever they climb.
std::vector<double> easedBase(const Climb& climb);

/// The most that a level way climbs when no slope is above `steepest`, easing included; mm.
double mostRise(const Climb& climb, double steepest);

} // namespace trassix
