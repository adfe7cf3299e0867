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
    : runs_(&runs), tracks_(tracks), bridge_(bridge), station_(station) {}

int SideSums::plainPieces(Micrometres length) const {
  const int pieces = runs_->pieces(length - bridge_);
  return pieces < 0 || bridge_ == 0 ? pieces : pieces + 1;
}

Micrometres SideSums::stationOn(Micrometres length) const {
  if (station_ == nullptr)
    return -1;
  if (held_ > 0)
    return plainPieces(length - held_) >= 0 && (tracks_ == 1 || plainPieces(length) >= 0) ? held_
                                                                                          : -1;
  return pieces(length) >= 0 ? known_[static_cast<std::size_t>(length / runs_->grain())].station
                             : -1;
}

int SideSums::pieces(Micrometres length) const {
  if (station_ == nullptr) {
    const int pieces = plainPieces(length);
    return pieces < 0 ? -1 : pieces * tracks_;
  }
  const int beside = tracks_ == 1 ? 0 : plainPieces(length);
  if (length < 0 || length % runs_->grain() != 0 || beside < 0)
    return -1;
  if (held_ > 0) {
    const auto found =
        std::ranges::lower_bound(station_->lengths(), held_, {}, &StationLengths::Length::length);
    const int rest = plainPieces(length - held_);
    return rest < 0 || found == station_->lengths().end() || found->length != held_
               ? -1
               : beside + rest + found->pieces;
  }
  const auto at = static_cast<std::size_t>(length / runs_->grain());
  if (known_.size() <= at)
    known_.resize(at + 1);
  Known& known = known_[at];
  if (known.pieces != -2)
    return known.pieces;
  known.pieces = -1;
  for (const StationLengths::Length& station : station_->lengths()) {
    if (station.length > length)
      break;
    const int rest = plainPieces(length - station.length);
    if (rest < 0 || (known.pieces >= 0 && known.pieces <= beside + rest + station.pieces))
      continue;
    known = {beside + rest + station.pieces, station.length};
  }
  return known.pieces;
}

} // namespace trassix
