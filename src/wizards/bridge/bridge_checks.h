#pragma once

#include "editing/elevation/hump.h"
#include "wizards/bridge/bridge_draft.h"

#include <cstdint>
#include <optional>

namespace trassix {

/// What is wrong with a draft that was built. A span without support may be mended by a frame,
/// which needs more height.
struct BridgeFault {
  std::optional<Notice> refusal;
  bool wantsPortal = false;
};

/// Clearances of everything that now lies higher, above and below it, and whether all of it stands
/// on something. The draft's supports are those that were looked at.
BridgeFault faultOf(const Layout& before, BridgeDraft& draft, const BridgeTask& task);

/// What has to be between the track's height and what lies below the zone, with a frame or without.
double neededOver(const CrossedZone& zone, const BridgeTask& task, TrackSystem system, bool portal);

/// Why a ramp that could begin at `foot` does not reach the bridge, by how much, and what would do.
Notice rampTooShort(const HumpRamp& ramp, Point foot, double limit, std::int32_t units);

/// What is left under the deck, or under the beam of a frame that carries it there; mm.
double clearanceUnder(const BridgeDraft& draft, const CrossedZone& zone);

/// The clearance that the task asks for over it.
double leastOver(const CrossedZone& zone, const BridgeTask& task);

} // namespace trassix
