// What there is to reckon of a helix before it is built. Lengths in mm.
#pragma once

#include "editing/helix/helix_plan.h"

#include <cstdint>
#include <string>
#include <vector>

namespace trassix {

/// Good: comfortable for all trains and high enough for wire. Steep: above what a helix should
/// have. Refused: trains do not pass below its turns.
enum class HelixVerdict : std::uint8_t { Good, Fair, Steep, Refused };

struct HelixFigures {
  struct Track {
    const PieceDef* curve = nullptr;
    std::size_t pieces = 0;
    double slope = 0; ///< rise over length
    double felt = 0;  ///< with what its curve adds to that
  };

  std::vector<Track> tracks; ///< the inner one first, which is the steeper one
  double clearance = 0;      ///< from rails to the underside of the turn above
  double crossing = 0;       ///< the same where the inner track's ends, going straight on, pass
                             ///< the outer track, less than a turn away; 0 with one track
  double least = 0;          ///< clearance that trains need without wire
  double leastWithWire = 0;
  double board = 0; ///< side of the square that it takes up
  HelixVerdict verdict = HelixVerdict::Good;
};
HelixFigures figuresOf(const HelixPlan& plan);

/// One sentence that begins with a word for the verdict.
std::string verdictText(const HelixFigures& figures);

struct HelixFact {
  std::string name;
  std::string text;
};
inline constexpr std::size_t kMostHelixFacts = 10;
/// What there is to know of it, at most so many: grades, bare and with what its curves add,
/// clearance and what trains need, where the top leads, the board and the pieces.
std::vector<HelixFact> factsOf(const HelixPlan& plan, std::int32_t units);

/// "2.5".
std::string turnsText(double turns);

/// The smallest radius of the system on which the turns may be high enough for wire and no steeper
/// than is comfortable, as a sentence.
std::string radiusAdvice(TrackSystem system, std::int32_t units);

} // namespace trassix
