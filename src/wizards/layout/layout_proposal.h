// A layout that could be built. Lengths in mm.
#pragma once

#include "document/block.h"
#include "wizards/layout/layout_task.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace trassix {

struct LayoutFigures {
  double length = 0;     ///< of one lap on the main line; of two tracks on the inner one
  double lapMinutes = 0; ///< of that at scale speed
  std::size_t pieces = 0;
  std::size_t kinds = 0;    ///< different articles
  PieceStock missing;       ///< what there is not enough of at home
  double residue = 0;       ///< what the main line's worst joint is off
  double sidingResidue = 0; ///< the same of the sidings, 0 without a station
  double sidingTurn = 0;    ///< degrees that joint is off exactly facing
  double edgeDistance = 0;  ///< least, from a bed's edge to the table's edge
  double usableLength = 0;  ///< of the shortest siding between its fouling points
  double beyondReach = 0;   ///< of track that no arm reaches from any edge

  std::int32_t missingCount() const;
};

/// A figure as a user reads it.
struct LayoutFact {
  std::string name;
  std::string text;
};

struct LayoutProposal {
  /// The pieces where they would lie, with ids from 1 and joints among themselves, at height 0 on
  /// level 1.
  Block track;
  Polygon outline; ///< of the table that it is made for
  LayoutFigures figures;
  LayoutPreference bestAt = LayoutPreference::LongestRun; ///< what it was sought for
  std::vector<std::string> remarks; ///< what was asked for and is not in it, one sentence each
};

/// In the order in which proposals are compared; the time of a lap only where the user likes it
/// `playful`. Lengths in the given unit.
std::vector<LayoutFact> factsOf(const LayoutProposal& proposal, std::int32_t units, bool playful);

/// Why there is no such layout, and what would help.
struct LayoutRefusal {
  std::string reason; ///< one or two sentences
  std::string remedy; ///< the same; empty when nothing helps
  Polygon outline; ///< the nearest one with which there is such a layout; empty when none is known
  double radius = 0;       ///< one that would fit, 0 for none
  double usableLength = 0; ///< of the longest station that would fit, 0 for none

  std::string text() const; ///< both
};

} // namespace trassix
