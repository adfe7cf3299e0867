// Plans for tests, built the way a user builds them.
#pragma once

#include "document/layout.h"
#include "document/record_kinds.h"
#include "editing/track/connector_geometry.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace trassix {

/// Every piece is carried near to where it belongs, let go and left to snap. The plan goes on at
/// its front, the open end it last came to. Throws std::runtime_error when a piece does not snap.
class Plan {
 public:
  Layout layout;

  /// Drops a piece without snapping; the front is its connector 1.
  Plan& place(std::string_view article, const Pose& pose = {});

  /// Goes on by `count` pieces entered at connector 0: curves turn right.
  Plan& extend(std::string_view article, int count = 1);

  /// Goes on by `count` pieces entered at connector 1: curves turn left.
  Plan& extendLeft(std::string_view article, int count = 1);

  /// Goes on by a piece entered at connector `own`; the front is its connector `exit`.
  Plan& extendBy(std::string_view article, std::int32_t own, std::int32_t exit);

  /// Moves the front.
  Plan& at(std::int32_t piece, std::int32_t connector);

  WorldConnector front() const;
  std::int32_t last() const { return piece_; } ///< id of the piece with the front

 private:
  std::int32_t piece_ = -1;
  std::int32_t connector_ = -1;
};

/// An article that has to exist, and all articles in the catalogue's order.
const PieceDef& cataloguePiece(std::string_view article);
std::vector<std::reference_wrapper<const PieceDef>> wholeCatalogue();

/// A connector of a piece of a known article.
WorldConnector worldEnd(const PlacedPiece& piece, std::int32_t connector);

/// How far joined ends are from lying on and facing one another.
struct Play {
  double distance = 0; ///< mm
  double heading = 0;  ///< degrees
  double step = 0;     ///< mm in height
};
Play playOf(const Layout& layout, const PlacedPiece& piece, std::int32_t connector);
Play largestPlay(const Layout& layout);

/// Ends that nothing is joined to, but for those of turntables, which are never all in use.
int openEnds(const Layout& layout);

/// The first rule that the plan breaks, in words; empty when it is sound: unique ids below the
/// counter, joints mutual, in range and between existing pieces, poses finite, headings in
/// [0, 360).
std::string brokenRule(const Layout& layout);

} // namespace trassix
