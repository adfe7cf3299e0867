// Which pieces of a system are mirror images of each other.
#pragma once

#include "catalog/piece_def.h"
#include "geometry/pose.h"

#include <cstdint>
#include <vector>

namespace trassix {

/// One way in which a piece of the catalogue is the mirror image of another.
struct MirrorTwin {
  const PieceDef* definition = nullptr;
  Pose pose; ///< of the twin in the other's frame, whose y runs to the left here
  std::vector<std::int32_t> ends; ///< for each end of the other the twin's
};

/// How far the ends of a twin may lie from where they belong, which is what published numbers are
/// rounded by: mm, and degrees.
inline constexpr double kTwinPlay = 0.1;

/// All ways in which one article is the mirror image of the piece: of the same system and sort,
/// with ends at the mirrored places and the same ways for trains between them. That is the piece
/// itself where it can be; of several articles the one that has the piece's place among those that
/// look like it, so that hand-thrown ones answer to hand-thrown ones. Empty when there is none.
std::vector<MirrorTwin> mirrorTwins(const PieceDef& piece);

} // namespace trassix
