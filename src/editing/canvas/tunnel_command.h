// Tunnels as the tool bar and the context menu make and remove them.
#pragma once

#include "editing/canvas/canvas_tool.h"
#include "editing/tunnels/tunnel_edits.h"

#include <vector>

namespace trassix {

/// What the selection is to tunnels, reckoned anew only when the plan or the selection has changed.
const TunnelChoice& tunnelChoiceNow(const Layout& layout);

/// Removes the tunnels in which the selection lies, else makes one over it; asks first when track
/// leaves it on the way, and tells why when there can be none.
void runTunnel(ToolSite& site, TunnelOpening opening = TunnelOpening::WithWire);

/// The rows of a context menu; none when the selection is nothing to tunnels.
std::vector<MenuRow> tunnelRows(ToolSite& site);

} // namespace trassix
