#pragma once

#include "editing/edit_result.h"
#include "wizards/layout/layout_proposal.h"

#include <cstdint>

namespace trassix {

class Layout;

/// Replace takes away all other track, with its helices and tunnels; scenery stays.
enum class LayoutPlacing : std::uint8_t { Replace, Add };

/// Puts the track on the active level as one undo step, selected. The proposal's outline becomes
/// the plan's baseboard, which undo leaves as it is. Refused, and nothing changed, beyond the
/// limits of a plan.
EditResult placeLayout(Layout& layout, const LayoutProposal& proposal, LayoutPlacing placing);

/// What undo does not take back, to be told before it is placed; empty when the plan has this
/// baseboard already.
std::string baseboardNotice(const Layout& layout, const LayoutProposal& proposal);

} // namespace trassix
