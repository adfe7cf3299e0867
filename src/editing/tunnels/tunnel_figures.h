// What a tunnel has to measure. Lengths in mm.
#pragma once

#include "catalog/track_system.h"

#include <cstdint>
#include <span>
#include <string_view>

namespace trassix {

/// What a portal lets through.
enum class TunnelOpening : std::uint8_t { WithWire, OldStone };

/// The scenery item that is a portal for one or two tracks; empty when there is none.
std::string_view portalItem(TunnelOpening opening, std::size_t tracks);

struct OpeningSize {
  double width = 0;
  double height = 0; ///< above the rails
};

/// Of a portal over straight track.
OpeningSize openingOf(TrackSystem system, TunnelOpening opening, std::size_t tracks);

/// By how much vehicles lean out on each side of a curve; 0 for a radius of 0, which is straight
/// track. Radii between two of the table count as the sharper one.
double sideAddition(TrackSystem system, double radius);

/// Tunnels are not shorter.
double shortestTunnel(TrackSystem system);

/// The distances at which two tracks of a system count as double track.
std::span<const double> doubleTrackSpacings(TrackSystem system);

} // namespace trassix
