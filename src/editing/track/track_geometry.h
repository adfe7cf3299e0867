// How a piece of track looks from above, in its own frame: computed once for each definition.
#pragma once

#include "catalog/piece_def.h"
#include "geometry/point.h"

#include <utility>
#include <vector>

namespace trassix {

/// Half the width of the track bed in mm: 6.0 for Z, 31.5 for Gauge 1, 18.7 for the H0 systems.
double trackHalfWidth(TrackSystem system);

/// Distance between the rails' centres in mm: 6.5 for Z, 45 for Gauge 1, 16.5 for H0.
double trackGauge(TrackSystem system);

/// Lengths in mm in the piece's frame.
struct TrackGeometry {
  std::vector<std::vector<Point>>
      beds;                    ///< closed outlines, one for each route, the pit of a turntable
  std::vector<Point> sleepers; ///< pairs of ends
  double halfWidth = 0;
  double gauge = 0;
  Point centre;            ///< of a circle that holds everything drawn
  double radius = 0;       ///< of that circle
  Point labelSpot;         ///< middle of the main route
  double labelHeading = 0; ///< along the main route there
  double mainLength = 0;   ///< of the main route
};

TrackGeometry deriveTrackGeometry(const PieceDef& definition);

/// The lines of a piece of track in its frame, mm.
struct TrackLines {
  std::vector<std::vector<Point>> centreLines; ///< for a view from afar
  std::vector<std::vector<Point>> rails;
  std::vector<std::vector<Point>> edges; ///< sides of the beds, where no other bed covers them
  std::vector<Point> ends;               ///< pairs: across the beds where pieces meet
};

/// Chords stay within `tolerance` mm of the curves.
TrackLines deriveTrackLines(const PieceDef& definition, double tolerance);

/// The lines of a catalogue definition, good enough for `tolerance` mm and kept for the life of the
/// process, in few grades of fineness.
const TrackLines& trackLinesOf(const PieceDef& definition, double tolerance);

/// The geometry of a catalogue definition, kept for the life of the process.
const TrackGeometry& trackGeometryOf(const PieceDef& definition);

} // namespace trassix
