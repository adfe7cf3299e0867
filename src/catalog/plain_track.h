#pragma once

#include "catalog/piece_def.h"

#include <map>
#include <vector>

namespace trassix {

struct PlainStraight {
  const PieceDef* piece = nullptr; ///< owned by the catalogue
  double length = 0;

  bool operator==(const PlainStraight&) const = default;
};

/// True when a word in the piece's name tells that it does more than carry trains, for example a
/// feeder, a circuit track or an adapter.
bool hasOwnFunction(const PieceDef& piece);

/// The straights of a system that may fill any straight run, longest first (equal lengths in
/// registration order). Bridges, ramps and all pieces with a function of their own are left out.
std::vector<PlainStraight> plainStraights(TrackSystem system);

/// One corner curve per radius: no bridge or ramp, and a whole number of them makes a quarter
/// circle (90 divided by the angle is whole within 0.01). Of two that qualify the one with the
/// larger angle is kept.
std::map<double, const PieceDef*> plainCurvesByRadius(TrackSystem system);

} // namespace trassix
