// Which pieces of a system make up a stretch of track.
#pragma once

#include "catalog/piece_def.h"

#include <optional>
#include <span>
#include <vector>

namespace trassix {

/// Middle to middle of two tracks as the system's curves and stations have it, in mm.
double parallelSpacing(TrackSystem system);

/// The pieces of each part, one after the other.
using PieceRuns = std::vector<const PieceDef*>;

/// Straights beside parts of a straight stretch, these given by their lengths in mm: one like it
/// beside each, where there is one, else a run that is as long as all of them to `play` mm.
/// `preferred` are the pieces that lie there. Empty when there is no such run.
std::optional<PieceRuns> straightsFor(TrackSystem system, std::span<const double> lengths,
                                      std::span<const PieceDef* const> preferred, double play);

/// The radius of the system's plain curves that is nearest to this one; 0 when it has none.
double nearestRadius(TrackSystem system, double radius);

/// The same as `straightsFor` for an arc of this radius, whose parts are given by their degrees.
std::optional<PieceRuns> curvesFor(TrackSystem system, double radius,
                                   std::span<const double> angles, double play);

} // namespace trassix
