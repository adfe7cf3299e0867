#include "wizards/layout/side_sums.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace trassix {

StationLengths::StationLengths(const StationThroat& throat, const StraightRuns& runs, double usable)
    : throat_(&throat), runs_(&runs) {
  const int throats = 2 * static_cast<int>(throat.pieces.size());
  for (Micrometres fill = 0; fill + mainLength() <= runs.longest(); fill += runs.grain()) {
    int pieces = runs.pieces(fill);
    const Micrometres length = fill + mainLength();
    if (pieces < 0 || this->usable(length) < usable)
      continue;
    pieces += throats;
    for (std::size_t i = 0; i < throat.sidings.size() && pieces >= 0; ++i) {
      const Micrometres straights = siding(length, i);
      pieces = straights < 0 ? -1 : pieces + runs.pieces(straights);
    }
    if (pieces >= 0)
      lengths_.push_back({length, pieces});
  }
}

Micrometres StationLengths::siding(Micrometres station, std::size_t siding) const {
  const double exact = toMillimetres(station) - 2 * throat_->sidings[siding].start.x;
  const Micrometres grain = runs_->grain();
  const auto nearest =
      static_cast<Micrometres>(std::llround(exact * 1000 / static_cast<double>(grain))) * grain;
  constexpr double kPlay = kClosingPlay - 0.01; // what a turned siding and rounding may add
  for (Micrometres off = 0; off <= toMicrometres(kClosingPlay) + grain; off += grain)
    for (const Micrometres length : {nearest - off, nearest + off})
      if (std::abs(toMillimetres(length) - exact) <= kPlay && runs_->reaches(length))
        return length;
  return -1;
}

double StationLengths::usable(Micrometres station) const {
  double least = std::numeric_limits<double>::max();
  for (const StationThroat::Siding& siding : throat_->sidings)
    least = std::min(least, toMillimetres(station) - 2 * siding.foul);
  return least;
}

SideSums::SideSums(const StraightRuns& runs, int tracks, Micrometres bridge,
                   const StationLengths* station)
    : runs_(&runs), tracks_(tracks), bridge_(bridge), station_(station) {
  if (station == nullptr)
    return;
  // The station alone, or a shorter side with one more piece.
  known_.resize(static_cast<std::size_t>(runs.longest() / runs.grain()) + 1);
  for (const StationLengths::Length& length : station->lengths())
    known_[static_cast<std::size_t>(length.length / runs.grain())] = {length.pieces, length.length};
  for (const Micrometres piece : runs.lengths()) {
    const auto step = static_cast<std::size_t>(piece / runs.grain());
    for (std::size_t at = step; at < known_.size(); ++at) {
      const Known& shorter = known_[at - step];
      if (shorter.pieces >= 0 && (known_[at].pieces < 0 || shorter.pieces + 1 < known_[at].pieces))
        known_[at] = {shorter.pieces + 1, shorter.station};
    }
  }
}

int SideSums::plainPieces(Micrometres length) const {
  const int pieces = runs_->pieces(length - bridge_);
  return pieces < 0 || bridge_ == 0 ? pieces : pieces + 1;
}

const SideSums::Known* SideSums::known(Micrometres length) const {
  length -= bridge_;
  if (length < 0 || length % runs_->grain() != 0)
    return nullptr;
  const auto at = static_cast<std::size_t>(length / runs_->grain());
  return at < known_.size() && known_[at].pieces >= 0 ? &known_[at] : nullptr;
}

Micrometres SideSums::least() const {
  if (station_ == nullptr)
    return bridge_;
  if (held_ > 0)
    return held_ + bridge_;
  return station_->lengths().empty() ? -1 : station_->lengths().front().length + bridge_;
}

const std::vector<Micrometres>& SideSums::choices() const {
  if (choices_.empty())
    for (Micrometres length = 0; length <= runs_->longest(); length += runs_->grain())
      if (allows(length))
        choices_.push_back(length);
  return choices_;
}

Micrometres SideSums::stationOn(Micrometres length) const {
  if (held_ > 0)
    return held_;
  const Known* side = known(length);
  return side == nullptr ? -1 : side->station;
}

int SideSums::pieces(Micrometres length) const {
  const int plain = plainPieces(length);
  if (station_ == nullptr)
    return plain < 0 ? -1 : plain * tracks_;
  const int beside = tracks_ == 1 ? 0 : plain;
  if (beside < 0)
    return -1;
  if (held_ > 0) {
    const auto found =
        std::ranges::lower_bound(station_->lengths(), held_, {}, &StationLengths::Length::length);
    const int rest = plainPieces(length - held_);
    return rest < 0 || found == station_->lengths().end() || found->length != held_
               ? -1
               : beside + rest + found->pieces;
  }
  const Known* side = known(length);
  return side == nullptr ? -1 : beside + side->pieces + (bridge_ > 0 ? 1 : 0);
}

} // namespace trassix
