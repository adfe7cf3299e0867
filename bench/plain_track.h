// How a piece of H0 track looks, derived plainly from its routes: what the program's own drawing is
// measured against, and therefore shares nothing with it.
#pragma once

#include "catalog/piece_def.h"
#include "document/records.h"

#include <vector>

namespace trassix::bench {

using Line = std::vector<Point>;

inline constexpr double kTrackHalfWidth = 18.7; ///< mm, of the bed
inline constexpr double kTrackGauge = 16.5;     ///< mm

/// In the piece's frame, lines with chords that leave their curves by at most 0.05 mm.
struct PlainTrack {
  std::vector<Line> centreLines; ///< one for each route
  std::vector<Line> beds;        ///< a closed outline for each route
  std::vector<Line> edges;       ///< of the beds, but where another one of the piece covers them
  Line ends;                     ///< pairs: across the beds where the piece ends
  std::vector<Line> rails;       ///< two for each route
  Line sleepers;                 ///< pairs of ends
};

PlainTrack plainTrack(const PieceDef& definition);

} // namespace trassix::bench
