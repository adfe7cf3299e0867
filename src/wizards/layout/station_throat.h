// How the sidings of a station leave the main line at one of its ends. Lengths in mm.
#pragma once

#include "catalog/system_kits.h"
#include "editing/track/connector_geometry.h"

#include <cstdint>
#include <vector>

namespace trassix {

/// A throat's piece hangs on an end of one that comes before it.
struct ThroatPiece {
  const PieceDef* piece = nullptr;
  std::int32_t enter = 0;   ///< connector by which it hangs there
  std::size_t onto = 0;     ///< position of the piece; the first one hangs on nothing
  std::int32_t ontoEnd = 0; ///< connector of that
};

/// A ladder: the turnout of the main line leads to turnouts of the other hand, which send a siding
/// each back beside the main line, and a curve sends back the last one. In the frame of the
/// turnout's end 0, the main line along +x.
struct StationThroat {
  struct Siding {
    std::size_t piece = 0; ///< position of the one that it begins at
    std::int32_t end = 0;  ///< connector there
    WorldConnector start;  ///< where its straights begin
    double foul = 0; ///< from here, measured along x, trains on it clear all other tracks; what
                     ///< they have of the curve before counts as straightened
  };

  std::vector<ThroatPiece> pieces;
  std::vector<Siding> sidings; ///< the one beside the main line first
  double mainLength = 0;       ///< of the main line's turnout
  double width = 0;            ///< from the main line to the last siding
};

/// Sidings on the right or left of trains that come in. None where the kit lacks a piece.
StationThroat stationThroat(TrackSystem system, int sidings, bool right);

/// What trains on two tracks beside one another need from middle to middle, where one is a branch
/// of this radius.
double foulingDistance(TrackSystem system, double radius);

} // namespace trassix
