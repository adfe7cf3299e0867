// A bridge as it would be built. Lengths and heights in mm, slopes as rise over length of way;
// `along` counts from where the first ramp, or the bridge, begins.
#pragma once

#include "editing/edit_result.h"
#include "editing/supports/pier_stacks.h"
#include "geometry/point.h"
#include "wizards/bridge/bridge_task.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace trassix {

/// What lies under the bridge.
struct CrossedThing {
  enum class Kind : std::uint8_t { Track, Road, Water };

  Kind kind = Kind::Track;
  std::int32_t id = -1; ///< of the piece, the scenery item or the shape
  std::string name;     ///< article, or what it is
  Point at;
  double along = 0;
  double angle = 90;    ///< between both, 0 to 90 degrees
  double height = 0;    ///< rail top, or the surface, above the board
  double halfWidth = 0; ///< of what has to stay free, measured along the bridge
  double clearance = 0; ///< least between `height` and the underside of the bridge
  double least = 0;     ///< what was asked for
};

struct BridgeSpan {
  SpanKind kind = SpanKind::Deck;   ///< never `Auto`
  std::vector<std::int32_t> pieces; ///< ids on the plan as it would be
  std::string article;              ///< of the bridge piece, empty for a deck
  double from = 0;
  double to = 0;
};

struct BridgePier {
  bool portal = false; ///< a frame across what lies below; its stack is that of each leg
  Point at;
  double along = 0;
  double depth = 0; ///< size in the direction of the bridge
  double foot = 0;  ///< above the board
  double head = 0;  ///< underside of the track, where track has its height
  PierStack stack;

  double height() const { return head - foot; }
};

struct BridgeRamp {
  std::size_t pieces = 0;
  double from = 0; ///< along
  double to = 0;
  double rise = 0;
  double steepest = 0; ///< without sign
  double felt = 0;     ///< the most of grade and what its curve adds

  double length() const { return to - from; }
};

/// An article, and how many more of it the plan would have; below 0 for what is left over.
struct ArticleChange {
  std::string article;
  std::string name;
  std::int32_t count = 0;

  bool operator==(const ArticleChange&) const = default;
};

/// What a picture of the bridge from its side is made of.
struct SideView {
  struct Joint {
    double along = 0;
    double height = 0; ///< where track has its height, that is its underside
  };
  std::vector<Joint> rails; ///< all joints, the ends included
  double railTop = 0;       ///< above those heights
  double deck = 0;          ///< thickness below them
};

struct BridgePlan {
  std::optional<Notice> refusal; ///< with the reason and a remedy; then only `crossed` counts
  std::vector<CrossedThing> crossed;
  std::vector<BridgeSpan> spans;
  std::vector<BridgePier> piers; ///< of the bridge and its ramps, by `along`
  std::vector<BridgeRamp> ramps; ///< none for track that stays as it lies
  std::vector<ArticleChange> articles;
  std::vector<std::int32_t> pieces; ///< ids, from one end to the other, on the plan as it would be
  SideView side;
  double deckHeight = 0;            ///< of the track on the bridge
  double spare = 0;                 ///< clearance beyond what was asked for, at the lowest place
  double residue = 0;               ///< mm by which replaced track does not fit exactly
  bool seriesFits = false;          ///< all its piers do without shims
  std::vector<std::string> remarks; ///< sentences; such as a turnout in a ramp

  bool possible() const { return !refusal.has_value(); }
  double steepest() const;
  std::size_t portals() const;
};

/// The clearance that is proposed, with or without wire, for the track that is crossed.
double proposedClearance(TrackSystem system, bool wire);

/// What would come of the task; nothing is changed.
BridgePlan planBridge(const Layout& layout, const BridgeTask& task);

/// Builds it as one undo step and selects it: articles swapped and added, joints and heights.
/// Nothing changes when it is refused. The result names its pieces, of which none may be new.
EditResult applyBridge(Layout& layout, const BridgeTask& task);

/// Another bridge.
struct BridgeChoice {
  std::string name; ///< "shorter and steeper"
  BridgeTask task;
  BridgePlan plan;
};

/// What else could be asked for than the task does: shorter and steeper, longer and gentler, with
/// other spans or piers. What comes of them, which may be nothing new, is still to be planned.
std::vector<BridgeChoice> bridgeIdeas(const Layout& layout, const BridgeTask& task);

/// Whether both are the same bridge, whatever was asked for.
bool builtAlike(const BridgePlan& a, const BridgePlan& b);

struct BridgeFact {
  std::string name;
  std::string text;
};
/// What there is to know of it: ramps with their grades, bare and with what curves add, clearance
/// in numbers, residue, pieces and piers to add.
std::vector<BridgeFact> factsOf(const BridgePlan& plan, std::int32_t units);

} // namespace trassix
