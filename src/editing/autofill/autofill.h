// Closing the space between two open ends with catalogue pieces: a run of straights, one arc of
// identical curves, or an S of two equal curves with straights between them.
#pragma once

#include "document/layout.h"
#include "editing/edit_result.h"
#include "editing/elevation/grades.h"
#include "editing/track/connector_geometry.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace trassix {

enum class GapKind : std::uint8_t { Straight, Arc };

struct Gap {
  std::int32_t startPiece = -1; ///< id
  WorldConnector start;
  std::int32_t endPiece = -1; ///< id
  WorldConnector end;
  double distance = 0; ///< mm between the two ends
  GapKind kind = GapKind::Straight;
  double rise = 0;     ///< mm from the start's height up to the end's
  bool graded = false; ///< the end is one of a climbing piece
};

struct FillCandidate {
  static constexpr std::size_t kNever = static_cast<std::size_t>(-1);

  std::vector<std::string> articles; ///< in placing order, from the gap's start
  double total = 0;                  ///< summed length in mm, for an arc the turned degrees
  bool reversed = false;             ///< curves are entered by their connector 1: a left turn
  std::size_t turnsBack = kNever;    ///< from this piece on the other way round: the end of an S

  bool isS() const { return turnsBack != kNever; }
  bool operator==(const FillCandidate&) const = default;
};

/// What there is to choose from, best first; an S comes after all others. Without candidates it
/// says why: the systems differ, or there is no gap, or nothing fills the gap.
struct Autofill {
  bool mixedSystems = false;
  std::optional<Gap> gap;
  std::vector<FillCandidate> candidates;

  bool success() const { return !candidates.empty(); }
};

/// True when exactly two pieces are selected.
bool canAutofill(const Layout& layout);

/// Looks for fills between the nearest open ends of two pieces, from `a` to `b`. Empty when one of
/// them is missing or not in the catalogue: then there is nothing to say either.
std::optional<Autofill> solveAutofill(const Layout& layout, std::int32_t a, std::int32_t b);

/// What a fill leaves between its last end and the gap's end. It climbs to that where it reaches it
/// and need not be steeper than `limit`; else it lies level.
struct Rest {
  double distance = 0; ///< mm in the plan
  double height = 0;   ///< mm
  double slope = 0;    ///< of the fill, rise over length of way
  bool graded = false; ///< of the gap's end

  bool reaches() const; ///< near enough in the plan, within 1.0 mm
  bool joins() const;   ///< and in height: where the end climbs at most 1.0 mm, else none
};
Rest restOf(const Gap& gap, const FillCandidate& candidate, double limit = kSteepestSlope);

/// Places the fill as one undo step, joined from piece to piece and, where the rest allows it, to
/// the gap's end. It lies on the level of the start piece and goes on at the height of the end
/// where it starts, with the one grade that the rest tells. Refused when an article is missing or
/// has fewer than two ends; nothing happens when the gap's start is joined by now.
EditResult placeFill(Layout& layout, const Gap& gap, const FillCandidate& candidate,
                     double limit = kSteepestSlope);

} // namespace trassix
