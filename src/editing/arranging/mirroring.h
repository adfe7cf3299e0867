// Turning a selection over, as seen in a mirror that stands on the plan.
#pragma once

#include "document/layout.h"
#include "editing/edit_result.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace trassix {

/// A line through the plan.
struct MirrorLine {
  Point on;           ///< mm
  double heading = 0; ///< degrees
};

enum class MirrorWay : std::uint8_t {
  LeftToRight, ///< about the middle of what is selected
  TopToBottom,
  AcrossTrack, ///< about the line of the track at the joint to the rest, so that this joint stays
};

/// Where the mirror stands. Empty when nothing is selected, or no track that it could lie along.
std::optional<MirrorLine> mirrorLine(const Layout& layout, MirrorWay way);

/// The selected pieces of which no piece of their system is the mirror image; ids, sorted.
std::vector<std::int32_t> selectedWithoutTwin(const Layout& layout);

/// Whether anything else is selected than these.
bool selectsMoreThan(const Layout& layout, const std::vector<std::int32_t>& pieces);

/// Mirrors all that is selected at the line, as one undo step. Each piece becomes its twin; heights
/// of all ends stay, and so do joints inside the selection. Joints to the rest open unless their
/// ends still meet; ends that meet others where they land are joined. Refused for locked track,
/// beyond the limits of a plan, and for pieces without a twin, which are named; with `leaveOut`
/// these stay as they are and are not selected any more.
ChangeResult mirrorSelection(Layout& layout, const MirrorLine& line, bool leaveOut = false);

} // namespace trassix
