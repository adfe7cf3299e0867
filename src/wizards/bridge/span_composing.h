// Which pieces lead over a gap. Lengths in mm.
#pragma once

#include "catalog/piece_def.h"
#include "wizards/bridge/bridge_line.h"
#include "wizards/bridge/bridge_task.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

namespace trassix {

/// Straights in place of others.
struct SpanRow {
  std::size_t from = 0; ///< the stretches of the way that it replaces
  std::size_t to = 0;
  std::vector<const PieceDef*> row;
  std::size_t bridges = 0; ///< pieces of it that carry themselves
  std::size_t portals = 0; ///< joints between these that no pier can reach
  double residue = 0;      ///< by which it is longer or shorter than what it replaces
};

struct SpanGap {
  double from = 0; ///< where no pier can stand
  double to = 0;
  std::vector<bool> straight; ///< for each stretch whether it may be replaced
  std::function<bool(double)> blocked;
};

/// Bridge pieces of a kind that the system has, the shortest first; of all for `Auto`, of none for
/// `Deck`.
std::vector<const PieceDef*> bridgePieces(TrackSystem system, SpanKind kind);
SpanKind kindOf(const PieceDef& bridge);

/// Bridge pieces of one article, at most `most`, over the gap, with straights of the system before
/// and behind where they do not come out as long as what they replace. None when there are no such
/// straights, or no straight track to replace.
std::optional<SpanRow> composeSpan(const BridgeLine& line, const PieceDef& bridge,
                                   const SpanGap& gap, std::size_t most);

/// Bridge pieces over as much as can be of the stretches from `from` to `to`, which may all be
/// replaced; none when not a single one fits.
std::optional<SpanRow> composeRow(const BridgeLine& line,
                                  const std::vector<const PieceDef*>& bridges, std::size_t from,
                                  std::size_t to, const std::function<bool(double)>& blocked);

/// Straights of so much length together, the fewest that do; none when there are none within
/// `kRowPlay`.
std::optional<std::vector<const PieceDef*>> straightsOf(TrackSystem system, double length);

/// By how much the nearest shorter sum of straights is shorter.
double missingLength(TrackSystem system, double length);

} // namespace trassix
