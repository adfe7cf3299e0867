// The straights of the sides that run along one axis, chosen together so that they close.
#pragma once

#include "wizards/layout/side_sums.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace trassix {

inline constexpr Micrometres kAnywhere = 4'000'000'000'000;

/// A line across the axis on which a side of the other axis lies.
struct AxisLine {
  bool least = false; ///< the table lies beyond: its coordinate is at least, else at most, `at`
  Micrometres at = 0;
  Micrometres play = kAnywhere; ///< by which it may lie farther in
};

/// Leads from the line of its index to the next one.
struct AxisSide {
  int sign = 1;
  Micrometres corners = 0; ///< what its two corners take of its length
  const SideSums* sums = nullptr;
  Micrometres low = 0; ///< what its straights are at least and at most
  Micrometres high = 0;
};

struct AxisGap {
  std::size_t low = 0; ///< lines
  std::size_t high = 0;
  Micrometres least = 0; ///< between them
};

struct Axis {
  std::vector<AxisLine> lines;
  std::vector<AxisSide> sides;
  std::vector<AxisGap> gaps;
  Micrometres grain = 1;
  Micrometres misfit = 0; ///< by which the loop may stay open
};

/// Straights by sides.
using AxisSums = std::vector<Micrometres>;

/// Reachable sums of the sides in one direction, met by those of the other. Every search takes a
/// number of tries from `tries` and ends without a result when there are none left.
class AxisSearch {
 public:
  /// Narrows what the sides may be to what their lines leave them.
  explicit AxisSearch(Axis axis);

  /// Whether any lengths would do if straights came in all lengths.
  bool possible() const { return possible_; }
  const Axis& axis() const { return axis_; }

  /// All sides together; what is longest possible, then less and less in grains.
  Micrometres longestTotal() const { return totalOf(leadHigh_); }
  Micrometres leastTotal() const { return totalOf(leadLow_); }
  /// Totals have this step.
  Micrometres step() const { return 2 * axis_.grain; }
  /// Sides that make up this total, near to what the lines ask for.
  std::optional<AxisSums> withTotal(Micrometres total, long& tries) const;

  /// Sides of at most `pieces` pieces; of several the longest that is found.
  struct Value {
    Micrometres length = 0;
    int pieces = 0;
  };
  std::optional<AxisSums> withPieces(const std::vector<std::vector<Value>>& values, int pieces,
                                     long& tries) const;

  /// Coordinates of the lines, as far in the middle of what they may be as all can be together.
  std::vector<Micrometres> linesOf(const AxisSums& sums) const;

 private:
  struct Range {
    Micrometres low = 0;
    Micrometres high = 0;
  };
  struct Lead;
  struct Few;

  void narrow();
  Range turningRange(const std::vector<std::vector<Micrometres>>& most) const;
  Micrometres totalOf(Micrometres lead) const;
  /// Where line `line` can lie when it is `at` from line 0: narrows where line 0 can.
  Range placed(Range range, std::size_t line, Micrometres at) const;
  /// What sides of a direction can be together, from this one on.
  Range restOf(std::size_t side, int sign) const;
  bool gapsHold(const std::vector<Micrometres>& at, std::size_t line) const;
  bool lead(Lead& state, std::size_t side, Range range) const;
  void few(Few& state, std::size_t side, Range range, int pieces) const;

  Axis axis_;
  bool possible_ = false;
  int leadSign_ = -1;
  Micrometres surplus_ = 0; ///< sum of the other direction less that of the leading one
  Micrometres leadLow_ = 0;
  Micrometres leadHigh_ = -1;
  std::vector<Micrometres> ideal_; ///< of each side, with its lines where they may be at the least
};

} // namespace trassix
