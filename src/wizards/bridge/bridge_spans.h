// Bridge pieces put into the way of a draft, over what no pier can stand in.
#pragma once

#include "wizards/bridge/bridge_draft.h"

#include <cstdint>
#include <functional>
#include <optional>

namespace trassix {

/// Piers of full size, or as narrow as the track.
enum class PierWidth : std::uint8_t { Full, Narrow };

/// Whether no pier finds room under the way of the draft at a place, were it so high; without a
/// height, as high as it is.
std::function<bool(double)> blockedUnder(const BridgeDraft& draft, PierWidth width,
                                         std::optional<double> height);

/// For each stretch of the way whether it is plain straight track that may be replaced.
std::vector<bool> replaceable(const BridgeDraft& draft);

/// Which way the spans came out.
struct SpansMade {
  bool needsPortals = false; ///< a joint over what is crossed has to be carried
  double from = 0;           ///< along the way, from the first bridge piece to the last one
  double to = 0;
  std::optional<Notice> refusal;
};

/// Replaces track over each gap under the zones by bridge pieces of the task's kind. The draft's
/// line and zones are renewed.
SpansMade makeSpans(BridgeDraft& draft, const BridgeTask& task, double height);

/// The same over the stretches that are meant, as far as they are straight and whatever is below.
SpansMade makeSpansAlong(BridgeDraft& draft, const BridgeTask& task, std::size_t from,
                         std::size_t to);

/// Line and zones of a way that has changed.
void renewLine(BridgeDraft& draft);

} // namespace trassix
