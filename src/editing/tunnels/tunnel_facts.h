#pragma once

#include "document/records_fwd.h"
#include "editing/tunnels/tunnel_figures.h"

#include <cstdint>
#include <optional>

namespace trassix {

class Layout;

/// What there is to say of a tunnel, for whoever asks whether trains get through. In mm.
struct TunnelFacts {
  std::size_t tracks = 1;
  double length = 0;         ///< of the longer one of its tracks
  double sharpest = 0;       ///< radius of the sharpest curve in it, 0 for none
  double needed = 0;         ///< width that vehicles need in that curve
  OpeningSize opening;       ///< of the narrower portal; 0 by 0 where there is none
  double heightWithWire = 0; ///< that an opening needs for overhead wire

  bool hasOpening() const { return opening.width > 0; }
  bool sufficesForCurve() const { return opening.width >= needed - 0.05; }
  bool sufficesForWire() const { return opening.height >= heightWithWire - 0.05; }
};

/// None for a tunnel whose track is not what a tunnel can cover, as a file may hold.
std::optional<TunnelFacts> tunnelFacts(const Layout& layout, const Tunnel& tunnel);

/// The tunnel that this piece is covered by, or that this scenery item is a portal of; null for
/// none.
const Tunnel* tunnelOver(const Layout& layout, std::int32_t piece);
const Tunnel* tunnelOfPortal(const Layout& layout, std::int32_t item);

} // namespace trassix
