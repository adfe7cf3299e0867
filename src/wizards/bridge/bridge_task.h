// What is asked of the Bridge Wizard. Lengths and heights in mm, slopes as rise over length of way.
#pragma once

#include "editing/elevation/grades.h"
#include "editing/track/track_end.h"

#include <cstdint>
#include <string>
#include <vector>

namespace trassix {

class Layout;

enum class BridgeWay : std::uint8_t {
  LiftOver, ///< the selected chain over what it crosses, with ramps on its own track
  FromEnd,  ///< new track straight on from an open end: up, over what lies ahead, and down again
  AsItLies, ///< the selected chain on a bridge at the height that it has, as over a valley
};

enum class SpanKind : std::uint8_t {
  Auto, ///< the shortest bridge piece that is long enough, else a deck
  Truss,
  Arch,
  Girder,
  Deck, ///< plain track on a deck
};

enum class PierHeights : std::uint8_t {
  Preferred,  ///< of the system's series where the bridge hardly has to be higher for it, else any
  SeriesOnly, ///< no pier with a shim under the ramps and the bridge
  Any,        ///< ramps as even as they can be
};

/// The least and the most that a task may ask for.
inline constexpr double kLeastBridgeLimit = 0.005;
inline constexpr double kMostBridgeLimit = kSteepestSlope;

struct BridgeTask {
  BridgeWay way = BridgeWay::LiftOver;
  std::vector<std::int32_t> pieces; ///< sorted ids; not for `FromEnd`
  TrackEnd end;                     ///< of `FromEnd`
  double clearance = 0;  ///< from rails below to the underside above; 0: trains without wire
  double deckHeight = 0; ///< of the track on the bridge, above the board; 0: as the clearance asks
  double limit = kCautionSlope; ///< of the bare grade, curves not counted
  double rampLength = 0; ///< of each ramp, or a piece longer; 0: as short as the limit allows
  SpanKind span = SpanKind::Auto;
  PierHeights piers = PierHeights::Preferred;
  bool rampPieces = false; ///< in the ramps, where there are such of the same shape

  bool operator==(const BridgeTask&) const = default;
};

/// What can be done with what is selected, the likeliest first: over what it crosses, from its
/// open ends, and as it lies. Empty without selected track.
std::vector<BridgeTask> bridgeTasks(const Layout& layout);

/// "Lift it over what it crosses" and so on; names the end of `FromEnd`.
std::string nameOf(const Layout& layout, const BridgeTask& task);

/// The system of the bridge's track; C-Track when there is none.
TrackSystem systemOf(const Layout& layout, const BridgeTask& task);

/// The kinds of span that the system has, `Auto` first and `Deck` last.
std::vector<SpanKind> spanKinds(TrackSystem system);
std::string nameOf(SpanKind kind);

} // namespace trassix
