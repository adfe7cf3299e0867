// Tunnels: portals at the two ends of a chain of track, or of two side by side, and the record that
// says what they cover.
#pragma once

#include "document/records_fwd.h"
#include "editing/edit_result.h"
#include "editing/tunnels/tunnel_chain.h"
#include "editing/tunnels/tunnel_figures.h"

#include <cstdint>
#include <string>
#include <vector>

namespace trassix {

class Layout;

/// What the selected track is to tunnels.
struct TunnelChoice {
  std::vector<std::int32_t> present; ///< the tunnels in which all of it lies, to be removed
  TunnelChains chains;               ///< else where one can be made
  TunnelProblem problem;             ///< why neither; none when one of both can be done
};
TunnelChoice tunnelChoice(const Layout& layout);

/// Whether the selection lies in tunnels: its pieces covered, its scenery portals.
bool liesInTunnel(const Layout& layout);

/// Makes a tunnel over the selected chains, as one undo step: a portal square on the track at
/// either outer end, at the farther one of two tracks, and the record. The result names the tunnel,
/// then its portals. What is selected stays
/// so as far as it shows.
EditResult placeTunnel(Layout& layout, TunnelOpening opening = TunnelOpening::WithWire);

/// Takes the tunnels with their portals away and leaves their track, as one undo step.
bool removeTunnels(Layout& layout, const std::vector<std::int32_t>& tunnels);

} // namespace trassix
