#pragma once

#include "catalog/track_system.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace trassix {

/// What sort of piece a definition is. What `length`, `radius` and `angle` mean depends on it.
enum class PieceKind : std::int32_t {
  Straight = 0,
  Curve = 1,
  TurnoutLeft = 2,
  TurnoutRight = 3,
  CurvedTurnout = 4,
  DoubleSlip = 5,
  TrackEnd = 6,
  Uncoupler = 7,
  Crossing = 8,
  Turntable = 10,
  CurvedTurnoutSpaced = 11,
};

/// One end of a piece in the piece's own frame: connector 0 at the origin with heading 180, the
/// main route along +x, +y to the right of the direction of travel. Turntables have their centre
/// at the origin instead.
struct Connector {
  double x = 0;       ///< mm along the main route
  double y = 0;       ///< mm across, positive to the right
  double heading = 0; ///< degrees in [0, 360): where track leaves the piece, from +x towards +y
  bool valid = true;
  std::int32_t id = 0; ///< equals the position in PieceDef::connectors

  bool operator==(const Connector&) const = default;
};

/// One catalogue piece. Lengths in mm, angles in degrees, texts in UTF-8.
struct PieceDef {
  std::string article; ///< maker's article number, the registry key
  std::string name;    ///< as shown in palette, tooltips and tally
  TrackSystem system = TrackSystem::CTrack;
  PieceKind kind = PieceKind::Straight;
  double length = 0;
  double radius = 0;
  double angle = 0; ///< signed for turnouts: negative for a left one
  std::vector<Connector> connectors;
  std::int32_t spanA = 1; ///< carried with the definition, nothing decides on it
  std::int32_t spanB = 1;
  bool bridge = false;                     ///< part of the bridge and ramp range
  bool pair = false;                       ///< the article is sold as a pair of pieces
  bool turnoutSet = false;                 ///< a Gauge 1 turnout set
  bool frogPiece = false;                  ///< the Gauge 1 turnout end piece
  bool ramp = false;                       ///< a ramp; always a bridge piece as well
  std::vector<TrackSystem> adapterSystems; ///< system of connector i, on adapters only

  bool operator==(const PieceDef&) const = default;

  /// The system that connector `index` mates with: an adapter's own entry, else the piece's system.
  TrackSystem connectorSystem(std::size_t index) const {
    return index < adapterSystems.size() ? adapterSystems[index] : system;
  }
};

} // namespace trassix
