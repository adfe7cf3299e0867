#pragma once

#include "catalog/piece_def.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace trassix {

inline constexpr std::string_view kDefaultHelixKit = "proses_2_5_r1r2";

/// Half the side of the square that a helix of an unknown kit is taken to cover, in mm.
inline constexpr double kUnknownHelixHalfSize = 500.0;

/// A spiral of one track, or of two concentric ones. Lengths in mm.
struct HelixKit {
  std::string key; ///< holds turns, radii and, but for C-Track, the system
  std::string name;
  std::string radii; ///< as the system counts them, for example "R1" or "R1/R2"
  TrackSystem system = TrackSystem::CTrack;
  const PieceDef* inner = nullptr; ///< the curve that the track is made of
  const PieceDef* outer = nullptr; ///< that of the second track, null when there is one only
  double turns = 0;                ///< 1 to 12 in halves
  double outerSize = 0;            ///< from the centre to the outer edge, posts included

  std::size_t tracks() const { return outer == nullptr ? 1 : 2; }
  const PieceDef& outermost() const { return outer == nullptr ? *inner : *outer; }
};

/// Of each system one track on each of its radii and two on neighbouring radii that lie as far
/// apart as its double track does, or a little more, in each number of turns.
std::span<const HelixKit> helixKits();

/// Null on a miss.
const HelixKit* findHelixKit(std::string_view key);

/// One kit for each radius and pair of radii of a system, single tracks first, the smallest first;
/// of the ordinary number of turns. None for a system without kits.
std::vector<const HelixKit*> helixSizes(TrackSystem system);

/// The kit on the same radii with another number of turns, the nearest one that there is.
const HelixKit& withTurns(const HelixKit& kit, double turns);

/// Half the side of the square around its centre that a helix of this kit covers.
double helixHalfSize(std::string_view key);

} // namespace trassix
