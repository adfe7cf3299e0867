#include "wizards/layout/straight_runs.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace trassix {

Micrometres toMicrometres(double mm) {
  return std::llround(mm * 1000);
}

double toMillimetres(Micrometres length) {
  return static_cast<double>(length) / 1000;
}

Micrometres straightGrain(TrackSystem system) {
  Micrometres grain = 0;
  for (const PlainStraight& straight : plainStraights(system))
    grain = std::gcd(grain, toMicrometres(straight.length));
  return std::max<Micrometres>(grain, 1);
}

StraightRuns::StraightRuns(const std::vector<PlainStraight>& straights, Micrometres grain,
                           Micrometres longest)
    : grain_(grain) {
  for (const PlainStraight& straight : straights) {
    const Micrometres length = toMicrometres(straight.length);
    if (!lengths_.empty() && lengths_.back() == length)
      continue;
    straights_.push_back(straight.piece);
    lengths_.push_back(length);
  }
  counts_.assign(static_cast<std::size_t>(std::max<Micrometres>(longest, 0) / grain_) + 1, kNone);
  counts_[0] = 0;
  for (const Micrometres length : lengths_) {
    const auto step = static_cast<std::size_t>(length / grain_);
    for (std::size_t at = step; at < counts_.size(); ++at)
      if (counts_[at - step] + 1 < counts_[at])
        counts_[at] = static_cast<std::uint16_t>(counts_[at - step] + 1);
  }
}

Micrometres StraightRuns::longest() const {
  return static_cast<Micrometres>(counts_.size() - 1) * grain_;
}

std::vector<const PieceDef*> StraightRuns::run(Micrometres length) const {
  std::vector<const PieceDef*> pieces;
  int left = this->pieces(length);
  for (std::size_t i = 0; i < lengths_.size() && left > 0;) {
    if (lengths_[i] <= length && this->pieces(length - lengths_[i]) == left - 1) {
      pieces.push_back(straights_[i]);
      length -= lengths_[i];
      --left;
    } else {
      ++i;
    }
  }
  return pieces;
}

} // namespace trassix
