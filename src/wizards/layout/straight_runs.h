// Lengths that straights add up to, exactly.
#pragma once

#include "catalog/plain_track.h"

#include <cstdint>
#include <vector>

namespace trassix {

/// In thousandths of a millimetre: all that closes a loop is reckoned in it, so that sums are
/// exact.
using Micrometres = std::int64_t;
Micrometres toMicrometres(double mm);
double toMillimetres(Micrometres length);

/// The greatest length of which all plain straights of a system are multiples.
Micrometres straightGrain(TrackSystem system);

/// Every length that any number of some straights make up, with the fewest pieces.
class StraightRuns {
 public:
  /// `grain`: a length that divides all of them. `longest`: longer ones are not needed.
  StraightRuns(const std::vector<PlainStraight>& straights, Micrometres grain, Micrometres longest);

  Micrometres grain() const { return grain_; }
  Micrometres longest() const;
  const std::vector<Micrometres>& lengths() const { return lengths_; } ///< longest first

  /// How many pieces it takes at least; -1 when no pieces are as long.
  int pieces(Micrometres length) const {
    if (length < 0 || length % grain_ != 0)
      return -1;
    const auto at = static_cast<std::size_t>(length / grain_);
    return at < counts_.size() && counts_[at] != kNone ? counts_[at] : -1;
  }
  bool reaches(Micrometres length) const { return pieces(length) >= 0; }

  /// These pieces, longest first.
  std::vector<const PieceDef*> run(Micrometres length) const;

 private:
  static constexpr std::uint16_t kNone = 0xFFFF;

  Micrometres grain_ = 1;
  std::vector<const PieceDef*> straights_; ///< one of each length, longest first
  std::vector<Micrometres> lengths_;
  std::vector<std::uint16_t> counts_; ///< by multiples of the grain
};

} // namespace trassix
