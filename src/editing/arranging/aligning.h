// Putting scenery, labels and shapes in line. Track stays, and so do measurements.
#pragma once

#include "document/layout.h"
#include "editing/edit_result.h"

#include <cstdint>

namespace trassix {

enum class AlignTo : std::uint8_t { Left, Centre, Right, Top, Middle, Bottom };
enum class Axis : std::uint8_t { Across, Down };

/// Two selected things that can be aligned are needed, and three that can be distributed.
bool canAlign(const Layout& layout);
bool canDistribute(const Layout& layout);

/// Moves what is selected so that its edges, or middles, lie on the outermost edge, or the middle,
/// of all of it. A label counts as the point at its middle. One undo step; refused for portals of
/// tunnels.
ChangeResult alignSelection(Layout& layout, AlignTo to);

/// Moves what lies between the outermost two so that the gaps from one to the next are even.
ChangeResult distributeSelection(Layout& layout, Axis axis);

} // namespace trassix
