// What the straight part of one side of a loop may be as long as, and in how many pieces.
#pragma once

#include "wizards/layout/station_throat.h"
#include "wizards/layout/straight_runs.h"

#include <vector>

namespace trassix {

/// How far what is laid towards itself may miss, in mm: what the joining of ends takes up.
inline constexpr double kClosingPlay = 1.0;

/// The lengths of main line that a station may take up, end to end of its two outer turnouts.
class StationLengths {
 public:
  struct Length {
    Micrometres length = 0;
    int pieces = 0; ///< of all tracks of the station
  };

  /// Of stations whose sidings are usable for at least `usable` mm. Sidings close within the play.
  StationLengths(const StationThroat& throat, const StraightRuns& runs, double usable);

  const std::vector<Length>& lengths() const { return lengths_; } ///< rising
  /// Straights of a siding; -1 when none close it.
  Micrometres siding(Micrometres station, std::size_t siding) const;
  /// The shortest siding's usable length in mm.
  double usable(Micrometres station) const;
  Micrometres mainLength() const { return 2 * toMicrometres(throat_->mainLength); }

 private:
  const StationThroat* throat_;
  const StraightRuns* runs_;
  std::vector<Length> lengths_;
};

/// The lengths of one side. One with a station has that on one of the tracks, a bridge is in all of
/// them.
class SideSums {
 public:
  SideSums(const StraightRuns& runs, int tracks, Micrometres bridge, const StationLengths* station);

  /// Pieces on all tracks, at least; -1 when the side cannot be as long.
  int pieces(Micrometres length) const;
  bool allows(Micrometres length) const { return pieces(length) >= 0; }
  /// All that it can be, rising.
  const std::vector<Micrometres>& choices() const;
  /// No side is shorter; -1 when there is none.
  Micrometres least() const;

  /// Holds the station to one length; 0 frees it.
  void holdStation(Micrometres length) {
    held_ = length;
    choices_.clear();
  }
  /// The length of the station on a side as long as this: the held one, else the one of the fewest
  /// pieces.
  Micrometres stationOn(Micrometres length) const;
  bool hasStation() const { return station_ != nullptr; }

 private:
  struct Known {
    std::int32_t pieces = -1; ///< of the track with the station, without a bridge
    Micrometres station = -1;
  };

  int plainPieces(Micrometres length) const;
  const Known* known(Micrometres length) const;

  const StraightRuns* runs_;
  int tracks_;
  Micrometres bridge_;
  const StationLengths* station_;
  Micrometres held_ = 0;
  std::vector<Known> known_; ///< by multiples of the grain
  mutable std::vector<Micrometres> choices_;
};

} // namespace trassix
