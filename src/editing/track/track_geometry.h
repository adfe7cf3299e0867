// How a piece of track looks from above, in its own frame: computed once for each definition.
#pragma once

#include "catalog/piece_def.h"
#include "geometry/point.h"

#include <array>
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
  std::vector<std::vector<Point>> decks; ///< closed outlines on the beds: the bridge of a turntable
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

/// What is seen of a piece from close up only, in its frame, mm.
struct TrackDetails {
  std::vector<std::vector<Point>> rails;    ///< with blades and frogs; none for pieces with one way
  std::vector<std::vector<Point>> fittings; ///< check rails, and the bars between blades
  std::vector<std::vector<Point>> girders;  ///< at the sides of bridges
  std::vector<Point> hachures;              ///< pairs: shoulders of ramps, seams of sets
  std::vector<Point> beams;                 ///< pairs: of buffer stops
  /// Arrowheads on a ramp, up to its second end and to its first.
  std::array<std::vector<std::vector<Point>>, 2> climbs;

  /// Whether there is anything beside rails.
  bool more() const { return !girders.empty() || !hachures.empty() || !beams.empty(); }
};

TrackDetails deriveTrackDetails(const PieceDef& definition);

/// Kept for the life of the process.
const TrackDetails& trackDetailsOf(const PieceDef& definition);

/// Room for the wheel beside a rail, between blade and frog, to the gauge.
inline constexpr double kFlangeway = 0.12;

/// The geometry of a catalogue definition, kept for the life of the process.
const TrackGeometry& trackGeometryOf(const PieceDef& definition);

} // namespace trassix
