// How high the ends of a piece lie. Heights and lengths in mm, grades in degrees as pieces hold
// them; a slope is rise over length of way, the sine of the grade: 0.03 is three percent.
#pragma once

#include "editing/track/track_end.h"

#include <cstdint>

namespace trassix {

class Layout;
struct PieceDef;
struct PlacedPiece;

/// Ends whose heights differ by more are at different heights.
inline constexpr double kSameHeight = 0.001;

/// Grades below a thousandth of a degree count as level.
bool isGraded(const PlacedPiece& piece);

/// Length of way from where the piece's height is given, its connector 0, to another end. The lines
/// of crossings and slips are given at 0 and 2 and count to 1 and 3. 0 for the ends of turntables,
/// which take no grade, and for an end that the piece does not have.
double runTo(const PieceDef& definition, std::int32_t connector);

/// Height of an end: `z + s L sin(grade)`, L the run to it, s = -1 with `rev`, else 1.
double endHeight(const PlacedPiece& piece, const PieceDef& definition, std::int32_t connector);
/// The same of a piece on the plan; one that is unknown, or of an unknown article, lies at its `z`.
double endHeight(const Layout& layout, TrackEnd end);

/// By how much the piece rises for each mm from connector 0 on: `s sin(grade)`.
double slopeOf(const PlacedPiece& piece);

/// The slope of a train that leaves the piece by this end; 0 where the piece has no run.
double slopeOut(const PlacedPiece& piece, const PieceDef& definition, std::int32_t connector);

/// The end of the first route between this one and another; -1 when a train cannot go on.
std::int32_t oppositeEnd(const PieceDef& definition, std::int32_t connector);

/// How a piece lies: what the file holds of it.
struct PieceHeight {
  std::int32_t piece = -1; ///< id
  double z = 0;
  double grade = 0;
  bool rev = false;

  bool operator==(const PieceHeight&) const = default;
};

PieceHeight heightOf(const PlacedPiece& piece);
void lay(PlacedPiece& piece, const PieceHeight& height);

/// Lays a piece for a train that goes from its end `enter`, which comes to lie at `height`, to its
/// end `leave` with this slope, at most 1 either way. Level pieces have neither grade nor `rev`;
/// docs/file-format.md says how the others are written.
PieceHeight layTowards(const PlacedPiece& piece, const PieceDef& definition, std::int32_t enter,
                       std::int32_t leave, double height, double slope);

/// By how much an end of the piece lies higher when it is laid so, mm.
double riseOfEnd(const PlacedPiece& piece, const PieceHeight& laid, std::int32_t connector);

/// The same piece level at this height.
PieceHeight layLevel(const PlacedPiece& piece, double height);

/// Whether the slope of the piece is the user's to choose: not that of turntables and the tracks
/// that came with them, of track in a helix, or of an unknown article.
bool takesGrade(const PlacedPiece& piece);

} // namespace trassix
